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
#include <utility>
#include <vector>

// The files of a job with what it knows of each, and the words for what happens to them. Files are added by
// the worker's thread while no other looks at them; what is known of a file belongs to the one thread that
// has it.
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
    // Numbers of files count from the beginning of the list.
    std::size_t count() const { return m_list.files.size(); }
    WatchedFile &watched(std::size_t file) { return m_watched[file]; }
    // For files that were added to the list.
    void watchAll() { m_watched.resize(m_list.files.size()); }
    // Takes those from the first one on off the list for which it answers false; false of goOn leaves the
    // rest as it is.
    template <typename Predicate, typename GoOn>
    void keepFrom(std::size_t first, const Predicate &isKept, const GoOn &goOn);

    platform::Result<platform::EntryPath> entry(std::size_t file);
    platform::Result<platform::FileInfo> look(std::size_t file);
    QString pathOf(std::size_t file) const;

    // What stands under a name that the list does not have, left there by the job.
    std::vector<FileEntry> &left() { return m_left; }

    void noteMounted(const QString &path);
    void noteReplaced(const QString &path);
    // What vanished on the way to its end.
    void noteVanished();
    // Says why a file failed; always false. message has a place for the path.
    bool fail(const QString &message, const QString &path, const platform::Status &status);

private:
    RunningJob &m_job;
    HeldTree m_tree;
    FileList m_list;
    std::vector<WatchedFile> m_watched; // the files of the list
    std::vector<FileEntry> m_left;
    QSet<QString> m_mounted; // paths of what is not to be entered
};

template <typename Predicate, typename GoOn>
void JobFiles::keepFrom(std::size_t first, const Predicate &isKept, const GoOn &goOn)
{
    std::size_t kept = first;
    std::size_t i = first;
    for (; i < m_list.files.size() && goOn(); ++i) {
        if (!isKept(i))
            continue;
        if (kept != i) {
            m_list.files[kept] = std::move(m_list.files[i]);
            m_watched[kept] = m_watched[i];
        }
        ++kept;
    }
    const auto given = static_cast<std::ptrdiff_t>(i);
    const auto left = static_cast<std::ptrdiff_t>(kept);
    m_list.files.erase(m_list.files.begin() + left, m_list.files.begin() + given);
    m_watched.erase(m_watched.begin() + left, m_watched.begin() + given);
}
