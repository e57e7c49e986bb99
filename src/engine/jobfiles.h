#pragma once

#include "engine/filelist.h"
#include "engine/heldtree.h"
#include "engine/runningjob.h"
#include "engine/watchedfile.h"
#include "platform/entrypath.h"
#include "platform/files.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

/// The files of a job, the job's knowledge of each, and the messages about them. The worker's thread adds
/// files while no other thread reads the list. The knowledge of a file belongs to the thread that works on
/// it.
class JobFiles
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    explicit JobFiles(RunningJob &job)
        : m_job(job)
    {}

    HeldTree &tree() { return m_tree; }
    FileList &list() { return m_list; }
    const FileList &list() const { return m_list; }
    /// Files are numbered from 0, from the beginning of the list.
    std::size_t count() const { return m_list.files.size(); }
    WatchedFile &watched(std::size_t file) { return m_watched[file]; }
    /// Begins to watch the files that were added to the list.
    void watchAll() { m_watched.resize(m_list.files.size()); }
    /// Takes those from the first one on off the list for which isKept() is false. Once goOn() is false the
    /// rest stays as it is.
    void keepFrom(std::size_t first, const std::function<bool(std::size_t file)> &isKept,
                  const std::function<bool()> &goOn);

    platform::Result<platform::EntryPath> entry(std::size_t file);
    platform::Result<platform::FileInfo> look(std::size_t file);
    QString pathOf(std::size_t file) const;

    /// Files that the job renamed and could not remove; the list does not have their names.
    std::vector<FileEntry> &left() { return m_left; }

    void noteMounted(const QString &path);
    void noteReplaced(const QString &path);
    /// Adds the files that vanished during the job to its outcome.
    void noteVanished();
    /// Logs why a file failed; always false. The message has a place for the path.
    bool fail(const QString &message, const QString &path, const platform::Status &status);

private:
    RunningJob &m_job;
    HeldTree m_tree;
    FileList m_list;
    std::vector<WatchedFile> m_watched; // the files of the list
    std::vector<FileEntry> m_left;
    QSet<QString> m_mounted; // paths of mount points, which the job does not enter
};
