#include "engine/diskwipeworker.h"

#include "model/formatsize.h"
#include "model/wipetask.h"

#include <QRandomGenerator>

#include <algorithm>

namespace {
constexpr qint64 MiB = 1048576;
}

bool DiskWipeWorker::writePass(const PassPattern &pattern)
{
    if (!m_chunks->beginPass(pattern, bufferSize())) {
        emit errorOccurred(tr("内存分配失败"));
        return false;
    }
    QList<qint64> covered(std::max<qsizetype>(std::ssize(m_volumes), 1), 0);
    const bool written = m_volumes.empty() ? writeDrive(covered.first()) : writeVolumes(covered);
    m_coverage.addPass(covered);
    if (!written)
        return false;
    if (pattern.verify && task().verifyAfterWipe() && !isStopRequested())
        return verifyPass(pattern);
    return true;
}

bool DiskWipeWorker::writeDrive(qint64 &covered)
{
    if (!m_drive) {
        note(tr("错误: 没有可用的磁盘或卷句柄"), Error);
        return false;
    }
    note(tr("通过磁盘句柄进行擦除..."));
    qint64 offset = 0;
    const bool written = writeDriveChunks(offset);
    // Also after a failure or a stop: what the report counts is on the medium.
    const bool flushed = flushDevice(*m_drive);
    covered = flushed ? std::min(offset, m_diskSize) : 0;
    return written && flushed;
}

bool DiskWipeWorker::writeDriveChunks(qint64 &offset)
{
    qint64 remaining = m_diskSize;
    while (remaining > 0) {
        if (isStopRequested())
            return true;
        if (!checkPauseStop())
            return false;
        const qint64 chunk = chunkSize(remaining);
        const std::byte *data = m_chunks->take(chunk);
        m_chunks->prepare(chunkSize(remaining - chunk));
        const platform::Status sought = m_drive->seek(offset);
        if (!sought) {
            note(tr("SetFilePointerEx 失败，错误码: %1").arg(sought.code), Error);
            diagnose(sought);
            return false;
        }
        const platform::Result<qint64> written = m_drive->write(data, chunk);
        if (written.valueOr(0) <= 0) {
            // A drive that takes nothing before its end would keep the loop here for ever.
            const platform::Status failure =
                written ? platform::Status{platform::SectorNotFound, 0, "write without progress"}
                        : written.status();
            note(tr("写入错误，位置: %1，错误码: %2").arg(offset).arg(failure.code), Error);
            diagnose(failure);
            return false;
        }
        offset += written.value();
        remaining -= written.value();
        updateProgress(offset, m_diskSize);
    }
    return true;
}

bool DiskWipeWorker::writeVolumes(QList<qint64> &covered)
{
    note(tr("通过卷句柄进行擦除..."));
    qint64 total = 0;
    for (qsizetype i = 0; i < covered.size() && !isStopRequested(); ++i) {
        if (!writeVolume(i, total, covered[i]))
            return false;
    }
    return true;
}

bool DiskWipeWorker::writeVolume(qsizetype index, qint64 &total, qint64 &covered)
{
    HeldVolume &held = m_volumes[static_cast<std::size_t>(index)];
    const auto count = static_cast<qint64>(m_volumes.size());
    const platform::Result<qint64> length = held.device->length();
    const qint64 size = length.valueOr(m_diskSize / count);
    if (!length)
        note(tr("使用估算卷大小: %1").arg(formatSize(size)));
    note(tr("正在擦除卷 %1/%2，大小: %3").arg(index + 1).arg(count).arg(formatSize(size)));
    const platform::Status sought = held.device->seek(0);
    if (!sought) {
        note(tr("SetFilePointerEx 失败，错误码: %1").arg(sought.code), Error);
        diagnose(sought);
    }

    qint64 position = 0;
    const VolumeEnd end = writeVolumeChunks(*held.device, size, position, total);
    const bool flushed = flushDevice(*held.device);
    // Data that was written from an unknown place on counts for nothing.
    covered = flushed && sought ? std::min(position, size) : 0;
    held.readable = length ? size : position;
    // Less than a sector is what rounding to whole sectors leaves.
    const bool ended = end == VolumeEnd::Complete || end == VolumeEnd::Boundary;
    if (flushed && ended && length && size - covered >= m_sectorSize)
        note(tr("卷 %1 有 %2 未被覆写").arg(QString::number(index + 1), formatSize(size - covered)), Warning);
    note(tr("卷 %1 擦除完成，已写入: %2").arg(QString::number(index + 1), formatSize(position)));
    return end != VolumeEnd::Failed && flushed;
}

DiskWipeWorker::VolumeEnd DiskWipeWorker::writeVolumeChunks(platform::VolumeDevice &volume, qint64 size,
                                                            qint64 &position, qint64 &total)
{
    qint64 remaining = size;
    while (remaining > 0) {
        if (isStopRequested())
            return VolumeEnd::Stopped;
        if (!checkPauseStop())
            return VolumeEnd::Failed;
        const qint64 chunk = chunkSize(remaining);
        const std::byte *data = m_chunks->take(chunk);
        m_chunks->prepare(chunkSize(remaining - chunk));
        const platform::Result<qint64> written = volume.write(data, chunk);
        if (!written)
            return endOfVolume(written.status(), position);
        if (written.value() <= 0) {
            note(tr("写入字节数为0，到达卷末尾"));
            return VolumeEnd::Boundary;
        }
        position += written.value();
        remaining -= written.value();
        total += written.value();
        updateProgress(total, m_diskSize);
    }
    return VolumeEnd::Complete;
}

DiskWipeWorker::VolumeEnd DiskWipeWorker::endOfVolume(const platform::Status &failure, qint64 position)
{
    diagnose(failure);
    switch (failure.code) {
    case platform::SectorNotFound:
    case platform::WriteFault:
    case platform::InvalidParameter:
        note(tr("到达卷边界，继续下一个卷..."));
        return VolumeEnd::Boundary;
    default:
        break;
    }
    note(tr("写入错误，位置: %1，错误码: %2").arg(position).arg(failure.code), Error);
    switch (failure.code) {
    case platform::AccessDenied:
        note(tr("错误: 访问被拒绝"), Error);
        break;
    case platform::WriteProtect:
        note(tr("错误: 磁盘写保护"), Error);
        break;
    case platform::NotReady:
        note(tr("错误: 设备未就绪"), Error);
        break;
    case platform::SharingViolation:
        note(tr("错误: 磁盘被占用"), Error);
        break;
    case platform::LockViolation:
        note(tr("错误: 锁定冲突"), Error);
        break;
    case platform::IoDevice:
        note(tr("错误: I/O 设备错误"), Error);
        break;
    default:
        break;
    }
    return VolumeEnd::Failed;
}

bool DiskWipeWorker::flushDevice(platform::RawDevice &device)
{
    const platform::Status flushed = device.flush();
    if (!flushed) {
        note(tr("刷新写入失败，错误码: %1").arg(flushed.code), Error);
        diagnose(flushed);
    }
    return flushed.ok();
}

bool DiskWipeWorker::verifyPass(const PassPattern &pattern)
{
    note(tr("正在验证..."));
    const bool throughVolume = !m_volumes.empty();
    platform::RawDevice &device = throughVolume ? *m_volumes.front().device : *m_drive;
    // An encrypted volume may have larger sectors than its drive, and takes no part of one.
    const qint32 sampleSize =
        throughVolume ? std::max(m_sectorSize, device.bytesPerSector().valueOr(0)) : m_sectorSize;
    if (!m_verification.beginPass(sampleSize)) {
        emit errorOccurred(tr("内存分配失败"));
        return false;
    }
    const qint64 span = throughVolume ? m_diskSize / std::ssize(m_volumes) : m_diskSize;
    const qint64 length = throughVolume ? m_volumes.front().readable : m_diskSize;

    const int samples = m_sectorCount > 0 ? task().verifySampleSize() : 0;
    for (int i = 0; i < samples; ++i) {
        if (isStopRequested())
            return true;
        const quint64 sector = QRandomGenerator64::global()->bounded(m_sectorCount);
        const qint64 offset = static_cast<qint64>(sector) * m_sectorSize;
        const qint64 reduced = DiskVerification::reducedOffset(offset, span, length, sampleSize);
        const std::byte *data = m_verification.read(device, reduced, pattern);
        if (!data || !verifyBuffer(data, sampleSize, pattern)) {
            note(tr("验证失败，位置: %1").arg(offset), Error);
            return false;
        }
    }
    note(tr("验证通过"));
    return true;
}

qint64 DiskWipeWorker::bufferSize() const
{
    const qint64 size = task().bufferSizeMB() * MiB;
    return std::max<qint64>(size - size % m_sectorSize, m_sectorSize);
}

qint64 DiskWipeWorker::chunkSize(qint64 remaining) const
{
    if (remaining <= 0)
        return 0;
    const qint64 chunk = std::min(remaining, bufferSize());
    return std::max<qint64>(chunk - chunk % m_sectorSize, m_sectorSize);
}
