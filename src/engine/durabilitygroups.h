#pragma once

#include "platform/durabilitygroup.h"
#include "platform/entrypath.h"
#include "platform/status.h"

#include <QMutex>
#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <vector>

// The files of one stage of a job, which reach the medium together: one group for each file system that has
// them. Any thread, except for close().
class DurabilityGroups
{
public:
    using Group = std::shared_ptr<platform::DurabilityGroup>;

    DurabilityGroups() = default;
    // On a way out that nobody foresaw; what then fails is only traced.
    ~DurabilityGroups();
    DurabilityGroups(const DurabilityGroups &) = delete;
    DurabilityGroups &operator=(const DurabilityGroups &) = delete;

    // To be opened with. Null where each file is to be flushed by itself.
    Group of(const platform::EntryPath &entry);

    struct Member
    {
        std::size_t file = 0; // its number in the list of the job
        qint64 size = 0;      // bytes that were written
    };
    // What becomes of the file depends on the group of its place from now on. False where there is none.
    bool add(const platform::EntryPath &entry, const Member &member);

    struct Closed
    {
        std::vector<Member> members;
        platform::Status status; // a failure is one of every member
    };
    // Nobody writes meanwhile. New groups can be begun afterwards.
    std::vector<Closed> close();

private:
    struct Open
    {
        Group group;
        std::vector<Member> members;
    };

    Open *find(const platform::EntryPath &entry);

    QMutex m_mutex; // guards what follows
    std::vector<Open> m_open;
};
