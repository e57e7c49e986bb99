#pragma once

#include "engine/contentoverwriting.h"
#include "engine/durabilitygroups.h"
#include "engine/filepool.h"
#include "engine/fileprogress.h"
#include "engine/runningjob.h"
#include "model/wipemethod.h"
#include "platform/entrypath.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

class JobFiles;

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

/// Lets the files of a job receive a pass: each file is a job on a pool of threads, batch after batch. Then
/// the files are flushed in groups and read back. Worker's thread, except where a comment names the pool.
class FileOverwriting
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    struct Settings
    {
        int threads = 1;
        int bufferSizeMB = 0; ///< see ContentOverwriting::Settings
        bool readsBack = false;
    };

    /// The pool's threads belong to the parent. All four outlive this.
    FileOverwriting(RunningJob &job, JobFiles &files, const Settings &settings, QObject *parent);

    /// Files overwritten from now on appeared during the job and do not count in its progress.
    void beLate() { m_isLate = true; }
    FileProgress &progress() { return m_progress; }

    /// The files from this one on receive the pass. False when one failed.
    bool overwriteFrom(std::size_t first, const PassPattern &pattern);
    /// One file receives the pass on this thread and is flushed by itself.
    bool overwriteOne(std::size_t index, const PassPattern &pattern);

    /// Failures of files over all passes; a file that fails in two passes counts twice.
    int failedCount() const { return m_failedCount; }
    /// Counts and logs all members of a group whose flush failed.
    void tellLost(const std::vector<DurabilityGroups::Member> &members, const platform::Status &status);

    /// Files with a content that may lie elsewhere too.
    int elsewhereCount() const { return m_contents.elsewhereCount(); }
    int samplesRead() const { return m_contents.samplesRead(); }

private:
    using Step = ContentOverwriting::Step;

    // Flushes the groups, and returns the files that are on the medium now.
    std::vector<DurabilityGroups::Member> settle(DurabilityGroups &groups);
    bool readBack(const std::vector<DurabilityGroups::Member> &members, const PassPattern &pattern);
    // Runs jobs 0 to count - 1, a batch at a time. False when one failed.
    bool runBatches(std::size_t count, std::size_t atOnce,
                    const std::function<FilePool::Job(std::size_t)> &jobOf);
    std::size_t batchSize() const;

    // Called on pool threads, from here on. Without groups each file is on the medium when its job ends.
    bool overwriteJob(std::size_t index, const PassPattern &pattern, quint32 seed,
                      DurabilityGroups *groups) noexcept;
    bool overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed,
                           DurabilityGroups *groups);
    bool overwriteFile(std::size_t index, const platform::EntryPath &entry, qint64 size,
                       const PassPattern &pattern, quint32 seed, DurabilityGroups *groups);
    bool overwriteStreams(std::size_t index, const platform::EntryPath &entry, const PassPattern &pattern,
                          quint32 seed);
    bool readBackJob(const DurabilityGroups::Member &member, const PassPattern &pattern) noexcept;
    // Up to here.

    RunningJob &m_job;
    JobFiles &m_files;
    bool m_isLate = false;
    int m_failedCount = 0;
    // It counts positions in the whole job, and the worker adds the earlier passes once more: in later passes
    // the figures run ahead, as all that read them expect.
    FileProgress m_progress;
    ContentOverwriting m_contents;
    FilePool m_pool; // destroyed first
};
