// How the files of a job receive their passes.
#include "engine/filewipeworker.h"

#include "engine/filetrace.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "platform/alignedbuffer.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QDebug>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

using platform::EntryPath;
using platform::FileKind;
using platform::OpenMode;
using platform::Status;

namespace {

constexpr qint64 MiB = 1024LL * 1024;
constexpr qint64 SmallestBuffer = 256LL * 1024;
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

bool FileWipeWorker::overwriteAll()
{
    m_failedCount = 0;
    m_processedCount = 0;
    m_bytesBeforePass = 0;
    // A total of 0 proves that there is nothing to overwrite only when every size was told.
    if (m_singlePassTotal <= 0 && m_isTotalCertain) {
        log(tr("所有文件为空，跳过数据覆写"));
        return !isStopRequested();
    }
    noteReadBack(true);
    const QList<PassPattern> passes = task().method().passes;
    for (const PassPattern &pattern : passes) {
        if (isStopRequested())
            return false;
        ++m_currentPass;
        emit passChanged(m_currentPass, m_totalPasses);
        m_progress.beginPass(m_currentPass, m_totalPasses, m_singlePassTotal);
        const bool passed = overwritePass(pattern, 0);
        m_bytesBeforePass += m_progress.bytesOfPass();
        if (!passed)
            return failPass(m_currentPass);
    }
    return !isStopRequested();
}

bool FileWipeWorker::overwriteLate()
{
    for (int round = 0; round < MostRounds; ++round) {
        m_overwrittenCount = m_list.files.size();
        const std::size_t first = addLate();
        if (first == m_list.files.size())
            break;
        if (!overwriteFrom(first))
            return false;
        m_overwrittenCount = m_list.files.size();
    }
    return !isStopRequested();
}

bool FileWipeWorker::overwriteFrom(std::size_t first)
{
    noteReadBack(true);
    m_isLate = true;
    int pass = 0;
    const QList<PassPattern> passes = task().method().passes;
    for (const PassPattern &pattern : passes) {
        ++pass;
        if (isStopRequested())
            return false;
        if (!overwritePass(pattern, first))
            return failPass(pass);
    }
    return !isStopRequested();
}

// One file on this thread.
bool FileWipeWorker::overwriteAgain(std::size_t index)
{
    noteReadBack(true);
    m_isLate = true;
    const QList<PassPattern> passes = task().method().passes;
    return std::ranges::all_of(passes, [this, index](const PassPattern &pattern) {
        return overwriteJob(index, pattern, drawSeed(), nullptr);
    });
}

bool FileWipeWorker::failPass(int pass)
{
    log(tr("第 %1/%2 遍覆写出现失败文件，失败数: %3").arg(pass).arg(m_totalPasses).arg(m_failedCount), Error);
    return false;
}

bool FileWipeWorker::overwritePass(const PassPattern &pattern, std::size_t first)
{
    DurabilityGroups groups;
    const bool isWritten = runBatches(m_list.files.size() - first, batchSize(), [&](std::size_t i) {
        return [this, index = first + i, &pattern, &groups, seed = drawSeed()] {
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

std::vector<DurabilityGroups::Member> FileWipeWorker::settle(DurabilityGroups &groups)
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
void FileWipeWorker::tellLost(const std::vector<DurabilityGroups::Member> &members, const Status &status)
{
    for (const DurabilityGroups::Member &member : members) {
        failFile(tr("FlushFileBuffers 失败: %1"), pathOf(member.file), status);
        ++m_failedCount;
    }
}

// Only now: before, the drive could have answered out of its cache.
bool FileWipeWorker::readBack(const std::vector<DurabilityGroups::Member> &members,
                              const PassPattern &pattern)
{
    // Reading takes no longer than starting a batch, so that they are large here.
    constexpr std::size_t Larger = 32;
    return runBatches(members.size(), Larger * batchSize(), [&](std::size_t i) {
        return [this, &member = members[i], &pattern] { return readBackJob(member, pattern); };
    });
}

std::size_t FileWipeWorker::batchSize() const
{
    return static_cast<std::size_t>(std::max(2 * m_pool.threadCount(), 1));
}

bool FileWipeWorker::runBatches(std::size_t count, std::size_t atOnce,
                                const std::function<FilePool::Job(std::size_t)> &jobOf)
{
    bool passed = true;
    for (std::size_t first = 0; first < count && !isStopRequested(); first += atOnce) {
        if (!checkPauseStop())
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

bool FileWipeWorker::overwriteJob(std::size_t index, const PassPattern &pattern, quint32 seed,
                                  DurabilityGroups *groups) noexcept
{
    try {
        return overwriteExisting(index, pattern, seed, groups);
    } catch (const std::bad_alloc &) {
        logOutOfMemory();
    }
    return false;
}

bool FileWipeWorker::overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed,
                                       DurabilityGroups *groups)
{
    const auto place = entry(index);
    const auto info = place ? files().info(place.value()) : place.status();
    if (!info && !isAbsent(info.status()))
        return failFile(tr("无法打开文件(WinAPI): %1"), pathOf(index), info.status());
    if (!info) {
        // Not a failure, but nobody knows where its content is now.
        watched(index).vanish();
        return true;
    }
    watched(index).find(info.value());
    // What took its place was not chosen, and where its content is now nobody knows.
    if (watched(index).isReplacedBy(info.value())) {
        noteReplaced(pathOf(index));
        return true;
    }
    if (info.value().kind != FileKind::Regular)
        return true;
    return overwriteFile(index, place.value(), info.value().size, pattern, seed, groups);
}

bool FileWipeWorker::overwriteFile(std::size_t index, const EntryPath &entry, qint64 size,
                                   const PassPattern &pattern, quint32 seed, DurabilityGroups *groups)
{
    const QString path = entry.path();
    if (const qint64 lost = watched(index).beginPass(size); lost > 0)
        task().noteShortfall({ShortfallKind::EntryVanished, path, lost});
    if (size < 1)
        return true;
    if (isStopRequested())
        return false;
    platform::AlignedBuffer buffer(bufferSizeFor(size, task().bufferSizeMB()));
    if (buffer.isNull()) {
        logOutOfMemory();
        return false;
    }
    traceFile(path, files().clearReadOnly(entry));
    {
        const auto opened = files().openIn(groups ? groups->of(entry) : nullptr, entry, OpenMode::Overwrite);
        if (!opened)
            return failFile(tr("无法打开文件(WinAPI): %1"), path, opened.status());
        platform::FileHandle &file = *opened.value();
        if (watched(index).isReplacedBy(file)) {
            noteReplaced(path);
            return true;
        }
        // The first write may already change the answer.
        if (watched(index).isToBeLocated())
            notePlace(path, file.contentPlace());
        if (!writeChunks(file, path, size, pattern, seed, buffer))
            return false;
        const Status flushed = file.flush();
        if (!flushed)
            return failFile(tr("FlushFileBuffers 失败: %1"), path, flushed);
    }
    if (isStopRequested())
        return false;
    if (groups && groups->add(entry, {index, size}))
        return true;
    return !isToBeReadBack(pattern) || verifyFile(index, entry, size, pattern);
}

bool FileWipeWorker::isToBeReadBack(const PassPattern &pattern) const
{
    return pattern.verify && task().verifyAfterWipe();
}

bool FileWipeWorker::readBackJob(const DurabilityGroups::Member &member, const PassPattern &pattern) noexcept
{
    try {
        if (!checkPauseStop())
            return true;
        const auto place = entry(member.file);
        if (place)
            return verifyFile(member.file, place.value(), member.size, pattern);
        traceFile(pathOf(member.file), place.status());
    } catch (const std::bad_alloc &) {
        logOutOfMemory();
    }
    return false;
}

// True also when a stop ended the loop between two chunks.
bool FileWipeWorker::writeChunks(platform::FileHandle &file, const QString &path, qint64 size,
                                 const PassPattern &pattern, quint32 seed, platform::AlignedBuffer &buffer)
{
    PatternGenerator random(seed);
    qint64 offset = 0;
    while (offset < size && !isStopRequested()) {
        if (!checkPauseStop())
            return false;
        const qint64 chunk = std::min(buffer.size(), size - offset);
        if (offset == 0 || !isConstant(pattern))
            fillBuffer(buffer.data(), chunk, pattern, random);
        const Status found = file.seek(offset);
        if (!found)
            return failFile(tr("SetFilePointerEx 失败: %1"), path, found);
        const Status written = writeAll(file, buffer.data(), chunk);
        if (!written)
            return failFile(tr("WriteFile 失败: %1"), path, written);
        task().noteWritten(chunk);
        offset += chunk;
        if (!m_isLate)
            m_progress.add(chunk);
    }
    return true;
}

bool FileWipeWorker::verifyFile(std::size_t index, const EntryPath &entry, qint64 size,
                                const PassPattern &pattern)
{
    const auto matches = [&pattern](const std::byte *data, qint64 length) {
        return verifyBuffer(data, length, pattern);
    };
    const auto isAnother = [this, index](platform::FileHandle &opened) {
        return watched(index).isReplacedBy(opened);
    };
    switch (m_sampling.check(entry, size, matches, isAnother)) {
    case FileSampling::Outcome::Passed:
        return true;
    case FileSampling::Outcome::Replaced:
        noteReplaced(entry.path());
        return true;
    case FileSampling::Outcome::Different:
        log(tr("验证失败: %1").arg(displayText(entry.path())), Error);
        return false;
    case FileSampling::Outcome::Unreadable:
        break;
    }
    return false;
}

// What could not be found out counts as elsewhere.
void FileWipeWorker::notePlace(const QString &path, const platform::Result<platform::ContentPlace> &place)
{
    traceFile(path, place.status());
    if (place && !place.value().elsewhere)
        return;
    ++m_elsewhereCount;
    task().noteShortfall({ShortfallKind::ContentElsewhere, path, place ? place.value().bytes : -1});
}

// One line for all of them: there may be as many as files.
void FileWipeWorker::logContentElsewhere()
{
    if (m_elsewhereCount > 0)
        log(tr("%1 个文件的内容可能还保存在别处，未被覆写").arg(m_elsewhereCount.load()), Warning);
}

void FileWipeWorker::logOutOfMemory() noexcept
{
    try {
        log(tr("内存分配失败"), Error);
    } catch (const std::bad_alloc &) { // NOLINT(bugprone-empty-catch)
        // Without memory nothing can be said, in no other way either. The file counts as failed, and the end
        // of its pass tells that.
    }
}

// Says why a file failed; always false.
bool FileWipeWorker::failFile(const QString &message, const QString &path, const Status &status)
{
    log(message.arg(displayText(path)), Error);
    traceFile(path, status);
    return false;
}
