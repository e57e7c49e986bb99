#include "engine/fileoverwriting.h"

#include "engine/filetrace.h"
#include "engine/jobfiles.h"
#include "engine/runningjob.h"
#include "engine/watchedfile.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

using platform::EntryPath;
using platform::FileKind;
using platform::Status;

namespace {

platform::Files &files()
{
    return platform::Platform::current().files();
}

} // namespace

FileOverwriting::FileOverwriting(RunningJob &job, JobFiles &files, const Settings &settings, QObject *parent)
    : m_job(job)
    , m_files(files)
    , m_progress([&job](qint64 done, qint64 total) { job.progress(done, total); })
    , m_contents(job, files, {.bufferSizeMB = settings.bufferSizeMB, .readsBack = settings.readsBack})
    , m_pool(settings.threads, parent)
{}

bool FileOverwriting::overwriteOne(std::size_t index, const PassPattern &pattern)
{
    return overwriteJob(index, pattern, m_job.drawSeed(), nullptr);
}

bool FileOverwriting::overwriteFrom(std::size_t first, const PassPattern &pattern)
{
    DurabilityGroups groups;
    const bool isWritten = runBatches(m_files.count() - first, batchSize(), [&](std::size_t i) {
        return [this, index = first + i, &pattern, &groups, seed = m_job.drawSeed()] {
            return overwriteJob(index, pattern, seed, &groups);
        };
    });
    const int failures = m_failedCount;
    // Also after a stop, since files that were written count as written.
    const std::vector<DurabilityGroups::Member> settled = settle(groups);
    const bool isSettled = m_failedCount == failures;
    const bool isReadBack = !m_contents.isToBeReadBack(pattern) || readBack(settled, pattern);
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

// The flush of a group does not say which of its files reached the medium, so each of them has failed.
void FileOverwriting::tellLost(const std::vector<DurabilityGroups::Member> &members, const Status &status)
{
    for (const DurabilityGroups::Member &member : members) {
        m_files.fail(tr("FlushFileBuffers 失败: %1"), m_files.pathOf(member.file), status);
        ++m_failedCount;
    }
}

// After the flush of the group. Before it, the drive could have answered from its cache.
bool FileOverwriting::readBack(const std::vector<DurabilityGroups::Member> &members,
                               const PassPattern &pattern)
{
    // Reading samples is as quick as starting a batch, so the batches are large here.
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
    for (std::size_t first = 0; first < count && !m_job.isStopping(); first += atOnce) {
        if (!m_job.mayGoOn())
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
        m_contents.noteOutOfMemory();
    }
    return false;
}

bool FileOverwriting::overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed,
                                        DurabilityGroups *groups)
{
    const auto place = m_files.entry(index);
    const auto info = place ? files().info(place.value()) : place.status();
    if (!info && !info.status().isAbsent())
        return m_contents.failToOpen(m_files.pathOf(index), info.status());
    if (!info) {
        // The name is gone, which is no failure, but its content may still be somewhere.
        m_files.watched(index).vanish();
        return true;
    }
    m_files.watched(index).find(info.value());
    // The user did not choose the file that has the name now. The content of the chosen one may still be
    // somewhere.
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
        m_job.noteShortfall({ShortfallKind::EntryVanished, entry.path(), lost});
    Step step = Step::Done;
    if (size >= 1)
        step = m_contents.overwrite({.index = index,
                                     .file = entry,
                                     .size = size,
                                     .seed = seed,
                                     .progress = m_isLate ? nullptr : &m_progress},
                                    pattern, groups);
    return step == Step::Done ? overwriteStreams(index, entry, pattern, seed) : step != Step::Failed;
}

// A stream may hold secrets as its file does. A stream that cannot be opened is deleted with its file, and
// the outcome names it.
bool FileOverwriting::overwriteStreams(std::size_t index, const EntryPath &entry, const PassPattern &pattern,
                                       quint32 seed)
{
    const auto streams = files().namedStreams(entry);
    if (streams.status().isAbsent() || (streams && streams.value().isEmpty()))
        return true;
    const bool isToBeLocated = m_files.watched(index).areStreamsToBeLocated();
    if (!streams && isToBeLocated)
        m_contents.notePlace(index, entry.path(), streams.status());
    bool passed = true;
    for (const platform::NamedStream &stream : streams.valueOr({})) {
        if (stream.size < 1)
            continue;
        const Step step = m_contents.overwrite({.index = index,
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

bool FileOverwriting::readBackJob(const DurabilityGroups::Member &member, const PassPattern &pattern) noexcept
{
    try {
        if (!m_job.mayGoOn())
            return true;
        const auto place = m_files.entry(member.file);
        if (place)
            return m_contents.verify(member.file, place.value(), member.size, pattern);
        traceFile(m_files.pathOf(member.file), place.status());
    } catch (const std::bad_alloc &) {
        m_contents.noteOutOfMemory();
    }
    return false;
}
