#pragma once

#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"

#include <QString>

#include <functional>

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
    using Make = std::function<platform::Status(platform::AnchoredFolder &folder)>;

    platform::Status cleanIn(const QString &name, const Make &make);
    platform::Status makeFiles(platform::AnchoredFolder &folder);
    platform::Status makeFolders(platform::AnchoredFolder &folder);
    platform::Status remove(const QString &name);

    RunningJob &m_job;
    FillFolder &m_folder;
};
