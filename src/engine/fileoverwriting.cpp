#include "engine/fileoverwriting.h"

#include "engine/filetrace.h"
#include "engine/jobfiles.h"
#include "engine/protectedfolders.h"
#include "engine/retries.h"
#include "engine/watchedfile.h"
#include "model/displaytext.h"
#include "model/units.h"
#include "platform/alignedbuffer.h"
#include "platform/contentplace.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QDebug>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

using platform::ContentPlace;
using platform::Elsewhere;
using platform::EntryPath;
using platform::FileKind;
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

// Every buffer filled for the pass holds the same, so that one fill does for a file.
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

FileOverwriting::FileOverwriting(FileWork &work, JobFiles &files, const Settings &settings, QObject *parent)
    : m_work(work)
    , m_files(files)
    , m_settings(settings)
    , m_progress([&work](qint64 done, qint64 total) { work.progress(done, total); })
    , m_sampling([&work] { return !work.isStopping(); })
    , m_pool(settings.threads, parent)
{}

bool FileOverwriting::overwriteOne(std::size_t index, const PassPattern &pattern)
{
    return overwriteJob(index, pattern, m_work.drawSeed(), nullptr);
}

bool FileOverwriting::overwriteFrom(std::size_t first, const PassPattern &pattern)
{
    DurabilityGroups groups;
    const bool isWritten = runBatches(m_files.count() - first, batchSize(), [&](std::size_t i) {
        return [this, index = first + i, &pattern, &groups, seed = m_work.drawSeed()] {
            return overwriteJob(index, pattern, seed, &groups);
        };
    });
    const int failures = m_failedCount;
    // Also after a stop: what was written counts as written.
    const std::vector<DurabilityGroups::Member> settled = settle(groups);
    const bool isSettled = m_failedCount == failures;
    const bool isReadBack = !isToBeReadBack(pattern) || readBack(settled, pattern);
    return isWritten && isSettled && isReadBack;
}

std::vector<DurabilityGroups::Member> FileOverwriting::settle(DurabilityGroups &groups)
{
    std::vector<DurabilityGroups::Member> settled;
    for (DurabilityGroups::Closed &closed : groups.close()) {
        if (closed.status)
            std::ranges::move(closed.members, std::back_inserter(settled));
        else
            tellLost(closed.members, closed.status);
    }
    return settled;
}

// Nobody knows which of them are on the medium: each has failed.
void FileOverwriting::tellLost(const std::vector<DurabilityGroups::Member> &members, const Status &status)
{
    for (const DurabilityGroups::Member &member : members) {
        m_files.fail(tr("FlushFileBuffers 失败: %1"), m_files.pathOf(member.file), status);
        ++m_failedCount;
    }
}

// Only now: before, the drive could have answered out of its cache.
bool FileOverwriting::readBack(const std::vector<DurabilityGroups::Member> &members,
                               const PassPattern &pattern)
{
    // Reading takes no longer than starting a batch, so that they are large here.
    constexpr std::size_t Larger = 32;
    return runBatches(members.size(), Larger * batchSize(), [&](std::size_t i) {
        return [this, &member = members[i], &pattern] { return readBackJob(member, pattern); };
    });
}

std::size_t FileOverwriting::batchSize() const
{
    return static_cast<std::size_t>(std::max(2 * m_pool.threadCount(), 1));
}

bool FileOverwriting::runBatches(std::size_t count, std::size_t atOnce,
                                 const std::function<FilePool::Job(std::size_t)> &jobOf)
{
    bool passed = true;
    for (std::size_t first = 0; first < count && !m_work.isStopping(); first += atOnce) {
        if (!m_work.mayGoOn())
            return false;
        const std::size_t end = std::min(first + atOnce, count);
        std::vector<FilePool::Job> jobs;
        jobs.reserve(end - first);
        for (std::size_t i = first; i < end; ++i)
            jobs.push_back(jobOf(i));
        const int failures = m_pool.run(std::move(jobs));
        m_failedCount += failures;
        passed = passed && failures == 0;
    }
    return passed;
}

bool FileOverwriting::overwriteJob(std::size_t index, const PassPattern &pattern, quint32 seed,
                                   DurabilityGroups *groups) noexcept
{
    try {
        return overwriteExisting(index, pattern, seed, groups);
    } catch (const std::bad_alloc &) {
        logOutOfMemory();
    }
    return false;
}

bool FileOverwriting::overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed,
                                        DurabilityGroups *groups)
{
    const auto place = m_files.entry(index);
    const auto info = place ? files().info(place.value()) : place.status();
    if (!info && !isAbsent(info.status()))
        return failToOpen(m_files.pathOf(index), info.status());
    if (!info) {
        // Not a failure, but nobody knows where its content is now.
        m_files.watched(index).vanish();
        return true;
    }
    m_files.watched(index).find(info.value());
    // What took its place was not chosen, and where its content is now nobody knows.
    if (m_files.watched(index).isReplacedBy(info.value())) {
        m_files.noteReplaced(m_files.pathOf(index));
        return true;
    }
    if (info.value().kind != FileKind::Regular)
        return true;
    return overwriteFile(index, place.value(), info.value().size, pattern, seed, groups);
}

bool FileOverwriting::overwriteFile(std::size_t index, const EntryPath &entry, qint64 size,
                                    const PassPattern &pattern, quint32 seed, DurabilityGroups *groups)
{
    if (const qint64 lost = m_files.watched(index).beginPass(size); lost > 0)
        m_work.noteShortfall({ShortfallKind::EntryVanished, entry.path(), lost});
    Step step = Step::Done;
    if (size >= 1)
        step = overwriteContent({.index = index, .file = entry, .size = size, .seed = seed}, pattern, groups);
    return step == Step::Done ? overwriteStreams(index, entry, pattern, seed) : step != Step::Failed;
}

// What a stream holds may be as secret as the file. One that cannot be opened goes with the file all the
// same, and is told.
bool FileOverwriting::overwriteStreams(std::size_t index, const EntryPath &entry, const PassPattern &pattern,
                                       quint32 seed)
{
    const auto streams = files().namedStreams(entry);
    if (isAbsent(streams.status()) || (streams && streams.value().isEmpty()))
        return true;
    const bool isToBeLocated = m_files.watched(index).areStreamsToBeLocated();
    if (!streams && isToBeLocated)
        notePlace(index, entry.path(), streams.status());
    bool passed = true;
    for (const platform::NamedStream &stream : streams.valueOr({})) {
        if (stream.size < 1)
            continue;
        const Step step = overwriteContent({.index = index,
                                            .file = entry,
                                            .size = stream.size,
                                            .seed = ++seed,
                                            .stream = stream.name,
                                            .isStreamToBeLocated = isToBeLocated},
                                           pattern, nullptr);
        if (step == Step::Replaced)
            return passed;
        passed = passed && step == Step::Done;
    }
    return passed;
}

FileOverwriting::Step FileOverwriting::overwriteContent(const Content &content, const PassPattern &pattern,
                                                        DurabilityGroups *groups)
{
    const EntryPath entry = content.entry();
    const QString path = entry.path();
    const bool isStream = !content.stream.isEmpty();
    WatchedFile &watched = m_files.watched(content.index);
    if (m_work.isStopping())
        return Step::Failed;
    platform::AlignedBuffer buffer(bufferSizeFor(content.size, m_settings.bufferSizeMB));
    if (buffer.isNull()) {
        logOutOfMemory();
        return Step::Failed;
    }
    traceFile(path, files().clearReadOnly(content.file));
    {
        const auto open = [&] {
            return files().openIn(groups ? groups->of(entry) : nullptr, entry, OpenMode::Overwrite);
        };
        const auto opened =
            openWithRetries(open, [this](std::chrono::milliseconds time) { return m_work.wait(time); });
        if (!opened && m_work.isStopping())
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
        // The first write may already change the answer.
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
    if (m_work.isStopping())
        return Step::Failed;
    if (groups && groups->add(entry, {content.index, content.size}))
        return Step::Done;
    const bool isGood = !isToBeReadBack(pattern) || verifyFile(content.index, entry, content.size, pattern);
    return isGood ? Step::Done : Step::Failed;
}

// A content that is only in a cloud is none that could be erased here.
bool FileOverwriting::failToOpen(const QString &path, const Status &status)
{
    return m_files.fail(status.code == platform::FileOffline
                            ? tr("文件内容不在本机，仅保存在云端，无法擦除: %1")
                            : tr("无法打开文件(WinAPI): %1"),
                        path, status);
}

// Once, whatever number of files it is about.
void FileOverwriting::noteProtection(quint32 code)
{
    const QString hint = ProtectedFolders::hint(code);
    if (!hint.isEmpty() && !m_isProtectionNoted.exchange(true))
        m_work.note(hint, RunningJob::Warning);
}

bool FileOverwriting::isToBeReadBack(const PassPattern &pattern) const
{
    return pattern.verify && m_settings.readsBack;
}

bool FileOverwriting::readBackJob(const DurabilityGroups::Member &member, const PassPattern &pattern) noexcept
{
    try {
        if (!m_work.mayGoOn())
            return true;
        const auto place = m_files.entry(member.file);
        if (place)
            return verifyFile(member.file, place.value(), member.size, pattern);
        traceFile(m_files.pathOf(member.file), place.status());
    } catch (const std::bad_alloc &) {
        logOutOfMemory();
    }
    return false;
}

// True also when a stop ended the loop between two chunks.
bool FileOverwriting::writeChunks(platform::FileHandle &file, const Content &content,
                                  const PassPattern &pattern, platform::AlignedBuffer &buffer)
{
    PatternGenerator random(content.seed);
    qint64 offset = 0;
    while (offset < content.size && !m_work.isStopping()) {
        if (!m_work.mayGoOn())
            return false;
        const qint64 chunk = std::min(buffer.size(), content.size - offset);
        if (offset == 0 || !isConstant(pattern))
            m_work.fillFrom(random, buffer.data(), chunk, pattern);
        const Status found = file.seek(offset);
        if (!found)
            return m_files.fail(tr("SetFilePointerEx 失败: %1"), content.entry().path(), found);
        const Status written = writeAll(file, buffer.data(), chunk);
        if (!written)
            return m_files.fail(tr("WriteFile 失败: %1"), content.entry().path(), written);
        m_work.noteWritten(chunk);
        offset += chunk;
        if (!m_isLate && content.stream.isEmpty())
            m_progress.add(chunk);
    }
    return true;
}

bool FileOverwriting::verifyFile(std::size_t index, const EntryPath &entry, qint64 size,
                                 const PassPattern &pattern)
{
    const auto matches = [this, &pattern](const std::byte *data, qint64 length) {
        return m_work.matches(data, length, pattern);
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
        m_work.note(tr("验证失败: %1").arg(displayText(entry.path())), RunningJob::Error);
        return false;
    case FileSampling::Outcome::Unreadable:
        break;
    }
    return false;
}

// What could not be found out counts as elsewhere.
void FileOverwriting::notePlace(std::size_t index, const QString &path,
                                const platform::Result<ContentPlace> &place)
{
    traceFile(path, place.status());
    if (place && !place.value().elsewhere)
        return;
    if (m_files.watched(index).isToBeCountedElsewhere())
        ++m_elsewhereCount;
    m_work.noteShortfall({ShortfallKind::ContentElsewhere, path, place ? place.value().bytes : -1});
}

void FileOverwriting::logOutOfMemory() noexcept
{
    try {
        m_work.note(tr("内存分配失败"), RunningJob::Error);
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch)
        // Without memory nothing can be said, in no other way either. The file counts as failed, and the end
        // of its pass tells that.
    }
}
