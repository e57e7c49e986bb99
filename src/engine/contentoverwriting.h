#pragma once

#include "engine/filesampling.h"
#include "model/wipemethod.h"
#include "platform/contentplace.h"
#include "platform/entrypath.h"
#include "platform/status.h"

#include <QCoreApplication>
#include <QString>

#include <atomic>
#include <cstddef>

class DurabilityGroups;
class FileProgress;
class JobFiles;
class RunningJob;

namespace platform {
class AlignedBuffer;
class FileHandle;
} // namespace platform

/// Lets the content of one file, or of one of its streams, receive a pass: opened, written, flushed, read
/// back. Several threads may do so at a time, each with a file of its own.
class ContentOverwriting
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    struct Settings
    {
        int bufferSizeMB = 0; ///< below 1: 4 MiB; the buffer has 256 KiB to 16 MiB
        bool readsBack = false;
    };

    struct Content
    {
        std::size_t index = 0; ///< of the file among the job's
        platform::EntryPath file;
        qint64 size = 0;  ///< bytes, at least 1
        quint32 seed = 0; ///< of random data
        QString stream{}; ///< empty: the file's own content
        bool isStreamToBeLocated = false;
        FileProgress *progress = nullptr; ///< counts what is written; null: nothing does

        platform::EntryPath entry() const { return file.stream(stream); }
    };

    enum class Step {
        Done,
        Failed,
        Replaced, ///< another file has the name now and was not touched
    };

    /// The job and its files outlive this.
    ContentOverwriting(RunningJob &job, JobFiles &files, const Settings &settings);

    /// With groups the content may reach the medium only when its group ends, and is read back by the caller
    /// after that. Null: it is flushed and read back here.
    Step overwrite(const Content &content, const PassPattern &pattern, DurabilityGroups *groups);
    bool isToBeReadBack(const PassPattern &pattern) const;
    /// Reads samples of a file back. False when one differs, which is logged, or cannot be read.
    bool verify(std::size_t index, const platform::EntryPath &entry, qint64 size, const PassPattern &pattern);

    /// Notes that a content lies elsewhere too. A place that cannot be found out counts as elsewhere.
    void notePlace(std::size_t index, const QString &path,
                   const platform::Result<platform::ContentPlace> &place);
    /// Logs why a file cannot be opened; always false.
    bool failToOpen(const QString &path, const platform::Status &status);
    void noteOutOfMemory() noexcept;

    /// Files with a content that may lie elsewhere too.
    int elsewhereCount() const { return m_elsewhereCount; }
    int samplesRead() const { return m_sampling.samplesRead(); }

private:
    void noteProtection(quint32 code);
    bool writeChunks(platform::FileHandle &file, const Content &content, const PassPattern &pattern,
                     platform::AlignedBuffer &buffer);

    RunningJob &m_job;
    JobFiles &m_files;
    const Settings m_settings;
    std::atomic<int> m_elsewhereCount{0};
    std::atomic<bool> m_isProtectionNoted{false};
    FileSampling m_sampling;
};
