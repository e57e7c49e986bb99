// From the fill of the volumes to the end of a job.
#include "engine/freespacewipeworker.h"

#include "engine/contentsurvey.h"
#include "engine/freespacefill.h"
#include "engine/leftovers.h"
#include "engine/protectedfolders.h"
#include "engine/residuecleaning.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "platform/devices.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDebug>
#include <QScopeGuard>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

void remember(platform::Status &first, const platform::Status &status)
{
    if (first.ok() && !status.ok())
        first = status;
}

} // namespace

FreeSpaceWipeWorker::FreeSpaceWipeWorker(WipeTask *task, QObject *parent)
    : BaseWipeWorker(task, parent)
{}

FreeSpaceWipeWorker::~FreeSpaceWipeWorker()
{
    removeFillFiles();
}

void FreeSpaceWipeWorker::process()
{
    runJob();
}

bool FreeSpaceWipeWorker::run()
{
    log(tr("开始空闲空间擦除..."));
    const PartitionInfo partition = task().partition();
    const DiskInfo disk = task().disk();
    qDebug() << "Partition driveLetter:" << partition.driveLetter;
    qDebug() << "Disk number:" << disk.diskNumber;
    qDebug() << "Disk partitions count:" << disk.partitions.size();

    if (!partition.driveLetter.isEmpty())
        return wipeVolumes(volumesOf(partition));
    if (disk.diskNumber < 0) {
        emit errorOccurred(tr("无效的目标"));
        return false;
    }
    const QStringList volumes = volumesOf(disk);
    if (!volumes.isEmpty())
        return wipeVolumes(volumes);
    // Nothing that fails, and nothing erased either.
    task().noteShortfall({ShortfallKind::NoVolume, disk.displayName()});
    return true;
}

QStringList FreeSpaceWipeWorker::volumesOf(const PartitionInfo &partition)
{
    log(tr("目标分区: %1").arg(displayText(partition.driveLetter)));
    log(tr("分区大小: %1").arg(partition.formattedTotal()));
    log(tr("文件系统: %1").arg(displayText(partition.fileSystem)));
    return {partition.driveLetter};
}

QStringList FreeSpaceWipeWorker::volumesOf(const DiskInfo &disk)
{
    log(tr("目标磁盘: %1").arg(disk.displayName()));
    log(tr("磁盘大小: %1").arg(disk.formattedSize()));

    QStringList volumes;
    for (const PartitionInfo &partition : disk.partitions) {
        if (!partition.driveLetter.isEmpty())
            volumes.append(partition.driveLetter);
    }
    if (volumes.isEmpty()) {
        log(tr("磁盘没有分区表，尝试查找对应的卷..."));
        if (const QString drive = findDriveForDisk(disk.diskNumber); !drive.isEmpty()) {
            volumes.append(drive);
            log(tr("找到对应卷: %1").arg(displayText(drive)));
        }
    }
    if (volumes.isEmpty()) {
        log(tr("警告: 磁盘上没有可用的非系统分区"), LogLevel::Warning);
        return volumes;
    }
    log(tr("将擦除 %1 个分区的空闲空间").arg(volumes.size()));
    for (const QString &volume : std::as_const(volumes))
        log(tr("  - %1").arg(displayText(volume)));
    return volumes;
}

QString FreeSpaceWipeWorker::findDriveForDisk(int diskNumber)
{
    qDebug() << "findDriveForDisk: searching for disk" << diskNumber;
    platform::Devices &devices = platform::Platform::current().devices();
    for (const QString &name : devices.volumeNames()) {
        const auto volume = devices.queryVolume(name);
        if (!volume)
            continue;
        const auto extents = volume.value()->extents(platform::ManyExtents);
        if (!extents || extents.value().isEmpty())
            continue;
        const int number = extents.value().first().diskNumber;
        qDebug() << "  Drive" << name << "is on disk" << number;
        if (number == diskNumber) {
            qDebug() << "  Found matching drive:" << name;
            return name;
        }
    }
    qDebug() << "findDriveForDisk: no drive found for disk" << diskNumber;
    return {};
}

bool FreeSpaceWipeWorker::wipeVolumes(const QStringList &volumes)
{
    if (volumes.isEmpty()) {
        emit errorOccurred(tr("没有可用的分区"));
        return false;
    }
    bool failed = false;
    for (qsizetype i = 0; i < volumes.size() && !failed && !isStopRequested(); ++i) {
        if (volumes.size() > 1) {
            log(QString());
            log(tr("========== 分区 %1/%2: %3 ==========")
                    .arg(QString::number(i + 1), QString::number(volumes.size()),
                         displayText(volumes.at(i))));
        }
        failed = !wipeVolume(volumes.at(i));
    }
    if (isStopRequested()) {
        log(tr("擦除已取消"), LogLevel::Warning);
        return false;
    }
    if (failed)
        return false;
    log(QString());
    log(tr("空闲空间擦除完成!"));
    return true;
}

void FreeSpaceWipeWorker::complete()
{
    task().updateReport([this](WipeReport &report) {
        report.wipedSectors = m_wipedSectors;
        // Fill files are not read back, whatever the passes ask for.
        report.verificationSampleSize = 0;
        report.verificationMethod.clear();
    });
}

bool FreeSpaceWipeWorker::wipeVolume(const QString &root)
{
    m_root = rootPathOf(root);
    task().noteVolume(root);
    log(tr("目标分区: %1").arg(displayText(m_root)));

    RunningJob &job = *this;
    m_space.emplace(job, m_root, VolumeSpace::Waits{m_releasePatience, m_releasePoll});
    const auto closing = qScopeGuard([this] {
        m_folder.letGo();
        m_anchor.reset();
    });
    if (const platform::Status opened = openVolume(root); !opened)
        return failVolumeGone(opened);
    if (!isChosen(*m_anchor, chosenRecord(task(), root))) {
        emit errorOccurred(changeText(root));
        return false;
    }
    if (!cleanUpAfterCrash())
        return false;
    const auto free = m_space->settled([this] { return freeBytesOf(*m_anchor); });
    m_freeAtStart = free.valueOr(0);
    log(tr("空闲空间: %1").arg(formatSize(m_freeAtStart)));
    if (m_freeAtStart == 0) {
        log(tr("没有空闲空间需要擦除"));
        task().noteShortfall({ShortfallKind::NoFreeByte, root});
        return free || failVolumeGone(free.status());
    }

    if (!createTemporaryFolder())
        return false;
    platform::Status removed;
    bool filled = false;
    {
        const auto cleanUp = qScopeGuard([&] { removed = removeTemporaries(); });
        filled = runPasses();
    }
    if (!filled)
        return false;
    if (isStopRequested())
        return true;
    // Without the volume the residue would be cleaned on the one that its mount point belongs to.
    if (VolumeSpace::isGone(removed.code))
        return failVolumeGone(removed);
    cleanResidue();
    return true;
}

// Where no failed pass tells of it; always false.
bool FreeSpaceWipeWorker::failVolumeGone(const platform::Status &status)
{
    m_space->noteGone(status);
    emit errorOccurred(tr("卷不再可用，错误码: %1").arg(status.code));
    return false;
}

// Whatever happens to the mount point from here on, the job stays on this volume.
platform::Status FreeSpaceWipeWorker::openVolume(const QString &root)
{
    auto opened = platform::Platform::current().folders().anchor(m_root);
    if (!opened)
        return opened.status();
    m_anchor = opened.take();
    return checkMounted(root);
}

// Before the free space is measured: a crash leaves the volume full.
bool FreeSpaceWipeWorker::cleanUpAfterCrash()
{
    const auto before = freeBytesOf(*m_anchor);
    LeftOvers leftOvers(*m_anchor);
    if (const QString folder = leftOvers.inUse(); !folder.isEmpty()) {
        emit errorOccurred(useText(folder));
        return false;
    }
    const LeftOvers::Removed removed = leftOvers.remove();
    for (const QString &folder : removed.folders)
        log(tr("已清理上次中断留下的临时文件: %1").arg(displayText(folder)));
    if (m_space->waitFor([this] { return freeBytesOf(*m_anchor); }, before.valueOr(0), removed.bytes))
        return true;
    emit errorOccurred(tr("填充空闲空间失败"));
    return false;
}

bool FreeSpaceWipeWorker::createTemporaryFolder()
{
    const platform::Status created = m_folder.create(*m_anchor);
    if (!created) {
        diagnose(created);
        if (const QString hint = ProtectedFolders::hint(created.code); !hint.isEmpty())
            log(hint, BaseWipeWorker::Warning);
        emit errorOccurred(tr("无法创建临时目录: %1").arg(displayText(m_folder.path())));
        return false;
    }
    // Another job that has begun at the same moment sees this folder, or is seen here.
    const QString other = LeftOvers(*m_anchor, m_folder.name()).inUse();
    if (other.isEmpty())
        return true;
    [[maybe_unused]] const platform::Status removed = m_folder.remove(); // told there
    emit errorOccurred(useText(other));
    return false;
}

bool FreeSpaceWipeWorker::runPasses()
{
    const QList<PassPattern> passes = task().method().passes;
    m_totalPasses = static_cast<int>(passes.size());
    // Gone, with its helper, before the residue steps draw from the same generator.
    const auto end = qScopeGuard([this] { m_fill.reset(); });
    RunningJob &job = *this;
    m_fill.emplace(job, m_folder, *m_space,
                   FreeSpaceFill::Volume{m_root, m_freeAtStart, task().bufferSizeMB() * MiB});
    if (writesToNewPlaces(m_root))
        task().noteShortfall({ShortfallKind::CopyOnWrite, m_root});
    if (const auto note = snapshotNote(m_root))
        task().noteShortfall(*note);
    noteReadBack(false);
    const qint64 kept = std::min(m_freeAtStart, FreeSpaceFill::reserveFor(m_root));
    log(tr("保留 %1 作为安全空间，不会被覆写").arg(formatSize(kept)));
    qint64 filledInEvery = std::numeric_limits<qint64>::max();
    int passesRun = 0;
    bool filled = true;
    for (int pass = 1; pass <= m_totalPasses && filled && !isStopRequested(); ++pass) {
        m_currentPass = pass;
        emit passChanged(pass, m_totalPasses);
        const PassPattern &pattern = passes.at(pass - 1);
        log(tr("第 %1/%2 次覆写 (%3)")
                .arg(QString::number(pass), QString::number(m_totalPasses), patternLabel(pattern)));
        filled = m_fill->reclaim() && fillFreeSpace(pattern);
        filledInEvery = std::min(filledInEvery, m_fill->filled());
        ++passesRun;
        if (!filled)
            emit errorOccurred(tr("填充空闲空间失败"));
        // The figure that the percentage is based on, not what was written: the two differ by the reserve.
        m_bytesBeforePass += m_freeAtStart;
    }
    // Before the last pass has begun, nothing has received all of them.
    if (passesRun > 0 && passesRun == m_totalPasses)
        m_wipedSectors += static_cast<quint64>(filledInEvery) >> 9;
    return filled;
}

bool FreeSpaceWipeWorker::fillFreeSpace(const PassPattern &pattern)
{
    return m_fill->write(pattern);
}

QString FreeSpaceWipeWorker::patternLabel(const PassPattern &pattern)
{
    switch (pattern.type) {
    case PatternType::Zeros:
        return tr("模式: 0x00");
    case PatternType::Ones:
        return tr("模式: 0xFF");
    case PatternType::Random:
        return tr("模式: 随机");
    case PatternType::Custom:
        return tr("模式: 0x%1").arg(pattern.value, 2, 16, QLatin1Char('0')).toUpper();
    case PatternType::Complement:
        break;
    }
    return tr("模式: 未知");
}

void FreeSpaceWipeWorker::removeFillFiles()
{
    m_folder.removeFiles();
}

platform::Status FreeSpaceWipeWorker::removeTemporaries()
{
    removeFillFiles();
    return m_folder.remove();
}

void FreeSpaceWipeWorker::cleanResidue()
{
    log(tr("正在清理文件系统残留..."));
    platform::Status first = cleanFileRecords();
    remember(first, cleanDirectoryEntries());
    if (!first) {
        qDebug().noquote() << "[FreeSpaceWipe] residue" << first.diagnostic();
        log(tr("文件系统残留清理不完整，错误码: %1").arg(first.code), LogLevel::Warning);
    }
}

platform::Status FreeSpaceWipeWorker::cleanFileRecords()
{
    return ResidueCleaning(*this, m_folder).cleanFileRecords();
}

platform::Status FreeSpaceWipeWorker::cleanDirectoryEntries()
{
    return ResidueCleaning(*this, m_folder).cleanDirectoryEntries();
}

void FreeSpaceWipeWorker::note(const QString &message, NoteLevel level)
{
    log(message, static_cast<LogLevel>(level));
}

void FreeSpaceWipeWorker::diagnose(const platform::Status &failure)
{
    qDebug().noquote() << "[FreeSpaceWipe]" << m_root << failure.diagnostic();
}

void FreeSpaceWipeWorker::noteShortfall(const Shortfall &shortfall)
{
    task().noteShortfall(shortfall);
}

void FreeSpaceWipeWorker::noteWritten(qint64 bytes)
{
    task().noteWritten(bytes);
}

void FreeSpaceWipeWorker::fill(std::byte *data, qint64 size, const PassPattern &pattern)
{
    fillBuffer(data, size, pattern);
}
