#include "engine/diskwipeworker.h"

#include "engine/driveidentity.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/wipetask.h"
#include "platform/platform.h"

#include <QDebug>

#include <algorithm>

using namespace Qt::StringLiterals;

DiskWipeWorker::DiskWipeWorker(WipeTask *task, QObject *parent)
    : BaseWipeWorker(task, parent)
    , m_pass(*this, *task, m_medium)
{}

DiskWipeWorker::~DiskWipeWorker() = default;

void DiskWipeWorker::process()
{
    runJob();
}

void DiskWipeWorker::complete()
{
    closeDevices();
    task().setDismountedVolumes(m_medium.volumes.dismounted());
    settleReleasedVolumes();
    fillReport();
}

bool DiskWipeWorker::run()
{
    noteTarget();
    if (task().disk().isSystemDisk) {
        reportError(tr("无法擦除系统盘"));
        return false;
    }

    if (isStopRequested())
        return cancelled();
    note(tr("正在锁定磁盘卷..."));
    const bool isWhole = task().operationType() == DiskWipe && task().isWholeDrive();
    const bool locked = isWhole ? checkVolumesAreGone() : lockVolumes();
    if (isStopRequested())
        return cancelled();
    if (!locked && isWhole)
        return false;
    if (!locked) {
        reportError(tr("无法锁定磁盘卷，请关闭所有使用该磁盘的程序"));
        return false;
    }
    note(tr("磁盘卷已锁定并卸载"));

    if (!measureDisk()) {
        reportError(tr("无法获取磁盘信息"));
        return false;
    }
    const bool success = writePasses();
    closeDevices();
    if (isStopRequested())
        return cancelled();
    if (success)
        note(tr("磁盘擦除完成!"));
    return success;
}

bool DiskWipeWorker::cancelled()
{
    closeDevices();
    note(tr("擦除已取消"), Warning);
    return false;
}

void DiskWipeWorker::noteTarget()
{
    const DiskInfo disk = task().disk();
    note(tr("开始磁盘擦除..."));
    note(tr("目标磁盘: %1").arg(disk.displayName()));
    note(tr("磁盘编号: %1").arg(disk.diskNumber));
    note(tr("序列号: %1").arg(displayText(disk.serialNumber)));
}

bool DiskWipeWorker::lockVolumes()
{
    return m_medium.volumes.lock(identityOf(task().disk()));
}

// A volume that was mounted again since the release fails the job. Held, it would limit the passes to itself;
// left alone, its file system would write over erased sectors.
bool DiskWipeWorker::checkVolumesAreGone()
{
    QStringList back = m_medium.volumes.inSight(task().disk().diskNumber);
    back.removeIf([this](const QString &name) { return m_released && m_released->holds(name); });
    if (back.isEmpty())
        return true;
    reportError(tr("卷 %1 又被挂载，未写入任何数据").arg(displayText(back.join(u", "_s))));
    return false;
}

bool DiskWipeWorker::measureDisk()
{
    note(tr("正在打开磁盘..."));
    bool measured = false;
    if (const platform::Status opened = openDisk()) {
        note(tr("磁盘打开成功"));
        const platform::Result<platform::Geometry> geometry = m_medium.drive->geometry();
        measured = geometry && geometry.value().bytesPerSector > 0 && geometry.value().sizeBytes >= 0;
        if (measured) {
            m_medium.size = geometry.value().sizeBytes;
            m_medium.sectorSize = geometry.value().bytesPerSector;
            noteUnreachedEnd();
        }
    } else {
        note(tr("无法打开磁盘，错误码: %1").arg(opened.code), Error);
        note(tr("将通过卷句柄进行擦除"));
    }
    if (!measured && !measureVolumes())
        return false;

    note(tr("磁盘大小: %1").arg(formatSize(m_medium.size)));
    note(tr("扇区大小: %1 字节").arg(m_medium.sectorSize));
    note(tr("总扇区数: %1").arg(m_medium.sectorCount()));
    return true;
}

// A drive may end with a partial sector, or have no sector at all. Neither case is a failure, and neither may
// be reported as complete.
void DiskWipeWorker::noteUnreachedEnd()
{
    const qint64 length = m_medium.drive->length().valueOr(m_medium.size);
    if (m_medium.size == 0)
        noteShortfall({.kind = ShortfallKind::DriveEmpty});
    else if (length > m_medium.size)
        noteShortfall({.kind = ShortfallKind::DriveEndUnreached, .bytes = length - m_medium.size});
}

platform::Status DiskWipeWorker::openDisk()
{
    platform::Devices &devices = platform::Platform::current().devices();
    const bool isAlone = m_medium.volumes.isEmpty() && !m_released;
    const platform::DriveAccess access =
        isAlone ? platform::DriveAccess::Alone : platform::DriveAccess::BesideOwnVolumes;
    qDebug() << "[DiskWipe] Opening device:" << devices.drivePath(task().disk().diskNumber);
    platform::Result<std::unique_ptr<platform::RawDevice>> drive =
        devices.openDrive(identityOf(task().disk()), access);
    if (!drive) {
        qDebug() << "[DiskWipe] CreateFile failed, error:" << drive.code();
        diagnose(drive.status());
        return drive.status();
    }
    qDebug() << "[DiskWipe] Disk opened successfully";
    m_medium.drive = drive.take();
    return {};
}

bool DiskWipeWorker::measureVolumes()
{
    m_medium.size = 0;
    m_medium.sectorSize = 512;
    for (qsizetype i = 0; i < m_medium.volumes.count(); ++i) {
        const HeldVolumes::Volume &volume = m_medium.volumes.at(i);
        m_medium.size += std::max<qint64>(volume.device->length().valueOr(0), 0);
        const qint32 sectorSize = volume.device->bytesPerSector().valueOr(0);
        if (sectorSize > 0)
            m_medium.sectorSize = sectorSize;
    }
    return m_medium.size > 0;
}

bool DiskWipeWorker::writePasses()
{
    const QList<PassPattern> passes = task().method().passes;
    m_totalPasses = static_cast<int>(passes.size());
    m_writesVolumes = !m_medium.volumes.isEmpty();

    bool success = true;
    for (const PassPattern &pattern : passes) {
        if (!success || isStopRequested())
            break;
        ++m_currentPass;
        emit passChanged(m_currentPass, m_totalPasses);
        note(tr("第 %1/%2 次覆写 (模式: %3)")
                 .arg(m_currentPass)
                 .arg(m_totalPasses)
                 .arg(patternLabel(pattern)));
        success = writePass(pattern);
        if (!success)
            reportError(tr("覆写失败"));
        m_bytesBeforePass += m_medium.size;
    }
    return success;
}

bool DiskWipeWorker::writePass(const PassPattern &pattern)
{
    return m_pass.write(pattern);
}

QString DiskWipeWorker::patternLabel(const PassPattern &pattern)
{
    switch (pattern.type) {
    case PatternType::Zeros:
        return u"0x00"_s;
    case PatternType::Ones:
        return u"0xFF"_s;
    case PatternType::Random:
        return tr("随机");
    case PatternType::Custom:
        return u"0x%1"_s.arg(pattern.value, 2, 16, QLatin1Char('0'));
    case PatternType::Complement:
        break;
    }
    return tr("未知");
}

void DiskWipeWorker::closeDevices()
{
    m_pass.releaseBuffers();
    m_medium.drive.reset();
    releaseVolumes();
}

void DiskWipeWorker::releaseVolumes()
{
    m_medium.volumes.release();
}

// A drive that was written to does not get its volumes mounted again, not even when they look intact.
void DiskWipeWorker::settleReleasedVolumes()
{
    if (!m_released)
        return;
    if (m_pass.hasBegun()) {
        task().setDismountedVolumes(m_released->names());
        if (const platform::Status kept = m_released->keep(); !kept) {
            note(tr("磁盘未能恢复联机，错误码: %1").arg(kept.code), Warning);
            diagnose(kept);
        }
    } else {
        const QStringList lost = m_released->restore();
        task().setDismountedVolumes(lost);
        if (lost.isEmpty() && !m_released->names().isEmpty())
            note(tr("已重新挂载: %1").arg(displayText(m_released->names().join(u", "_s))));
    }
    m_released.reset();
}

void DiskWipeWorker::fillReport()
{
    // A drive written through its volumes was not measured, so its recorded size counts if it is larger.
    const qint64 driveSize = std::max(m_medium.size, task().disk().sizeBytes);
    const quint64 wiped = static_cast<quint64>(m_pass.coverage().bytes(m_totalPasses, driveSize)) >> 9;
    if (const qint64 beyond = m_pass.coverage().bytesBeyond(driveSize); beyond > 0)
        noteShortfall({.kind = ShortfallKind::BeyondDrive, .bytes = beyond});
    const DiskVerification &verification = m_pass.verification();
    const int samples = verification.samples();
    const QString method =
        samples > 0 ? u"random sampling, %1 sectors"_s.arg(verification.samplesOfPass()) : QString();
    task().updateReport([&](WipeReport &report) {
        report.wipedSectors = wiped;
        report.verificationSampleSize = samples;
        report.verificationMethod = method;
        report.dataHash = verification.hash();
    });
    noteShortfalls(wiped);
}

// A drive written through its volumes keeps the bytes between them, which must not be reported as erased. A
// partition is one of these volumes.
void DiskWipeWorker::noteShortfalls(quint64 wipedSectors)
{
    if (m_totalPasses == 0)
        return;
    noteReadBack(true);
    const quint64 sectors = static_cast<quint64>(task().disk().sizeBytes) >> 9;
    if (task().operationType() == DiskWipe && m_writesVolumes && wipedSectors < sectors)
        noteShortfall({ShortfallKind::OnlyVolumes, {}, static_cast<qint64>((sectors - wipedSectors) << 9)});
}

void DiskWipeWorker::diagnose(const platform::Status &failure)
{
    qDebug().noquote() << "[DiskWipe]" << failure.diagnostic();
}
