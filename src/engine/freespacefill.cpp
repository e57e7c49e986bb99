#include "engine/freespacewipeworker.h"

#include "engine/chunkpipeline.h"
#include "engine/fillfolder.h"
#include "engine/foreseeable.h"
#include "model/formatsize.h"
#include "model/wipetask.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "platform/session.h"

#include <QDeadlineTimer>
#include <QDebug>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MiB = 1'048'576;
constexpr qint64 GiB = 1'073'741'824;

constexpr qint64 Reserve = 100 * MiB;
// The running system writes to its own volume all the time.
constexpr qint64 SystemReserve = 1 * GiB;
// Every file system that is filled here takes files of this size, FAT included.
constexpr qint64 FillFileBytes = 2 * GiB;

// "No room", as against "no device".
bool endsFileOnly(quint32 code)
{
    return code == platform::DiskFull || code == platform::FileTooLarge;
}

} // namespace

platform::Result<qint64> FreeSpaceWipeWorker::freeBytes(const QString &path)
{
    const auto space = platform::Platform::current().folders().space(path);
    if (!space)
        return space.status();
    return space.value().freeBytes;
}

bool FreeSpaceWipeWorker::isVolumeGone(quint32 code)
{
    switch (code) {
    case platform::FileNotFound: // under the mount point of a volume that was unmounted
    case platform::PathNotFound:
    case platform::WriteProtect: // what a file system makes of itself after an error
    case platform::NotReady:
    case platform::IoDevice:
        return true;
    default:
        return false;
    }
}

void FreeSpaceWipeWorker::logVolumeGone(const platform::Status &status)
{
    qDebug().noquote() << "[FreeSpaceWipe] volume gone" << m_root << status.diagnostic();
    log(tr("卷不再可用，错误码: %1").arg(status.code), Error);
}

// Where no failed pass tells of it; always false.
bool FreeSpaceWipeWorker::failVolumeGone(const platform::Status &status)
{
    logVolumeGone(status);
    emit errorOccurred(tr("卷不再可用，错误码: %1").arg(status.code));
    return false;
}

// Deletes the files of the pass before and makes sure that their space can be filled again.
bool FreeSpaceWipeWorker::reclaimSpace()
{
    if (m_fillFiles.isEmpty())
        return true;
    const auto before = freeBytes(m_temporaryFolder);
    const qint64 removed = removeFillFiles();
    if (!before) {
        logVolumeGone(before.status());
        return false;
    }
    // A file that is stored compressed takes less than its length.
    const qint64 taken = std::min(removed, m_freeBeforePass - before.value());
    return waitForSpace(m_temporaryFolder, before.value(), taken);
}

// Some file systems give the space of deleted files back later (XFS in the background, Btrfs with its next
// commit): a pass that began at once would find the volume still full, and end as done with nothing written.
bool FreeSpaceWipeWorker::waitForSpace(const QString &path, qint64 before, qint64 released)
{
    const qint64 takenByOthers = std::max(released / 16, std::min(released / 2, 64 * MiB));
    const qint64 expected = before + released - takenByOthers;
    qint64 most = before;
    QDeadlineTimer patience(m_releasePatience);
    while (released > 0) {
        const auto free = freeBytes(path);
        if (!free) {
            logVolumeGone(free.status());
            return false;
        }
        if (free.value() >= expected)
            break;
        if (free.value() > most) {
            most = free.value();
            patience = QDeadlineTimer(m_releasePatience);
        }
        if (patience.hasExpired()) {
            log(tr("已删除的填充文件没有释放空间，无法继续覆写"), Error);
            return false;
        }
        if (!waitUnlessStopped(m_releasePoll))
            break;
    }
    return true;
}

bool FreeSpaceWipeWorker::fillFreeSpace(const PassPattern &pattern, ChunkPipeline &chunks)
{
    Fill fill{.chunks = chunks, .chunkLimit = task().bufferSizeMB() * MiB};
    if (!chunks.beginPass(pattern, fill.chunkLimit)) {
        emit errorOccurred(tr("内存分配失败"));
        return false;
    }
    fill.reserve = reserveForVolume();
    task().noteShortfall(keptReserve(m_root, m_freeAtStart, fill.reserve));
    if (!isStopRequested() && !writeFillFiles(fill))
        return false;
    log(tr("已写入: %1").arg(formatSize(fill.written)));
    return true;
}

qint64 FreeSpaceWipeWorker::reserveFor(const QString &root)
{
    return platform::Platform::current().session().holdsSystemFiles(root) ? SystemReserve : Reserve;
}

qint64 FreeSpaceWipeWorker::reserveForVolume()
{
    const qint64 reserve = reserveFor(m_root);
    if (reserve == SystemReserve)
        log(tr("检测到系统分区，保留 1 GB 安全空间"));
    return reserve;
}

bool FreeSpaceWipeWorker::writeFillFiles(Fill &fill)
{
    for (int index = 0;; ++index) {
        if (!checkPauseStop())
            return false;
        // Asked of the folder: once the volume is unmounted its root is that of another one, which must not
        // be filled instead.
        const auto free = freeBytes(m_temporaryFolder);
        if (!free || free.value() <= fill.reserve) {
            log(tr("空闲空间已填满"));
            if (!free)
                logVolumeGone(free.status());
            return free.ok();
        }
        if (index == 0)
            m_freeBeforePass = free.value();

        const QString path = u"%1/%2"_s.arg(m_temporaryFolder, fillfolder::fileName(index));
        // Listed first, so that nothing that happens between creating it and listing it leaves it behind.
        m_fillFiles.append({path, 0});
        qint64 bytesInFile = 0;
        {
            const auto file =
                platform::Platform::current().files().open(path, platform::OpenMode::CreateFill);
            if (!file)
                return endsWithoutFile(file.status(), fill);
            if (!writeFillFile(*file.value(), fill, bytesInFile))
                return false;
        }
        if (bytesInFile < fill.chunkLimit || isStopRequested()) {
            if (!isStopRequested())
                noteRoomLeft(fill);
            return true;
        }
    }
}

// Quotas, and what a file system keeps for its administrator.
void FreeSpaceWipeWorker::noteRoomLeft(const Fill &fill)
{
    const auto free = freeBytes(m_temporaryFolder);
    const qint64 room = free.valueOr(0) - fill.reserve;
    // Less than a chunk is what file systems take for themselves on the way.
    if (room >= fill.chunkLimit) {
        log(tr("警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满").arg(formatSize(room)), Warning);
        task().noteShortfall({ShortfallKind::RoomLeft, m_root, room});
    }
    if (room > 0 && fill.written == 0)
        task().noteShortfall({ShortfallKind::NothingWritten, m_root, room});
}

bool FreeSpaceWipeWorker::endsWithoutFile(const platform::Status &status, const Fill &fill)
{
    qDebug().noquote() << "[FreeSpaceWipe] fill file" << status.diagnostic();
    const QString reason = status.systemText();
    log(tr("无法创建填充文件: %1").arg(reason.isEmpty() ? tr("错误码: %1").arg(status.code) : reason),
        Warning);
    if (isVolumeGone(status.code)) {
        logVolumeGone(status);
        return false;
    }
    // There was room when the file was to be made.
    const ShortfallKind kind = fill.written == 0 ? ShortfallKind::NothingWritten : ShortfallKind::RoomLeft;
    const auto free = freeBytes(m_temporaryFolder);
    task().noteShortfall({kind, m_root, free ? std::max<qint64>(free.value() - fill.reserve, 0) : -1});
    return true;
}

bool FreeSpaceWipeWorker::writeFillFile(platform::FileHandle &file, Fill &fill, qint64 &bytesInFile)
{
    while (bytesInFile < FillFileBytes && !isStopRequested()) {
        if (!checkPauseStop())
            return false;
        const auto free = freeBytes(m_temporaryFolder);
        if (!free) {
            logVolumeGone(free.status());
            return false;
        }
        if (fill.lastFree >= 0)
            fill.givenBack += std::max<qint64>(free.value() - fill.lastFree, 0);
        fill.lastFree = free.value();
        const qint64 room = free.value() - fill.reserve;
        const qint64 chunk = std::min({fill.chunkLimit, FillFileBytes - bytesInFile, room});
        if (chunk < 1)
            break;
        const auto written = writeChunk(file, fill, chunk, std::min(fill.chunkLimit, room - chunk));
        if (!written) {
            if (endsFileOnly(written.code()))
                break;
            log(tr("写入错误，位置: %1，错误码: %2")
                    .arg(QString::number(fill.written), QString::number(written.code())),
                Error);
            return false;
        }
        if (written.value() < 1)
            break;
        task().noteWritten(written.value());
        bytesInFile += written.value();
        m_fillFiles.last().bytes = bytesInFile;
        fill.written += written.value();
        if (!countFilled(fill))
            return false;
        updateProgress(fill.written, m_freeAtStart);
    }
    return true;
}

platform::Result<qint64> FreeSpaceWipeWorker::writeChunk(platform::FileHandle &file, const Fill &fill,
                                                         qint64 size, qint64 nextSize)
{
    const std::byte *data = fill.chunks.take(size);
    fill.chunks.prepare(nextSize);
    const auto written = file.write(data, size);
    if (!written) {
        qDebug().noquote() << "[FreeSpaceWipe] write" << written.status().diagnostic();
        return written;
    }
    // What is deleted while it is still in the cache has overwritten nothing.
    if (const platform::Status flushed = file.flush(); !flushed) {
        qDebug().noquote() << "[FreeSpaceWipe] flush" << flushed.diagnostic();
        return flushed;
    }
    return written;
}

// A file system that compresses, or keeps zeros as holes, takes any amount and gives up no space for it.
bool FreeSpaceWipeWorker::countFilled(const Fill &fill)
{
    if (fill.written > 2 * (m_freeAtStart + fill.givenBack) + 2 * GiB) {
        m_filledInPass = 0;
        log(tr("空闲空间没有减少，文件系统可能压缩数据"), Error);
        return false;
    }
    m_filledInPass = fill.written;
    return true;
}
