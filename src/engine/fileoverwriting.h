#pragma once

#include "engine/durabilitygroups.h"
#include "engine/filepool.h"
#include "engine/fileprogress.h"
#include "engine/filesampling.h"
#include "engine/filework.h"
#include "model/wipemethod.h"
#include "platform/entrypath.h"
#include "platform/files.h"
#include "platform/status.h"

#include <QCoreApplication>
#include <QString>

#include <atomic>
#include <cstddef>
#include <functional>
#include <vector>

class JobFiles;

namespace platform {
class AlignedBuffer;
class FileHandle;
} // namespace platform

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

// How the files of a job receive a pass: a job for each file on a pool of threads, batch after batch, then
// the wait for the device, then reading back. On the worker's thread but where it is said.
class FileOverwriting
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    struct Settings
    {
        int threads = 1;
        int bufferSizeMB = 0; // below 1: the usual
        bool readsBack = false;
    };

    // The parent, to which the pool's threads belong, and the others outlive this.
    FileOverwriting(FileWork &work, JobFiles &files, const Settings &settings, QObject *parent);

    // What is written from now on is not a part of the progress.
    void beLate() { m_isLate = true; }
    FileProgress &progress() { return m_progress; }

    // The files from this one on receive the pass. False when one failed.
    bool overwriteFrom(std::size_t first, const PassPattern &pattern);
    // One file on this thread, which is waited for by itself.
    bool overwriteOne(std::size_t index, const PassPattern &pattern);

    // Files that failed in a pass, each pass counted.
    int failedCount() const { return m_failedCount; }
    // The members of a group whose end failed: nobody knows which of them are on the medium.
    void tellLost(const std::vector<DurabilityGroups::Member> &members, const platform::Status &status);

    // Files whose content may lie elsewhere too.
    int elsewhereCount() const { return m_elsewhereCount; }
    int samplesRead() const { return m_sampling.samplesRead(); }

private:
    // What a file holds, or one of its streams.
    struct Content
    {
        std::size_t index = 0;
        platform::EntryPath file;
        qint64 size = 0;
        quint32 seed = 0;
        QString stream{}; // of which nobody hears in the progress
        bool isStreamToBeLocated = false;

        platform::EntryPath entry() const { return file.stream(stream); }
    };
    enum class Step {
        Done,
        Failed,
        Replaced, // another file stands there
    };

    // Waits for the device; the files that are on the medium now.
    std::vector<DurabilityGroups::Member> settle(DurabilityGroups &groups);
    bool readBack(const std::vector<DurabilityGroups::Member> &members, const PassPattern &pattern);
    // Jobs 0 to count - 1, a batch at a time; false when one failed.
    bool runBatches(std::size_t count, std::size_t atOnce,
                    const std::function<FilePool::Job(std::size_t)> &jobOf);
    std::size_t batchSize() const;

    // On pool threads, from here ... groups: null to have each file on the medium when its job ends.
    bool overwriteJob(std::size_t index, const PassPattern &pattern, quint32 seed,
                      DurabilityGroups *groups) noexcept;
    bool overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed,
                           DurabilityGroups *groups);
    bool overwriteFile(std::size_t index, const platform::EntryPath &entry, qint64 size,
                       const PassPattern &pattern, quint32 seed, DurabilityGroups *groups);
    bool overwriteStreams(std::size_t index, const platform::EntryPath &entry, const PassPattern &pattern,
                          quint32 seed);
    Step overwriteContent(const Content &content, const PassPattern &pattern, DurabilityGroups *groups);
    void noteProtection(quint32 code);
    bool failToOpen(const QString &path, const platform::Status &status);
    bool writeChunks(platform::FileHandle &file, const Content &content, const PassPattern &pattern,
                     platform::AlignedBuffer &buffer);
    // A place that could not be found out counts as elsewhere.
    void notePlace(std::size_t index, const QString &path,
                   const platform::Result<platform::ContentPlace> &place);
    bool isToBeReadBack(const PassPattern &pattern) const;
    bool readBackJob(const DurabilityGroups::Member &member, const PassPattern &pattern) noexcept;
    bool verifyFile(std::size_t index, const platform::EntryPath &entry, qint64 size,
                    const PassPattern &pattern);
    void logOutOfMemory() noexcept;
    // ... to here.

    FileWork &m_work;
    JobFiles &m_files;
    const Settings m_settings;
    std::atomic<int> m_elsewhereCount{0};
    std::atomic<bool> m_isProtectionNoted{false};
    bool m_isLate = false;
    int m_failedCount = 0;
    FileProgress m_progress;
    FileSampling m_sampling;
    FilePool m_pool; // destroyed first
};
