// The course of a job, from the fill of the volumes to its end.
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
    note(tr("开始空闲空间擦除..."));
    const PartitionInfo partition = task().partition();
    const DiskInfo disk = task().disk();
    qDebug() << "Partition driveLetter:" << partition.driveLetter;
    qDebug() << "Disk number:" << disk.diskNumber;
    qDebug() << "Disk partitions count:" << disk.partitions.size();

    if (!partition.driveLetter.isEmpty())
        return wipeVolumes(volumesOf(partition));
    if (disk.diskNumber < 0) {
        reportError(tr("无效的目标"));
        return false;
    }
    const QStringList volumes = volumesOf(disk);
    if (!volumes.isEmpty())
        return wipeVolumes(volumes);
    // Not a failure, but nothing was erased either.
    noteShortfall({ShortfallKind::NoVolume, disk.displayName()});
    return true;
}

QStringList FreeSpaceWipeWorker::volumesOf(const PartitionInfo &partition)
{
    note(tr("目标分区: %1").arg(displayText(partition.driveLetter)));
    note(tr("分区大小: %1").arg(partition.formattedTotal()));
    note(tr("文件系统: %1").arg(displayText(partition.fileSystem)));
    return {partition.driveLetter};
}

QStringList FreeSpaceWipeWorker::volumesOf(const DiskInfo &disk)
{
    note(tr("目标磁盘: %1").arg(disk.displayName()));
    note(tr("磁盘大小: %1").arg(disk.formattedSize()));

    QStringList volumes;
    for (const PartitionInfo &partition : disk.partitions) {
        if (!partition.driveLetter.isEmpty())
            volumes.append(partition.driveLetter);
    }
    if (volumes.isEmpty()) {
        note(tr("磁盘没有分区表，尝试查找对应的卷..."));
        if (const QString drive = findDriveForDisk(disk.diskNumber); !drive.isEmpty()) {
            volumes.append(drive);
            note(tr("找到对应卷: %1").arg(displayText(drive)));
        }
    }
    if (volumes.isEmpty()) {
        note(tr("警告: 磁盘上没有可用的非系统分区"), Warning);
        return volumes;
    }
    note(tr("将擦除 %1 个分区的空闲空间").arg(volumes.size()));
    for (const QString &volume : std::as_const(volumes))
        note(tr("  - %1").arg(displayText(volume)));
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
        reportError(tr("没有可用的分区"));
        return false;
    }
    bool failed = false;
    for (qsizetype i = 0; i < volumes.size() && !failed && !isStopRequested(); ++i) {
        if (volumes.size() > 1) {
            note(QString());
            note(tr("========== 分区 %1/%2: %3 ==========")
                     .arg(QString::number(i + 1), QString::number(volumes.size()),
                          displayText(volumes.at(i))));
        }
        failed = !wipeVolume(volumes.at(i));
    }
    if (isStopRequested()) {
        note(tr("擦除已取消"), Warning);
        return false;
    }
    if (failed)
        return false;
    note(QString());
    note(tr("空闲空间擦除完成!"));
    return true;
}

void FreeSpaceWipeWorker::complete()
{
    task().updateReport([this](WipeReport &report) {
        report.wipedSectors = m_wipedSectors;
        // Fill files are never read back, even when the passes ask for it.
        report.verificationSampleSize = 0;
        report.verificationMethod.clear();
    });
}

bool FreeSpaceWipeWorker::wipeVolume(const QString &root)
{
    m_root = rootPathOf(root);
    task().noteVolume(root);
    note(tr("目标分区: %1").arg(displayText(m_root)));

    RunningJob &job = *this;
    m_space.emplace(job, m_root, VolumeSpace::Waits{m_releasePatience, m_releasePoll});
    const auto closing = qScopeGuard([this] {
        m_folder.letGo();
        m_anchor.reset();
    });
    if (const platform::Status opened = openVolume(root); !opened)
        return failVolumeGone(opened);
    if (!isChosen(*m_anchor, chosenRecord(task(), root))) {
        reportError(changeText(root));
        return false;
    }
    if (!cleanUpAfterCrash())
        return false;
    const auto free = m_space->settled([this] { return freeBytesOf(*m_anchor); });
    m_freeAtStart = free.valueOr(0);
    note(tr("空闲空间: %1").arg(formatSize(m_freeAtStart)));
    if (m_freeAtStart == 0) {
        note(tr("没有空闲空间需要擦除"));
        noteShortfall({ShortfallKind::NoFreeByte, root});
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
    // With the volume gone, its path belongs to another volume, whose residue must not be cleaned.
    if (VolumeSpace::isGone(removed.code))
        return failVolumeGone(removed);
    cleanResidue();
    return true;
}

// Reports the lost volume when no failed pass did. Always false.
bool FreeSpaceWipeWorker::failVolumeGone(const platform::Status &status)
{
    m_space->noteGone(status);
    reportError(tr("卷不再可用，错误码: %1").arg(status.code));
    return false;
}

// The open handle keeps the job on this volume, whatever happens to the mount point.
platform::Status FreeSpaceWipeWorker::openVolume(const QString &root)
{
    auto opened = platform::Platform::current().folders().anchor(m_root);
    if (!opened)
        return opened.status();
    m_anchor = opened.take();
    return checkMounted(root);
}

// Runs before the free space is measured, because a crash leaves the volume full.
bool FreeSpaceWipeWorker::cleanUpAfterCrash()
{
    const auto before = freeBytesOf(*m_anchor);
    LeftOvers leftOvers(*m_anchor);
    if (const QString folder = leftOvers.inUse(); !folder.isEmpty()) {
        reportError(useText(folder));
        return false;
    }
    const LeftOvers::Removed removed = leftOvers.remove();
    for (const QString &folder : removed.folders)
        note(tr("已清理上次中断留下的临时文件: %1").arg(displayText(folder)));
    if (m_space->waitFor([this] { return freeBytesOf(*m_anchor); }, before.valueOr(0), removed.bytes))
        return true;
    reportError(tr("填充空闲空间失败"));
    return false;
}

bool FreeSpaceWipeWorker::createTemporaryFolder()
{
    const platform::Status created = m_folder.create(*m_anchor);
    if (!created) {
        diagnose(created);
        if (const QString hint = ProtectedFolders::hint(created.code); !hint.isEmpty())
            note(hint, Warning);
        reportError(tr("无法创建临时目录: %1").arg(displayText(m_folder.path())));
        return false;
    }
    // Of two jobs that begin at the same moment, at least one sees the folder of the other.
    const QString other = LeftOvers(*m_anchor, m_folder.name()).inUse();
    if (other.isEmpty())
        return true;
    [[maybe_unused]] const platform::Status removed = m_folder.remove(); // told there
    reportError(useText(other));
    return false;
}

bool FreeSpaceWipeWorker::runPasses()
{
    const QList<PassPattern> passes = task().method().passes;
    m_totalPasses = static_cast<int>(passes.size());
    // The fill and its helper thread end before the residue steps use the same generator.
    const auto end = qScopeGuard([this] { m_fill.reset(); });
    RunningJob &job = *this;
    m_fill.emplace(job, m_folder, *m_space,
                   FreeSpaceFill::Volume{m_root, m_freeAtStart, task().bufferSizeMB() * MiB});
    if (writesToNewPlaces(m_root))
        noteShortfall({ShortfallKind::CopyOnWrite, m_root});
    if (const auto note = snapshotNote(m_root))
        noteShortfall(*note);
    noteReadBack(false);
    const qint64 kept = std::min(m_freeAtStart, FreeSpaceFill::reserveFor(m_root));
    note(tr("保留 %1 作为安全空间，不会被覆写").arg(formatSize(kept)));
    qint64 filledInEvery = std::numeric_limits<qint64>::max();
    int passesRun = 0;
    bool filled = true;
    for (int pass = 1; pass <= m_totalPasses && filled && !isStopRequested(); ++pass) {
        m_currentPass = pass;
        emit passChanged(pass, m_totalPasses);
        const PassPattern &pattern = passes.at(pass - 1);
        note(tr("第 %1/%2 次覆写 (%3)")
                 .arg(QString::number(pass), QString::number(m_totalPasses), patternLabel(pattern)));
        filled = m_fill->reclaim() && fillFreeSpace(pattern);
        filledInEvery = std::min(filledInEvery, m_fill->filled());
        ++passesRun;
        if (!filled)
            reportError(tr("填充空闲空间失败"));
        // The figure behind the percentage, which differs from the written bytes by the reserve.
        m_bytesBeforePass += m_freeAtStart;
    }
    // Before the last pass has begun, no sector has received all passes.
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
    note(tr("正在清理文件系统残留..."));
    platform::Status first = cleanFileRecords();
    remember(first, cleanDirectoryEntries());
    if (!first) {
        qDebug().noquote() << "[FreeSpaceWipe] residue" << first.diagnostic();
        note(tr("文件系统残留清理不完整，错误码: %1").arg(first.code), Warning);
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

void FreeSpaceWipeWorker::diagnose(const platform::Status &failure)
{
    qDebug().noquote() << "[FreeSpaceWipe]" << m_root << failure.diagnostic();
}
