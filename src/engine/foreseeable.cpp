#include "engine/foreseeable.h"

#include "engine/contentsurvey.h"
#include "engine/filesurvey.h"
#include "engine/freespacefill.h"
#include "engine/freespacewipeworker.h"
#include "model/wipetask.h"
#include "platform/devices.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <numeric>

namespace {

// A reserve of more than a tenth of the free space is large.
constexpr qint64 SmallPart = 10;

// The whole volume; its file system shows less. The size of the file system when the volume cannot be asked.
qint64 bytesOf(const PartitionInfo &partition)
{
    const auto query = platform::Platform::current().devices().queryVolume(partition.driveLetter);
    if (!query)
        return partition.totalBytes;
    const auto extents = query.value()->extents(platform::ManyExtents);
    if (!extents || extents.value().isEmpty())
        return partition.totalBytes;
    const QList<platform::Extent> &all = extents.value();
    return std::accumulate(all.begin(), all.end(), qint64{0},
                           [](qint64 sum, const platform::Extent &extent) { return sum + extent.length; });
}

void foreseeDisk(const WipeTask &task, OutcomeRecord &record)
{
    const DiskInfo disk = task.disk();
    qint64 rest = disk.sizeBytes;
    bool hasVolume = false;
    for (const PartitionInfo &partition : disk.partitions) {
        hasVolume = hasVolume || !partition.driveLetter.isEmpty();
        rest -= bytesOf(partition);
    }
    if (hasVolume && rest != 0 && !task.isWholeDrive())
        record.note({ShortfallKind::OnlyVolumes, {}, std::max<qint64>(rest, -1)});
}

void foreseeVolume(const PartitionInfo &partition, OutcomeRecord &record)
{
    const QString &name = partition.driveLetter;
    if (name.isEmpty() || partition.freeBytes <= 0)
        return;
    record.note(keptReserve(name, partition.freeBytes, FreeSpaceFill::reserveFor(name)));
    if (const auto snapshots = snapshotNote(FreeSpaceWipeWorker::rootPathOf(name)))
        record.note(*snapshots);
}

void foreseeFreeSpace(const WipeTask &task, OutcomeRecord &record)
{
    if (!task.partition().driveLetter.isEmpty()) {
        foreseeVolume(task.partition(), record);
        return;
    }
    const DiskInfo disk = task.disk();
    bool hasVolume = false;
    for (const PartitionInfo &partition : disk.partitions) {
        hasVolume = hasVolume || !partition.driveLetter.isEmpty();
        foreseeVolume(partition, record);
    }
    if (!hasVolume && FreeSpaceWipeWorker::findDriveForDisk(disk.diskNumber).isEmpty())
        record.note({ShortfallKind::NoVolume, disk.displayName()});
}

void foreseeFiles(const WipeTask &task, const FileSurvey &survey, OutcomeRecord &record)
{
    for (const QString &target : survey.keptElsewhere)
        record.note({ShortfallKind::ContentElsewhere, target});
    for (const Shortfall &note : survey.snapshots)
        record.note(note);
    if (survey.filesInCloud > 0)
        record.note({ShortfallKind::CloudCopy, {}, -1, survey.filesInCloud});
    for (const QString &path : survey.mounted)
        record.note({ShortfallKind::EntryNotRemoved, path});
    if (!task.targetsAreNamed())
        return;
    for (const QString &link : linksAmong(task.files()))
        record.note({ShortfallKind::LinkTarget, link});
}

} // namespace

OutcomeRecord foreseeableShortfalls(const WipeTask &task)
{
    return foreseeableShortfalls(task, task.operationType() == FileWipe ? surveyFiles(task) : FileSurvey());
}

OutcomeRecord foreseeableShortfalls(const WipeTask &task, const FileSurvey &survey)
{
    OutcomeRecord record;
    for (const Shortfall &omission : task.omissions())
        record.note(omission);
    switch (task.operationType()) {
    case DiskWipe:
        foreseeDisk(task, record);
        break;
    case PartitionWipe:
        break;
    case FreeSpaceWipe:
        foreseeFreeSpace(task, record);
        break;
    case FileWipe:
        foreseeFiles(task, survey, record);
        break;
    }
    return record;
}

QStringList linksAmong(const QStringList &paths)
{
    QStringList links;
    for (const QString &path : paths) {
        const auto info = platform::Platform::current().files().info(path);
        if (info && info.value().kind == platform::FileKind::Link)
            links.append(path);
    }
    return links;
}

Shortfall keptReserve(const QString &volume, qint64 freeBytes, qint64 reserve)
{
    const qint64 kept = std::min(freeBytes, reserve);
    const bool isLarge = kept > freeBytes / SmallPart;
    return {isLarge ? ShortfallKind::LargeReserve : ShortfallKind::ReserveKept, volume, kept};
}
