#pragma once

#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"

#include <QString>

#include <functional>

class FillFolder;

/// Takes over the file system's records of deleted files and folders by creating and deleting many small
/// ones. One thread.
class ResidueCleaning
{
public:
    /// Both outlive the object.
    ResidueCleaning(RunningJob &job, FillFolder &folder)
        : m_job(job)
        , m_folder(folder)
    {}

    /// Each step returns its first failure, and leaves nothing behind that can be removed.
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
