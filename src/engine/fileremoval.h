#pragma once

#include "engine/durabilitygroups.h"
#include "engine/heldtree.h"
#include "engine/runningjob.h"
#include "platform/entrypath.h"
#include "platform/files.h"

#include <QCoreApplication>

#include <cstddef>
#include <functional>
#include <vector>

class FileDeletion;
class JobFiles;

/// Removes the files that received their passes, and the folders that held them. On the worker's thread.
class FileRemoval
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    /// Writes every pass to one file once more; returns false when that failed.
    using OverwriteAgain = std::function<bool(std::size_t index)>;

    /// Limits the rounds for a file that grows faster than it is erased.
    static constexpr int MostRounds = 10;

    /// All parameters outlive the object.
    FileRemoval(RunningJob &job, JobFiles &files, OverwriteAgain overwriteAgain);

    /// Cuts, renames and deletes the files from this one on. Returns false when one still exists.
    bool deleteFrom(std::size_t first);
    /// Files that were processed, and those of them that still exist.
    int processedCount() const { return m_processedCount; }
    int failedCount() const { return m_failedCount; }
    /// Files behind this number are not counted as processed.
    void countUpTo(std::size_t count) { m_countedFiles = count; }

    /// Removes files that a stop left in the folders to be removed next. overwritten: the number of files,
    /// from the beginning of the list, that received every pass.
    void removeRest(std::size_t overwritten);
    /// Removes the target folders whose whole content was listed, and the folders below them. emptied: as in
    /// FolderRemoval::Observer.
    void removeFolders(const std::function<void()> &emptied);
    /// The folders that the job removed names from, or removes with the next call of removeFolders().
    std::vector<HeldTree::Folder> foldersOfNames();

    /// Flushes the removals to the medium and returns the groups, with a failure for those that could not be
    /// flushed. Also called after an exception.
    std::vector<DurabilityGroups::Closed> settle() { return m_removals.close(); }

private:
    bool deleteFile(FileDeletion &deletion, std::size_t index);
    bool overwriteGrown(std::size_t index, const platform::EntryPath &entry, const platform::FileInfo &found);

    RunningJob &m_job;
    JobFiles &m_files;
    OverwriteAgain m_overwriteAgain;
    DurabilityGroups m_removals;
    std::size_t m_countedFiles = 0;
    int m_processedCount = 0;
    int m_failedCount = 0;
};
