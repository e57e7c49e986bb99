#include "engine/freespacefill.h"

#include "engine/failurewords.h"
#include "engine/fillfolder.h"
#include "engine/foreseeable.h"
#include "engine/volumespace.h"
#include "model/formatsize.h"
#include "model/units.h"
#include "platform/platform.h"
#include "platform/session.h"

#include <algorithm>

namespace {

constexpr qint64 Reserve = 100 * MiB;
// The running system writes to its own volume all the time.
constexpr qint64 SystemReserve = 1 * GiB;
// Every supported file system takes files of this size, FAT included.
constexpr qint64 FillFileBytes = 2 * GiB;
// Tolerance for space that other programs free meanwhile, and for metadata of the file system.
constexpr qint64 SmallRoom = 1 * MiB;

// Whether the error ends only the file ("no room") and not the pass ("no device").
bool endsFileOnly(quint32 code)
{
    return code == platform::DiskFull || code == platform::FileTooLarge;
}

} // namespace

FreeSpaceFill::FreeSpaceFill(RunningJob &job, FillFolder &folder, VolumeSpace &space, const Volume &volume)
    : m_job(job)
    , m_folder(folder)
    , m_space(space)
    , m_volume(volume)
    , m_chunks(
          [&job](std::byte *data, qint64 size, const PassPattern &pattern) { job.fill(data, size, pattern); })
{}

bool FreeSpaceFill::reclaim()
{
    m_filled = 0;
    if (!m_folder.hasFiles())
        return true;
    const auto before = m_folder.freeBytes();
    const qint64 removed = m_folder.removeFiles();
    // This pass does not reach the space of files that stay.
    if (const qint64 left = m_folder.bytesLeft(); left > 0)
        m_job.noteShortfall({ShortfallKind::RoomLeft, m_volume.root, left});
    if (!before) {
        m_space.noteGone(before.status());
        return false;
    }
    // A compressed file takes less space than its length.
    const qint64 taken = std::min(removed, m_freeBefore - before.value());
    return m_space.waitFor([this] { return m_folder.freeBytes(); }, before.value(), taken);
}

bool FreeSpaceFill::write(const PassPattern &pattern)
{
    m_filled = 0;
    m_pass = {};
    if (!m_chunks.beginPass(pattern, m_volume.chunkLimit)) {
        m_job.reportError(tr("内存分配失败"));
        return false;
    }
    m_pass.reserve = noteReserve();
    if (!m_job.isStopping() && !writeFiles())
        return false;
    m_job.note(tr("已写入: %1").arg(formatSize(m_pass.written)));
    return true;
}

qint64 FreeSpaceFill::reserveFor(const QString &root)
{
    return platform::Platform::current().session().holdsSystemFiles(root) ? SystemReserve : Reserve;
}

qint64 FreeSpaceFill::noteReserve()
{
    const qint64 reserve = reserveFor(m_volume.root);
    if (reserve == SystemReserve)
        m_job.note(tr("检测到系统分区，保留 1 GB 安全空间"));
    m_job.noteShortfall(keptReserve(m_volume.root, m_volume.freeAtStart, reserve));
    return reserve;
}

bool FreeSpaceFill::writeFiles()
{
    for (int index = 0;; ++index) {
        if (!m_job.mayGoOn())
            return false;
        // The folder is asked, not the root. After an unmount the root belongs to another volume, which must
        // not be filled.
        const auto free = m_folder.freeBytes();
        if (!free || free.value() <= m_pass.reserve) {
            m_job.note(tr("空闲空间已填满"));
            if (!free)
                m_space.noteGone(free.status());
            return free.ok();
        }
        if (index == 0)
            m_freeBefore = free.value();

        qint64 bytesInFile = 0;
        {
            const auto file = m_folder.createFile();
            if (!file)
                return endWithoutFile(file.status());
            if (!writeFile(*file.value(), bytesInFile))
                return false;
        }
        if (m_job.isStopping())
            return true;
        if (bytesInFile < m_volume.chunkLimit)
            return noteRoomLeft();
    }
}

// The room may be withheld by a quota, or reserved for the administrator.
bool FreeSpaceFill::noteRoomLeft()
{
    const auto free = m_folder.freeBytes();
    // A volume that is gone refuses new files too.
    if (!free) {
        m_space.noteGone(free.status());
        return false;
    }
    const qint64 room = free.value() - m_pass.reserve;
    if (room >= SmallRoom) {
        m_job.note(tr("警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满").arg(formatSize(room)),
                   RunningJob::Warning);
        m_job.noteShortfall({ShortfallKind::RoomLeft, m_volume.root, room});
    }
    if (room > 0 && m_pass.written == 0)
        m_job.noteShortfall({ShortfallKind::NothingWritten, m_volume.root, room});
    return true;
}

bool FreeSpaceFill::endWithoutFile(const platform::Status &status)
{
    m_job.diagnose(status);
    const QString reason = status.systemText();
    m_job.note(tr("无法创建填充文件: %1").arg(reason.isEmpty() ? tr("错误码: %1").arg(status.code) : reason),
               RunningJob::Warning);
    const auto free = m_folder.freeBytes();
    // A volume that does not even report its free space is gone, whatever error the file returned.
    if (VolumeSpace::isGone(status.code) || !free) {
        m_space.noteGone(VolumeSpace::isGone(status.code) ? status : free.status());
        return false;
    }
    // There was room when the file was created.
    const ShortfallKind kind = m_pass.written == 0 ? ShortfallKind::NothingWritten : ShortfallKind::RoomLeft;
    m_job.noteShortfall({kind, m_volume.root, std::max<qint64>(free.value() - m_pass.reserve, 0)});
    return true;
}

bool FreeSpaceFill::writeFile(platform::FileHandle &file, qint64 &bytesInFile)
{
    while (bytesInFile < FillFileBytes && !m_job.isStopping()) {
        if (!m_job.mayGoOn())
            return false;
        const auto free = m_folder.freeBytes();
        if (!free) {
            m_space.noteGone(free.status());
            return false;
        }
        if (m_pass.lastFree >= 0)
            m_pass.givenBack += std::max<qint64>(free.value() - m_pass.lastFree, 0);
        m_pass.lastFree = free.value();
        const qint64 room = free.value() - m_pass.reserve;
        const qint64 chunk = std::min({m_volume.chunkLimit, FillFileBytes - bytesInFile, room});
        if (chunk < 1)
            break;
        const auto written = writeChunk(file, chunk, std::min(m_volume.chunkLimit, room - chunk));
        if (!written) {
            if (endsFileOnly(written.code()))
                break;
            m_job.note(tr("写入错误，位置: %1，错误码: %2")
                           .arg(QString::number(m_pass.written), QString::number(written.code())),
                       RunningJob::Error);
            if (const QString words = FailureWords::of(written.code()); !words.isEmpty())
                m_job.note(words, RunningJob::Error);
            return false;
        }
        if (written.value() < 1)
            break;
        m_job.noteWritten(written.value());
        bytesInFile += written.value();
        m_folder.setBytesOfLast(bytesInFile);
        m_pass.written += written.value();
        if (!countFilled())
            return false;
        m_job.progress(m_pass.written, m_volume.freeAtStart);
    }
    return true;
}

platform::Result<qint64> FreeSpaceFill::writeChunk(platform::FileHandle &file, qint64 size, qint64 nextSize)
{
    const std::byte *data = m_chunks.take(size);
    m_chunks.prepare(nextSize);
    const auto written = file.write(data, size);
    if (!written) {
        m_job.diagnose(written.status());
        return written;
    }
    // A fill file that is deleted from the cache before a flush overwrites nothing.
    if (const platform::Status flushed = file.flush(); !flushed) {
        m_job.diagnose(flushed);
        return flushed;
    }
    return written;
}

// A file system that compresses, or stores zeros as holes, accepts any amount without using free space.
bool FreeSpaceFill::countFilled()
{
    if (m_pass.written > 2 * (m_volume.freeAtStart + m_pass.givenBack) + 2 * GiB) {
        m_filled = 0;
        m_job.note(tr("空闲空间没有减少，文件系统可能压缩数据"), RunningJob::Error);
        return false;
    }
    m_filled = m_pass.written;
    return true;
}
