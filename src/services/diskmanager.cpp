#include "services/diskmanager.h"

#include "model/displaytext.h"
#include "platform/devices.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "platform/storagereplies.h"
#include "services/limitedquestion.h"

#include <QDebug>
#include <QSet>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
// Assumed to be the system disk when a system volume does not tell its disks.
constexpr int LikelySystemDisk = 0;

struct BusMeaning
{
    quint32 reported;
    BusType bus;
    DiskType disk; // Unknown: decided by detectDiskType()
};

// RAID controllers nearly always hold SATA drives, and SAS uses the SCSI commands; SATA and SCSI are the
// names that users look for.
constexpr std::array busMeanings{
    BusMeaning{platform::BusScsi, BusType::SCSI, DiskType::Unknown},
    BusMeaning{platform::BusAtapi, BusType::IDE, DiskType::Unknown},
    BusMeaning{platform::BusAta, BusType::IDE, DiskType::Unknown},
    BusMeaning{platform::BusUsb, BusType::USB, DiskType::USB},
    BusMeaning{platform::BusRaid, BusType::SATA, DiskType::Unknown},
    BusMeaning{platform::BusSas, BusType::SCSI, DiskType::Unknown},
    BusMeaning{platform::BusSata, BusType::SATA, DiskType::Unknown},
    BusMeaning{platform::BusNvme, BusType::NVMe, DiskType::NVMe},
};

const BusMeaning *busMeaning(quint32 reported)
{
    const auto found = std::ranges::find(busMeanings, reported, &BusMeaning::reported);
    return found == busMeanings.end() ? nullptr : &*found;
}

QSet<int> diskNumbers(const QList<platform::Extent> &extents)
{
    QSet<int> numbers;
    for (const platform::Extent &extent : extents)
        numbers.insert(extent.diskNumber);
    return numbers;
}

QSet<int> disksOf(platform::DeviceQuery &volume)
{
    return diskNumbers(platform::allExtents(volume).valueOr({}));
}

// The disks of a system volume. A volume that does not tell its disks counts as lying on the likely disk,
// because protecting one disk too many is better than offering the running system for wiping. A device
// without a number (-1) has told its place: it is on no disk that could be offered.
QSet<int> disksUnder(const QString &systemVolume)
{
    QSet<int> disks;
    const auto volume = platform::Platform::current().devices().queryVolume(systemVolume);
    if (volume) {
        const auto extents = volume.value()->extents(platform::OneExtent);
        if (extents && !extents.value().isEmpty()) {
            disks.insert(extents.value().first().diskNumber);
        } else if (extents.code() == platform::MoreData) {
            // A striped or mirrored volume needs every one of its disks.
            disks = diskNumbers(volume.value()->extents(platform::ManyExtents).valueOr({}));
        }
    }
    if (disks.isEmpty())
        disks.insert(LikelySystemDisk);
    return disks;
}

QSet<int> systemDisks()
{
    QSet<int> disks;
    const QStringList volumes = platform::Platform::current().session().systemVolumes();
    for (const QString &volume : volumes)
        disks.unite(disksUnder(volume));
    return disks;
}

// Whether both records are one drive with two paths. Drives without a name or serial number cannot be
// compared.
bool isSameUnit(const DiskInfo &a, const DiskInfo &b)
{
    if (!a.worldWideName.isEmpty() && a.worldWideName == b.worldWideName)
        return true;
    return !a.serialNumber.isEmpty() && a.serialNumber == b.serialNumber && a.model == b.model &&
           a.sizeBytes == b.sizeBytes;
}

void guardOtherWays(QList<DiskInfo> &disks)
{
    const QList<DiskInfo> known = disks;
    for (DiskInfo &disk : disks) {
        disk.isSystemDisk = std::ranges::any_of(known, [&disk](const DiskInfo &other) {
            return other.isSystemDisk && (other.diskNumber == disk.diskNumber || isSameUnit(other, disk));
        });
    }
}

void readGeometry(platform::DeviceQuery &drive, DiskInfo &disk)
{
    const auto geometry = drive.geometry();
    // Card readers without a card report a sector size of 0; nothing else in such an answer is valid.
    if (!geometry || geometry.value().bytesPerSector <= 0)
        return;
    disk.sizeBytes = geometry.value().sizeBytes;
    disk.bytesPerSector = geometry.value().bytesPerSector;
    disk.totalSectors = disk.sizeBytes / disk.bytesPerSector;
}

void readDescriptor(platform::DeviceQuery &drive, DiskInfo &disk)
{
    const auto reply = drive.descriptor();
    if (!reply)
        return;
    const platform::DeviceDescriptor descriptor = platform::decodeDeviceDescriptor(reply.value());
    disk.model = descriptor.productId;
    disk.serialNumber = descriptor.serialNumber;
    disk.isRemovable = descriptor.removableMedia;

    qDebug() << "Disk" << disk.diskNumber << "BusType value:" << descriptor.busType;
    if (const BusMeaning *meaning = busMeaning(descriptor.busType)) {
        disk.busType = meaning->bus;
        disk.diskType = meaning->disk;
    } else {
        qDebug() << "Unknown BusType:" << descriptor.busType;
    }
}

// Nothing when the drive cannot be opened. The handle is closed on return, before the same drive is opened
// again.
std::optional<DiskInfo> describeDrive(int number)
{
    platform::Devices &devices = platform::Platform::current().devices();
    const auto drive = devices.queryDrive(number);
    if (!drive)
        return std::nullopt;
    DiskInfo disk;
    disk.diskNumber = number;
    disk.devicePath = devices.drivePath(number);
    disk.isAvailable = true;
    readGeometry(*drive.value(), disk);
    readDescriptor(*drive.value(), disk);
    disk.worldWideName = drive.value()->worldWideName().valueOr({});
    return disk;
}

// The query asks for one extent. It fails for a volume on several disks, which is then listed under none of
// them.
bool liesOnDisk(const platform::MountedVolume &volume, int diskNumber)
{
    const auto disks = limitedquestion::answerOf<QSet<int>>(volume.name, [name = volume.name] {
        const auto query = platform::Platform::current().devices().queryVolume(name);
        return query ? diskNumbers(query.value()->extents(platform::OneExtent).valueOr({})) : QSet<int>();
    });
    return disks && disks->contains(diskNumber);
}

PartitionInfo describeVolume(const platform::MountedVolume &volume)
{
    PartitionInfo partition;
    partition.driveLetter = volume.name;
    partition.label = displayText(volume.label);
    partition.fileSystem = QString::fromUtf8(volume.fileSystem);
    partition.identity = volume.identity;
    partition.totalBytes = volume.totalBytes;
    partition.freeBytes = volume.freeBytes;
    partition.usedBytes = volume.totalBytes - volume.freeBytes;
    partition.isSystem = platform::Platform::current().session().isSystemRoot(volume.rootPath);
    partition.isBoot = partition.isSystem;
    return partition;
}

std::optional<DiskInfo> describeDriveInTime(int number)
{
    return limitedquestion::answerOf<std::optional<DiskInfo>>(DiskManager::driveKey(number),
                                                              [number] { return describeDrive(number); })
        .value_or(std::nullopt);
}

void addUse(const platform::DeviceUse &use, DiskObstacles &obstacles)
{
    obstacles.holders += use.holders;
    obstacles.releaseCommands += use.releaseCommands;
}

// A volume that is mounted by another way to the same unit is unmounted by nobody, and writes back over what
// was erased.
void addUseByOtherWay(const DiskInfo &other, DiskObstacles &obstacles)
{
    platform::Devices &devices = platform::Platform::current().devices();
    for (const PartitionInfo &volume : DiskManager::partitionsForDisk(other.diskNumber)) {
        obstacles.holders.append(u"%1 (%2)"_s.arg(volume.driveLetter, other.devicePath));
        if (const auto query = devices.queryVolume(volume.driveLetter))
            obstacles.releaseCommands += query.value()->use().valueOr({}).releaseCommands;
    }
    if (const auto query = devices.queryDrive(other.diskNumber))
        addUse(query.value()->use().valueOr({}), obstacles);
}

// Namespaces of one NVMe controller share its serial number, and differ in their names.
bool haveDifferentNames(const DiskInfo &a, const DiskInfo &b)
{
    return !a.worldWideName.isEmpty() && !b.worldWideName.isEmpty() && a.worldWideName != b.worldWideName;
}

void addUseByOtherWays(int diskNumber, DiskObstacles &obstacles)
{
    const std::optional<DiskInfo> disk = describeDriveInTime(diskNumber);
    if (!disk || (disk->worldWideName.isEmpty() && disk->serialNumber.isEmpty()))
        return;
    for (int number = DiskManager::FirstDrive; number <= DiskManager::LastDrive; ++number) {
        if (number == diskNumber)
            continue;
        const std::optional<DiskInfo> other = describeDriveInTime(number);
        if (other && isSameUnit(*disk, *other) && !haveDifferentNames(*disk, *other))
            addUseByOtherWay(*other, obstacles);
    }
}
} // namespace

QString DiskManager::driveKey(int diskNumber)
{
    return QStringLiteral("drive %1").arg(diskNumber);
}

QList<DiskInfo> DiskManager::enumerateDisks()
{
    const QSet<int> system = systemDisks();
    QList<DiskInfo> disks;
    // Unplugged drives leave gaps in the numbers.
    for (int number = FirstDrive; number <= LastDrive; ++number) {
        std::optional<DiskInfo> disk = describeDriveInTime(number);
        if (!disk)
            continue;
        disk->isSystemDisk = system.contains(number);
        if (disk->diskType == DiskType::Unknown)
            disk->diskType = limitedquestion::answerOf<DiskType>(driveKey(number), [number] {
                                 return detectDiskType(number);
                             }).value_or(DiskType::Unknown);
        const QList<PartitionInfo> partitions = partitionsForDisk(number);
        for (const PartitionInfo &partition : partitions)
            disk->addPartition(partition);
        disks.append(*disk);
    }
    guardOtherWays(disks);
    return disks;
}

QList<PartitionInfo> DiskManager::partitionsForDisk(int diskNumber)
{
    QList<PartitionInfo> partitions;
    const QList<platform::MountedVolume> volumes = platform::Platform::current().devices().mountedVolumes();
    for (const platform::MountedVolume &volume : volumes) {
        if (!volume.isReady || volume.rootPath.isEmpty() || !liesOnDisk(volume, diskNumber))
            continue;
        PartitionInfo partition = describeVolume(volume);
        partition.partitionIndex = qint32(partitions.size());
        partitions.append(partition);
    }
    return partitions;
}

QList<SpanningVolume> DiskManager::spanningVolumesForDisk(int diskNumber)
{
    platform::Devices &devices = platform::Platform::current().devices();
    QList<SpanningVolume> spanning;
    for (const platform::MountedVolume &volume : devices.mountedVolumes()) {
        QSet<int> disks = limitedquestion::answerOf<QSet<int>>(volume.name, [name = volume.name] {
                              const auto query = platform::Platform::current().devices().queryVolume(name);
                              return query ? disksOf(*query.value()) : QSet<int>();
                          }).value_or(QSet<int>());
        if (!disks.remove(diskNumber) || disks.isEmpty())
            continue;
        QList<int> others(disks.cbegin(), disks.cend());
        std::ranges::sort(others);
        spanning.append({volume.name, others});
    }
    return spanning;
}

DiskObstacles DiskManager::obstacles(int diskNumber)
{
    platform::Devices &devices = platform::Platform::current().devices();
    DiskObstacles obstacles;
    obstacles.spanningVolumes = spanningVolumesForDisk(diskNumber);
    for (const SpanningVolume &volume : std::as_const(obstacles.spanningVolumes)) {
        const auto query = devices.queryVolume(volume.name);
        if (query)
            obstacles.releaseCommands += query.value()->use().valueOr({}).releaseCommands;
    }
    const auto drive = devices.queryDrive(diskNumber);
    if (drive) {
        const platform::DeviceUse use = drive.value()->use().valueOr({});
        obstacles.isReadOnly = use.isReadOnly;
        addUse(use, obstacles);
    }
    addUseByOtherWays(diskNumber, obstacles);
    obstacles.holders.removeDuplicates();
    obstacles.releaseCommands.removeDuplicates();
    return obstacles;
}

DiskType DiskManager::detectDiskType(int diskNumber)
{
    const auto drive = platform::Platform::current().devices().queryDrive(diskNumber);
    if (!drive)
        return DiskType::Unknown;
    DiskType type = DiskType::HDD;
    const auto seekPenalty = drive.value()->seekPenalty();
    if (seekPenalty && !seekPenalty.value()) {
        type = DiskType::SSD;
        qDebug() << "Disk" << diskNumber << "detected as SSD (no seek penalty)";
    }
    const auto trim = drive.value()->trimEnabled();
    if (trim && trim.value()) {
        type = DiskType::SSD;
        qDebug() << "Disk" << diskNumber << "detected as SSD (TRIM enabled)";
    }
    return type;
}
