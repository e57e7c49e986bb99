#pragma once

#include "engine/runningjob.h"
#include "platform/status.h"

#include <QString>

class FillFolder;

// What takes over the file system's records of deleted files and folders: many small ones, made and deleted
// again. One thread.
class ResidueCleaning
{
public:
    // Both outlive this.
    ResidueCleaning(RunningJob &job, FillFolder &folder)
        : m_job(job)
        , m_folder(folder)
    {}

    // Each answers its first failure, and leaves nothing that can be removed.
    platform::Status cleanFileRecords();
    platform::Status cleanDirectoryEntries();

private:
    platform::Status makeRecordFiles(const QString &folder);
    platform::Status removeFolder(const QString &folder);

    RunningJob &m_job;
    FillFolder &m_folder;
};
