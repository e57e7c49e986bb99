#pragma once

#include "platform/durabilitygroup.h"
#include "platform/entrypath.h"
#include "platform/status.h"

#include <QMutex>
#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <vector>

/// The files of one stage of a job that are flushed to the medium together, one group for each file system
/// that supports it. Any thread, except for close().
class DurabilityGroups
{
public:
    using Group = std::shared_ptr<platform::DurabilityGroup>;

    DurabilityGroups() = default;
    /// Closes the groups that are still open after an exception. Failures are only traced.
    ~DurabilityGroups();
    DurabilityGroups(const DurabilityGroups &) = delete;
    DurabilityGroups &operator=(const DurabilityGroups &) = delete;

    /// The group to open a file with. Null where each file has to be flushed by itself.
    Group of(const platform::EntryPath &entry);

    struct Member
    {
        std::size_t file = 0; ///< its number in the list of the job
        qint64 size = 0;      ///< bytes written
    };
    /// Adds a written file to the group of its place, which from now on decides whether the file is on the
    /// medium. Returns false where there is no group.
    bool add(const platform::EntryPath &entry, const Member &member);

    struct Closed
    {
        std::vector<Member> members;
        platform::Status status; ///< a failure applies to every member
    };
    /// Closes all groups; no file may be written meanwhile. New groups can be started afterwards.
    std::vector<Closed> close();

private:
    struct Open
    {
        Group group;
        std::vector<Member> members;
    };

    Open *find(const platform::EntryPath &entry);

    QMutex m_mutex; ///< guards the members below
    std::vector<Open> m_open;
};
