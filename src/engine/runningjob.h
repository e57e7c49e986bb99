#pragma once

#include "model/joboutcome.h"
#include "model/wipemethod.h"
#include "platform/status.h"

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <cstddef>

// What the parts of a job need of the worker that runs them: its log, its stop and pause, its patterns and
// its progress. On the worker's thread, fill() apart.
class RunningJob
{
public:
    enum NoteLevel { Information = 0, Warning = 1, Error = 2 };

    virtual void note(const QString &message, NoteLevel level = Information) = 0;
    // What makes the job fail.
    virtual void reportError(const QString &message) = 0;
    // What the system answered, for the debug output.
    virtual void diagnose(const platform::Status &failure) = 0;
    virtual void noteShortfall(const Shortfall &shortfall) = 0;
    // Bytes that the medium has taken.
    virtual void noteWritten(qint64 bytes) = 0;

    virtual bool isStopping() const = 0;
    // Waits while the job is paused. False to give up.
    virtual bool mayGoOn() = 0;
    // Waits for the time given. False when a stop came first.
    virtual bool wait(std::chrono::milliseconds time) = 0;

    // One thread at a time.
    virtual void fill(std::byte *data, qint64 size, const PassPattern &pattern) = 0;

    // Bytes of the current pass.
    virtual void progress(qint64 done, qint64 total) = 0;

protected:
    RunningJob() = default;
    ~RunningJob() = default;
    RunningJob(const RunningJob &) = default;
    RunningJob &operator=(const RunningJob &) = default;
};
