#include "cli/job/volumetarget.h"

#include "cli/io/paths.h"
#include "cli/job/drivetarget.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "platform/devices.h"
#include "platform/platform.h"

#include <QDir>
#include <QFileInfo>

#include <optional>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

bool isDriveLetter(const QString &name)
{
    return name.size() == 2 && name.at(0).isLetter() && name.at(1) == u':';
}

// Removes trailing separators, as in "E:\" and "/media/data/".
QString trimmedName(const QString &name)
{
    QString trimmed = QDir::fromNativeSeparators(name);
    while (trimmed.size() > 1 && trimmed.endsWith(u'/'))
        trimmed.chop(1);
    return trimmed;
}

// Compares names of volumes with the name given by the user.
class NameMatch
{
public:
    explicit NameMatch(const QString &given)
        : m_name(trimmedName(given))
    {
        if (isDriveLetter(m_name))
            return;
        m_path = absolutePath(m_name);
        m_canonical = QFileInfo(m_path).canonicalFilePath();
    }

    bool matches(const QString &volume) const
    {
        const QString name = trimmedName(volume);
        if (name.isEmpty())
            return false;
        if (isDriveLetter(m_name))
            return name.compare(m_name, Qt::CaseInsensitive) == 0;
        return absolutePath(name) == m_path || name == m_canonical;
    }

private:
    QString m_name;
    QString m_path;
    QString m_canonical;
};

// A volume that spans several drives is listed under none of them; its free space can be filled like that of
// any other.
std::optional<PartitionInfo> findVolumeWithoutDrive(const NameMatch &match)
{
    const auto volumes = platform::Platform::current().devices().mountedVolumes();
    for (const platform::MountedVolume &volume : volumes) {
        if (!volume.isReady || !match.matches(volume.name))
            continue;
        PartitionInfo partition;
        partition.driveLetter = volume.name;
        partition.label = volume.label;
        partition.fileSystem = QString::fromUtf8(volume.fileSystem);
        partition.identity = volume.identity;
        partition.totalBytes = volume.totalBytes;
        partition.freeBytes = volume.freeBytes;
        partition.usedBytes = volume.totalBytes - volume.freeBytes;
        return partition;
    }
    return std::nullopt;
}

// The disk record for reports, which identify targets by their drive.
DiskInfo recordOf(const PartitionInfo &partition)
{
    DiskInfo disk;
    disk.model = Cli::tr("volume %1").arg(partition.driveLetter);
    disk.sizeBytes = partition.totalBytes;
    disk.totalSectors = disk.sizeBytes / disk.bytesPerSector;
    disk.addPartition(partition);
    return disk;
}

Outcome<VolumeTarget> findWholeDrive(int number, const QList<DiskInfo> &disks)
{
    for (const DiskInfo &disk : disks) {
        if (disk.diskNumber == number)
            return VolumeTarget{disk, {}, Cli::tr("drive %1").arg(number)};
    }
    return Refusal{Refused, Cli::tr("no such drive: %1").arg(number)};
}

} // namespace

Outcome<VolumeTarget> findVolume(const QString &nameOrNumber, const QList<DiskInfo> &disks)
{
    if (const std::optional<int> number = driveNumber(nameOrNumber))
        return findWholeDrive(*number, disks);
    const NameMatch match(nameOrNumber);
    for (const DiskInfo &disk : disks) {
        for (const PartitionInfo &partition : disk.partitions) {
            if (match.matches(partition.driveLetter))
                return VolumeTarget{disk, partition, partition.driveLetter};
        }
    }
    if (const auto partition = findVolumeWithoutDrive(match))
        return VolumeTarget{recordOf(*partition), *partition, partition->driveLetter};
    return Refusal{Refused, Cli::tr("no such volume: %1").arg(displayText(nameOrNumber))};
}

} // namespace cli
