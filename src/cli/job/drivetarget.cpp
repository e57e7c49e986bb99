#include "cli/job/drivetarget.h"

#include "cli/io/paths.h"
#include "cli/io/permission.h"
#include "cli/texts.h"
#include "engine/driveidentity.h"
#include "model/displaytext.h"
#include "platform/devicefailure.h"
#include "platform/devices.h"
#include "platform/platform.h"
#include "services/diskmanager.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

Refusal noSuchDrive(const QString &given)
{
    return {Refused, Cli::tr("no such drive: %1").arg(displayText(given))};
}

bool isPathOf(const DiskInfo &disk, const QString &path)
{
    if (disk.devicePath == path)
        return true;
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(disk.devicePath).canonicalFilePath();
}

template <typename Condition>
const DiskInfo *findDisk(const QList<DiskInfo> &disks, Condition condition)
{
    const auto found = std::find_if(disks.begin(), disks.end(), condition);
    return found == disks.end() ? nullptr : &*found;
}

// The drive of a volume or partition; null for any other path.
const DiskInfo *findDriveOfPart(const QString &given, const QList<DiskInfo> &disks)
{
    platform::Devices &devices = platform::Platform::current().devices();
    auto query = devices.queryVolume(QFileInfo(absolutePath(given)).canonicalFilePath());
    // The name of a volume need not be a path.
    if (!query)
        query = devices.queryVolume(given);
    if (!query)
        return nullptr;
    const auto extents = (*query.value()).extents(platform::ManyExtents);
    if (!extents || extents.value().isEmpty())
        return nullptr;
    const int number = extents.value().constFirst().diskNumber;
    return findDisk(disks, [number](const DiskInfo &disk) { return disk.diskNumber == number; });
}

// Read-only devices are not in the list of drives.
bool isReadOnlyDevice(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const auto query = platform::Platform::current().devices().queryVolume(canonical);
    return query && query.value()->use().valueOr({}).isReadOnly;
}

QString otherDisksText(const SpanningVolume &volume)
{
    QStringList others;
    for (const int number : volume.otherDisks)
        others.append(number < 0 ? Cli::tr("a device that is no drive") : Cli::tr("drive %1").arg(number));
    return others.join(QLatin1String(", "));
}

} // namespace

std::optional<int> driveNumber(const QString &word)
{
    const bool isDigits = !word.isEmpty() && std::all_of(word.begin(), word.end(), [](QChar character) {
        return character >= u'0' && character <= u'9';
    });
    bool fits = false;
    const int number = word.toInt(&fits);
    return isDigits && fits ? std::optional(number) : std::nullopt;
}

Outcome<DiskInfo> findDrive(const QString &numberOrPath, const QList<DiskInfo> &disks)
{
    const std::optional<int> number = driveNumber(numberOrPath);
    const QString path = number ? QString() : absolutePath(numberOrPath);
    const DiskInfo *disk = findDisk(disks, [&](const DiskInfo &candidate) {
        return number ? candidate.diskNumber == *number
                      : candidate.devicePath == numberOrPath || isPathOf(candidate, path);
    });
    if (!disk && number)
        return noSuchDrive(numberOrPath);
    if (!disk) {
        const DiskInfo *whole = findDriveOfPart(numberOrPath, disks);
        if (!whole && isReadOnlyDevice(path))
            return Refusal{Refused, Cli::tr("%1 is read-only").arg(displayText(numberOrPath))};
        if (!whole)
            return noSuchDrive(numberOrPath);
        return Refusal{Refused, Cli::tr("%1 is a part of drive %2; a whole drive must be given")
                                    .arg(displayText(numberOrPath))
                                    .arg(whole->diskNumber)};
    }
    return *disk;
}

Outcome<DiskInfo> findDriveToErase(const QString &numberOrPath, const QList<DiskInfo> &disks)
{
    auto disk = findDrive(numberOrPath, disks);
    if (disk && disk->isSystemDisk) {
        return Refusal{Refused, Cli::tr("drive %1 is a system disk and cannot be erased while it is in use")
                                    .arg(disk->diskNumber)};
    }
    return disk;
}

std::optional<Refusal> checkObstacles(const DiskInfo &disk)
{
    const DiskObstacles obstacles = DiskManager::obstacles(disk.diskNumber);
    if (obstacles.isReadOnly)
        return Refusal{Refused, Cli::tr("drive %1 is read-only").arg(disk.diskNumber)};
    QStringList reasons;
    for (const SpanningVolume &volume : obstacles.spanningVolumes)
        reasons.append(describeSpanning(volume, disk.diskNumber));
    if (!obstacles.holders.isEmpty()) {
        reasons.append(Cli::tr("drive %1 is held by %2")
                           .arg(QString::number(disk.diskNumber),
                                displayText(obstacles.holders.join(QLatin1String(", ")))));
    }
    if (reasons.isEmpty())
        return std::nullopt;
    if (!obstacles.releaseCommands.isEmpty())
        reasons.append(Cli::tr("to release it: %1")
                           .arg(displayText(obstacles.releaseCommands.join(QLatin1String(" && ")))));
    return Refusal{Refused, reasons.join(QLatin1String("; "))};
}

std::optional<Refusal> probeDrive(const DiskInfo &disk)
{
    const auto opened = platform::Platform::current().devices().openDrive(
        identityOf(disk), platform::DriveAccess::BesideOwnVolumes);
    if (opened.code() == platform::AccessDenied)
        return Refusal{Refused,
                       notPermitted(Cli::tr("not permitted to write to drive %1").arg(disk.diskNumber))};
    if (platform::isDeviceGone(opened.code()))
        return Refusal{Refused,
                       Cli::tr("drive %1 is gone, or another one has taken its place").arg(disk.diskNumber)};
    if (opened.code() == platform::WriteProtect)
        return Refusal{Refused, Cli::tr("drive %1 is read-only").arg(disk.diskNumber)};
    // The job has other ways to open the drive and reports any other failure itself.
    return std::nullopt;
}

QString describeSpanning(const SpanningVolume &volume, int diskNumber)
{
    return Cli::tr("volume %1 lies on drive %2 and also on %3")
        .arg(displayText(volume.name), QString::number(diskNumber), otherDisksText(volume));
}

} // namespace cli
