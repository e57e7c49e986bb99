#include "engine/contentoverwriting.h"

#include "engine/durabilitygroups.h"
#include "engine/fileprogress.h"
#include "engine/filetrace.h"
#include "engine/jobfiles.h"
#include "engine/protectedfolders.h"
#include "engine/retries.h"
#include "engine/runningjob.h"
#include "engine/watchedfile.h"
#include "model/displaytext.h"
#include "model/units.h"
#include "platform/alignedbuffer.h"
#include "platform/contentplace.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <new>

using platform::ContentPlace;
using platform::Elsewhere;
using platform::EntryPath;
using platform::OpenMode;
using platform::Status;

namespace {

constexpr qint64 SmallestBuffer = 256 * KiB;
constexpr qint64 LargestBuffer = 16 * MiB;
constexpr int DefaultBufferMB = 4;

platform::Files &files()
{
    return platform::Platform::current().files();
}

qint64 bufferSizeFor(qint64 fileSize, int bufferSizeMB)
{
    const qint64 wanted = (bufferSizeMB < 1 ? DefaultBufferMB : bufferSizeMB) * MiB;
    return std::min(std::clamp(wanted, SmallestBuffer, LargestBuffer), fileSize);
}

// A constant pattern is the same in every chunk, so the buffer is filled once for a file.
bool isConstant(const PassPattern &pattern)
{
    return pattern.type == PatternType::Zeros || pattern.type == PatternType::Ones ||
           pattern.type == PatternType::Custom;
}

Status writeAll(platform::FileHandle &file, const std::byte *data, qint64 size)
{
    while (size > 0) {
        const auto written = file.write(data, size);
        if (!written)
            return written.status();
        if (written.value() <= 0)
            return {platform::WriteFault, 0, "write (no progress)"};
        data += written.value();
        size -= written.value();
    }
    return {};
}

} // namespace

ContentOverwriting::ContentOverwriting(RunningJob &job, JobFiles &files, const Settings &settings)
    : m_job(job)
    , m_files(files)
    , m_settings(settings)
    , m_sampling([&job] { return !job.isStopping(); })
{}

ContentOverwriting::Step ContentOverwriting::overwrite(const Content &content, const PassPattern &pattern,
                                                       DurabilityGroups *groups)
{
    const EntryPath entry = content.entry();
    const QString path = entry.path();
    const bool isStream = !content.stream.isEmpty();
    WatchedFile &watched = m_files.watched(content.index);
    if (m_job.isStopping())
        return Step::Failed;
    platform::AlignedBuffer buffer(bufferSizeFor(content.size, m_settings.bufferSizeMB));
    if (buffer.isNull()) {
        noteOutOfMemory();
        return Step::Failed;
    }
    traceFile(path, files().clearReadOnly(content.file));
    {
        const auto open = [&] {
            return files().openIn(groups ? groups->of(entry) : nullptr, entry, OpenMode::Overwrite);
        };
        const auto opened =
            openWithRetries(open, [this](std::chrono::milliseconds time) { return m_job.wait(time); });
        if (!opened && m_job.isStopping())
            return Step::Failed;
        if (!opened && isStream) {
            traceFile(path, opened.status());
            if (content.isStreamToBeLocated)
                notePlace(content.index, path, ContentPlace{Elsewhere::NamedStreams, content.size});
            return Step::Done;
        }
        if (!opened) {
            failToOpen(path, opened.status());
            noteProtection(opened.code());
            return Step::Failed;
        }
        platform::FileHandle &file = *opened.value();
        if (watched.isReplacedBy(file)) {
            m_files.noteReplaced(content.file.path());
            return Step::Replaced;
        }
        // Asked before the first write, which may change the answer.
        if (isStream ? content.isStreamToBeLocated : watched.isToBeLocated())
            notePlace(content.index, path, file.contentPlace());
        if (!writeChunks(file, content, pattern, buffer))
            return Step::Failed;
        const Status flushed = file.flush();
        if (!flushed) {
            m_files.fail(tr("FlushFileBuffers 失败: %1"), path, flushed);
            return Step::Failed;
        }
    }
    if (m_job.isStopping())
        return Step::Failed;
    if (groups && groups->add(entry, {content.index, content.size}))
        return Step::Done;
    const bool isGood = !isToBeReadBack(pattern) || verify(content.index, entry, content.size, pattern);
    return isGood ? Step::Done : Step::Failed;
}

// The content of an offline file is at the cloud service, where this program cannot erase it.
bool ContentOverwriting::failToOpen(const QString &path, const Status &status)
{
    return m_files.fail(status.code == platform::FileOffline
                            ? tr("文件内容不在本机，仅保存在云端，无法擦除: %1")
                            : tr("无法打开文件(WinAPI): %1"),
                        path, status);
}

// Once for the whole job, since every file of it may be refused.
void ContentOverwriting::noteProtection(quint32 code)
{
    const QString hint = ProtectedFolders::hint(code);
    if (!hint.isEmpty() && !m_isProtectionNoted.exchange(true))
        m_job.note(hint, RunningJob::Warning);
}

bool ContentOverwriting::isToBeReadBack(const PassPattern &pattern) const
{
    return pattern.verify && m_settings.readsBack;
}

// A stop ends the loop between two chunks with true; the caller asks for the stop itself.
bool ContentOverwriting::writeChunks(platform::FileHandle &file, const Content &content,
                                     const PassPattern &pattern, platform::AlignedBuffer &buffer)
{
    PatternGenerator random(content.seed);
    qint64 offset = 0;
    while (offset < content.size && !m_job.isStopping()) {
        if (!m_job.mayGoOn())
            return false;
        const qint64 chunk = std::min(buffer.size(), content.size - offset);
        if (offset == 0 || !isConstant(pattern))
            m_job.fillFrom(random, buffer.data(), chunk, pattern);
        const Status found = file.seek(offset);
        if (!found)
            return m_files.fail(tr("SetFilePointerEx 失败: %1"), content.entry().path(), found);
        const Status written = writeAll(file, buffer.data(), chunk);
        if (!written)
            return m_files.fail(tr("WriteFile 失败: %1"), content.entry().path(), written);
        m_job.noteWritten(chunk);
        offset += chunk;
        if (content.progress != nullptr)
            content.progress->add(chunk);
    }
    return true;
}

bool ContentOverwriting::verify(std::size_t index, const EntryPath &entry, qint64 size,
                                const PassPattern &pattern)
{
    const auto matches = [this, &pattern](const std::byte *data, qint64 length) {
        return m_job.matches(data, length, pattern);
    };
    const auto isAnother = [this, index](platform::FileHandle &opened) {
        return m_files.watched(index).isReplacedBy(opened);
    };
    switch (m_sampling.check(entry, size, matches, isAnother)) {
    case FileSampling::Outcome::Passed:
        return true;
    case FileSampling::Outcome::Replaced:
        m_files.noteReplaced(entry.path());
        return true;
    case FileSampling::Outcome::Different:
        m_job.note(tr("验证失败: %1").arg(displayText(entry.path())), RunningJob::Error);
        return false;
    case FileSampling::Outcome::Unreadable:
        break;
    }
    return false;
}

void ContentOverwriting::notePlace(std::size_t index, const QString &path,
                                   const platform::Result<ContentPlace> &place)
{
    traceFile(path, place.status());
    if (place && !place.value().elsewhere)
        return;
    if (m_files.watched(index).isToBeCountedElsewhere())
        ++m_elsewhereCount;
    m_job.noteShortfall({ShortfallKind::ContentElsewhere, path, place ? place.value().bytes : -1});
}

void ContentOverwriting::noteOutOfMemory() noexcept
{
    try {
        m_job.note(tr("内存分配失败"), RunningJob::Error);
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch)
        // Without memory not even a message can be made. The file counts as failed, and the end of its pass
        // tells that.
    }
}
