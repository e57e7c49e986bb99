#include "engine/diskpass.h"

#include "engine/failurewords.h"
#include "model/formatsize.h"
#include "model/units.h"
#include "model/wipetask.h"

#include <QRandomGenerator>

#include <algorithm>

DiskPass::DiskPass(RunningJob &job, const WipeTask &task, DiskMedium &medium)
    : m_job(job)
    , m_task(task)
    , m_medium(medium)
{}

bool DiskPass::write(const PassPattern &pattern)
{
    if (!m_chunks) {
        m_chunks.emplace([this](std::byte *data, qint64 size, const PassPattern &filled) {
            m_job.fill(data, size, filled);
        });
    }
    if (!m_chunks->beginPass(pattern, bufferSize())) {
        m_job.reportError(tr("内存分配失败"));
        return false;
    }
    m_coverage.beginPass();
    const bool written = m_medium.volumes.isEmpty() ? writeDrive() : writeVolumes();
    m_coverage.endPass();
    if (!written)
        return false;
    if (pattern.verify && m_task.verifyAfterWipe() && !m_job.isStopping())
        return verify(pattern);
    return true;
}

bool DiskPass::writeDrive()
{
    if (!m_medium.drive) {
        m_job.note(tr("错误: 没有可用的磁盘或卷句柄"), RunningJob::Error);
        return false;
    }
    m_job.note(tr("通过磁盘句柄进行擦除..."));
    qint64 offset = 0;
    const bool written = writeDriveChunks(offset);
    // Flushed after a failure or a stop too, because the report only counts bytes on the medium.
    const bool flushed = flush(*m_medium.drive);
    if (flushed)
        m_coverage.addStretch(0, std::min(offset, m_medium.size));
    return written && flushed;
}

bool DiskPass::writeDriveChunks(qint64 &offset)
{
    qint64 remaining = m_medium.size;
    while (remaining > 0) {
        if (m_job.isStopping())
            return true;
        if (!m_job.mayGoOn())
            return false;
        const qint64 chunk = chunkSize(remaining);
        const std::byte *data = m_chunks->take(chunk);
        m_chunks->prepare(chunkSize(remaining - chunk));
        const platform::Status sought = m_medium.drive->seek(offset);
        if (!sought) {
            m_job.note(tr("SetFilePointerEx 失败，错误码: %1").arg(sought.code), RunningJob::Error);
            m_job.diagnose(sought);
            return false;
        }
        m_hasBegun = true;
        const platform::Result<qint64> written = m_medium.drive->write(data, chunk);
        if (written.valueOr(0) <= 0) {
            // A drive that accepts no bytes before its end would keep the loop here for ever.
            const platform::Status failure =
                written ? platform::Status{platform::SectorNotFound, 0, "write without progress"}
                        : written.status();
            m_job.note(tr("写入错误，位置: %1，错误码: %2").arg(offset).arg(failure.code), RunningJob::Error);
            m_job.diagnose(failure);
            return false;
        }
        m_job.noteWritten(written.value());
        offset += written.value();
        remaining -= written.value();
        m_job.progress(offset, m_medium.size);
    }
    return true;
}

bool DiskPass::writeVolumes()
{
    m_job.note(tr("通过卷句柄进行擦除..."));
    qint64 total = 0;
    for (qsizetype i = 0; i < m_medium.volumes.count() && !m_job.isStopping(); ++i) {
        if (!writeVolume(i, total))
            return false;
    }
    return true;
}

bool DiskPass::writeVolume(qsizetype index, qint64 &total)
{
    HeldVolumes::Volume &held = m_medium.volumes.at(index);
    const qsizetype count = m_medium.volumes.count();
    const platform::Result<qint64> length = held.device->length();
    const qint64 size = length.valueOr(m_medium.size / count);
    if (!length)
        m_job.note(tr("使用估算卷大小: %1").arg(formatSize(size)));
    m_job.note(tr("正在擦除卷 %1/%2，大小: %3").arg(index + 1).arg(count).arg(formatSize(size)));
    const platform::Status sought = held.device->seek(0);
    if (!sought) {
        m_job.note(tr("SetFilePointerEx 失败，错误码: %1").arg(sought.code), RunningJob::Error);
        m_job.diagnose(sought);
    }

    qint64 position = 0;
    const VolumeEnd end = writeVolumeChunks(*held.device, size, position, total);
    const bool flushed = flush(*held.device);
    // After a failed seek the place of the data is unknown, so none of it counts.
    const qint64 covered = flushed && sought ? std::min(position, size) : 0;
    m_coverage.addVolume(index, held.extents, {size, covered});
    held.readable = length ? size : position;
    const bool ended = end == VolumeEnd::Complete || end == VolumeEnd::Boundary;
    if (flushed && ended && length)
        noteUncovered(index, size - covered);
    // When the length was only an estimate, the volume may continue behind it.
    if (flushed && end == VolumeEnd::Complete && !length)
        m_job.noteShortfall({.kind = ShortfallKind::VolumeEndedEarly, .place = held.name});
    if (!held.isLocked && position > 0)
        m_job.noteShortfall({.kind = ShortfallKind::VolumeInUse, .place = held.name});
    m_job.note(tr("卷 %1 擦除完成，已写入: %2").arg(QString::number(index + 1), formatSize(position)));
    return end != VolumeEnd::Failed && flushed;
}

void DiskPass::noteUncovered(qsizetype index, qint64 bytes)
{
    const QString name = m_medium.volumes.at(index).name;
    if (bytes >= m_medium.sectorSize) {
        m_job.note(tr("卷 %1 有 %2 未被覆写").arg(QString::number(index + 1), formatSize(bytes)),
                   RunningJob::Warning);
        m_job.noteShortfall({.kind = ShortfallKind::VolumeEndedEarly, .place = name, .bytes = bytes});
    } else if (bytes > 0) {
        // The remainder from rounding to whole sectors.
        m_job.noteShortfall({.kind = ShortfallKind::DriveEndUnreached, .place = name, .bytes = bytes});
    }
}

DiskPass::VolumeEnd DiskPass::writeVolumeChunks(platform::VolumeDevice &volume, qint64 size, qint64 &position,
                                                qint64 &total)
{
    qint64 remaining = size;
    while (remaining > 0) {
        if (m_job.isStopping())
            return VolumeEnd::Stopped;
        if (!m_job.mayGoOn())
            return VolumeEnd::Failed;
        const qint64 chunk = chunkSize(remaining);
        const std::byte *data = m_chunks->take(chunk);
        m_chunks->prepare(chunkSize(remaining - chunk));
        m_hasBegun = true;
        const platform::Result<qint64> written = volume.write(data, chunk);
        if (!written)
            return endOfVolume(written.status(), position);
        if (written.value() <= 0) {
            m_job.note(tr("写入字节数为0，到达卷末尾"));
            return VolumeEnd::Boundary;
        }
        m_job.noteWritten(written.value());
        position += written.value();
        remaining -= written.value();
        total += written.value();
        m_job.progress(total, m_medium.size);
    }
    return VolumeEnd::Complete;
}

DiskPass::VolumeEnd DiskPass::endOfVolume(const platform::Status &failure, qint64 position)
{
    m_job.diagnose(failure);
    switch (failure.code) {
    case platform::SectorNotFound:
    case platform::WriteFault:
    case platform::InvalidParameter:
        m_job.note(tr("到达卷边界，继续下一个卷..."));
        return VolumeEnd::Boundary;
    default:
        break;
    }
    m_job.note(tr("写入错误，位置: %1，错误码: %2").arg(position).arg(failure.code), RunningJob::Error);
    switch (failure.code) {
    case platform::AccessDenied:
        m_job.note(tr("错误: 访问被拒绝"), RunningJob::Error);
        break;
    case platform::WriteProtect:
        m_job.note(tr("错误: 磁盘写保护"), RunningJob::Error);
        break;
    case platform::NotReady:
        m_job.note(tr("错误: 设备未就绪"), RunningJob::Error);
        break;
    case platform::SharingViolation:
        m_job.note(tr("错误: 磁盘被占用"), RunningJob::Error);
        break;
    case platform::LockViolation:
        m_job.note(tr("错误: 锁定冲突"), RunningJob::Error);
        break;
    case platform::IoDevice:
        m_job.note(tr("错误: I/O 设备错误"), RunningJob::Error);
        break;
    default:
        noteMeaning(failure);
        break;
    }
    return VolumeEnd::Failed;
}

void DiskPass::noteMeaning(const platform::Status &failure)
{
    if (const QString words = FailureWords::of(failure.code); !words.isEmpty())
        m_job.note(words, RunningJob::Error);
}

bool DiskPass::flush(platform::RawDevice &device)
{
    const platform::Status flushed = device.flush();
    if (!flushed) {
        m_job.note(tr("刷新写入失败，错误码: %1").arg(flushed.code), RunningJob::Error);
        noteMeaning(flushed);
        m_job.diagnose(flushed);
    }
    return flushed.ok();
}

bool DiskPass::verify(const PassPattern &pattern)
{
    m_job.note(tr("正在验证..."));
    const bool throughVolume = !m_medium.volumes.isEmpty();
    platform::RawDevice &device = throughVolume ? *m_medium.volumes.at(0).device : *m_medium.drive;
    // An encrypted volume may have larger sectors than its drive, and reads only whole ones.
    const qint32 sampleSize = throughVolume
                                  ? std::max(m_medium.sectorSize, device.bytesPerSector().valueOr(0))
                                  : m_medium.sectorSize;
    if (!m_verification.beginPass(sampleSize)) {
        m_job.reportError(tr("内存分配失败"));
        return false;
    }
    const qint64 span = throughVolume ? m_medium.size / m_medium.volumes.count() : m_medium.size;
    const qint64 length = throughVolume ? m_medium.volumes.at(0).readable : m_medium.size;

    const int samples = m_medium.sectorCount() > 0 ? m_task.verifySampleSize() : 0;
    for (int i = 0; i < samples; ++i) {
        if (m_job.isStopping())
            return true;
        const quint64 sector =
            QRandomGenerator64::global()->bounded(static_cast<quint64>(m_medium.sectorCount()));
        const qint64 offset = static_cast<qint64>(sector) * m_medium.sectorSize;
        const qint64 reduced = DiskVerification::reducedOffset(offset, span, length, sampleSize);
        const std::byte *data = m_verification.read(device, reduced, pattern);
        if (!data || !m_job.matches(data, sampleSize, pattern)) {
            m_job.note(tr("验证失败，位置: %1").arg(offset), RunningJob::Error);
            return false;
        }
    }
    m_job.note(tr("验证通过"));
    return true;
}

qint64 DiskPass::bufferSize() const
{
    const qint64 size = m_task.bufferSizeMB() * MiB;
    return std::max<qint64>(size - size % m_medium.sectorSize, m_medium.sectorSize);
}

qint64 DiskPass::chunkSize(qint64 remaining) const
{
    if (remaining <= 0)
        return 0;
    const qint64 chunk = std::min(remaining, bufferSize());
    return std::max<qint64>(chunk - chunk % m_medium.sectorSize, m_medium.sectorSize);
}
