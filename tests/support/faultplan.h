#pragma once

#include "platform/status.h"

#include <QtGlobal>

#include <atomic>

// Makes calls of a wrapped interface fail. The Nth call of a matching kind fails with a chosen error, once
// or from then on. Doubles ask fires() at every call; the plan counts the calls it saw and the calls it made
// fail. Thread-safe.
class FaultPlan
{
public:
    // Kinds of call, as bits so that a plan can cover several.
    enum Kind : quint32 {
        Open = 1 << 0,
        Info = 1 << 1,
        Seek = 1 << 2,
        Read = 1 << 3,
        Write = 1 << 4,
        SetEnd = 1 << 5,
        Flush = 1 << 6,
        ClearReadOnly = 1 << 7,
        Rename = 1 << 8,
        Remove = 1 << 9,
        List = 1 << 10,
        CreateFolder = 1 << 11,
        RemoveFolder = 1 << 12,
        RemoveTree = 1 << 13,
        Hide = 1 << 14,
        Space = 1 << 15,
        Query = 1 << 16, // geometry, length, descriptor, extents ...
        Lock = 1 << 17,
        Dismount = 1 << 18,
        Unlock = 1 << 19,
        Identify = 1 << 20, // id of an open file
        Locate = 1 << 21,   // contentPlace
        BeginGroup = 1 << 22,
        CloseGroup = 1 << 23,
        Every = 0xFFFFFFFF,
    };
    enum Repeat { Once, FromThenOn };

    // A plan without failures.
    FaultPlan() = default;
    // call counts from 1.
    FaultPlan(quint32 kinds, int call, platform::ErrorCode error, Repeat repeat = Once)
        : m_kinds(kinds)
        , m_call(call)
        , m_error(error)
        , m_repeat(repeat)
    {}

    // Whether the current call is to fail. Called once per call of the interface.
    bool fires(Kind kind);
    platform::Status status() const;

    int seen() const { return m_seen; }
    int fired() const { return m_fired; }

private:
    quint32 m_kinds = 0;
    int m_call = 0;
    platform::ErrorCode m_error = platform::NoError;
    Repeat m_repeat = Once;
    std::atomic<int> m_seen{0};
    std::atomic<int> m_fired{0};
};
