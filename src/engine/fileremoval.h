#pragma once

#include "engine/durabilitygroups.h"
#include "engine/runningjob.h"
#include "platform/entrypath.h"
#include "platform/files.h"

#include <QCoreApplication>

#include <cstddef>
#include <functional>
#include <vector>

class FileDeletion;
class JobFiles;

// How files that received their passes are removed, and the folders that held them. On the worker's thread.
class FileRemoval
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    // Lets one file receive every pass once more; false when it could not.
    using OverwriteAgain = std::function<bool(std::size_t index)>;

    // Whoever writes faster than it is erased is not waited for.
    static constexpr int MostRounds = 10;

    // The others outlive this.
    FileRemoval(RunningJob &job, JobFiles &files, OverwriteAgain overwriteAgain);

    // Cuts, renames and deletes the files from this one on. False when one still stands.
    bool deleteFrom(std::size_t first);
    // Files that were dealt with, and of these those that still stand.
    int processedCount() const { return m_processedCount; }
    int failedCount() const { return m_failedCount; }
    // Later files are not counted as dealt with.
    void countUpTo(std::size_t count) { m_countedFiles = count; }

    // A stop may have left files of the folders that are removed next. overwritten: so many files from the
    // beginning received every pass.
    void removeRest(std::size_t overwritten);
    void removeFolders();

    // Waits for the device; the groups whose end failed. Also on a way out that nobody foresaw.
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
