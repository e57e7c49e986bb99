#include "platform/windows/windowsdevices.h"

#include "platform/storagereplies.h"
#include "platform/windows/windowshelddrive.h"
#include "platform/windows/windowslockedvolumes.h"
#include "platform/windows/windowsmachinevolumes.h"
#include "platform/windows/windowsquery.h"
#include "platform/windows/windowsrawdevice.h"
#include "platform/windows/windowsreleasedvolumes.h"
#include "platform/windows/windowsvolume.h"
#include "platform/windows/windowsvolumecalls.h"
#include "platform/windows/windowsvolumeidentity.h"

#include <QDir>
#include <QStorageInfo>

#include <algorithm>
#include <memory>
#include <utility>

namespace platform {

namespace {

// Empty for anything but a drive letter with its colon, because other names below "\\.\" are unrelated
// devices.
QString volumePath(const QString &name)
{
    if (name.size() != 2 || name.at(1) != u':')
        return {};
    const char16_t letter = name.at(0).toUpper().unicode();
    if (letter < u'A' || letter > u'Z')
        return {};
    return QLatin1String(R"(\\.\)") + name;
}

// The identity of the drive must be the one it had when it was chosen. An answer missing both then and now
// is the same, because some drives never tell their serial number or, behind some drivers, their size. An
// answer that appeared or disappeared means another drive.
Status checkIdentity(const DriveIdentity &chosen, HANDLE drive)
{
    const Result<Geometry> geometry = askGeometry(drive);
    const Result<QByteArray> descriptor = askDescriptor(drive);
    const Result<QString> name = askWorldWideName(drive);
    const DriveIdentity present =
        identityFrom(chosen.number, descriptor.valueOr({}), geometry.valueOr({}).sizeBytes, name.valueOr({}));
    if (present == chosen)
        return {};
    for (const Status &answer : {geometry.status(), descriptor.status(), name.status()}) {
        if (!answer)
            return {NotReady, answer.native, "identity check"};
    }
    return {NotReady, 0, "identity check"};
}

// The volume itself names the drives that hold it. If the drive of that number cannot be opened, its
// identity cannot be checked.
Status checkVolume(HANDLE volume, const DriveIdentity &chosen, const QString &drivePath)
{
    const Result<QList<Extent>> extents = askExtents(volume, AllExtents);
    if (!extents)
        return {NotReady, extents.status().native, "volume extents"};
    if (!liesOnlyOn(extents.value(), chosen.number))
        return {NotReady, 0, "volume extents"};
    const Result<WinHandle> drive = openForQuery(drivePath);
    if (drive)
        return checkIdentity(chosen, drive.value().get());
    return chosen == DriveIdentity{.number = chosen.number}
               ? Status{}
               : Status{NotReady, drive.status().native, "identity check"};
}

Result<WinHandle> openChosen(const DriveIdentity &drive, const QString &path, DriveAccess access)
{
    if (drive.number < 0)
        return Status{NotReady, 0, "drive number"};
    Result<WinHandle> opened = openForTransfers(path, access);
    if (!opened)
        return opened.status();
    // The identity is checked while the drive is held, because before that the drive could still be
    // exchanged.
    const Status identity = checkIdentity(drive, opened.value().get());
    if (!identity)
        return identity;
    return opened;
}

struct VolumeName
{
    QString shown;
    QString path;
};

Result<std::unique_ptr<VolumeDevice>> openAt(const QString &path, const DriveIdentity &drive,
                                             const QString &drivePath)
{
    Result<WinHandle> opened = openForTransfers(path, DriveAccess::BesideOwnVolumes);
    if (!opened)
        return opened.status();
    const Status identity = checkVolume(opened.value().get(), drive, drivePath);
    if (!identity)
        return identity;
    const auto openDrive = [drive, drivePath] {
        return openChosen(drive, drivePath, DriveAccess::BesideOwnVolumes);
    };
    return std::unique_ptr<VolumeDevice>(std::make_unique<WindowsVolumeDevice>(opened.take(), openDrive));
}

// Empty when the volume does not tell, since the system itself protects mounted volumes against writes
// through the drive.
QList<Extent> placeOf(const QString &path)
{
    const Result<WinHandle> volume = openForQuery(path);
    return volume ? askExtents(volume.value().get(), AllExtents).valueOr({}) : QList<Extent>();
}

Status lockIfOn(const DriveIdentity &drive, const QString &drivePath, const VolumeName &name,
                LockedVolumes &locked)
{
    const QList<Extent> place = placeOf(name.path);
    const bool isOnDrive = std::ranges::any_of(
        place, [&drive](const Extent &extent) { return extent.diskNumber == drive.number; });
    if (!isOnDrive || locked.has(place))
        return {};
    auto volume = openAt(name.path, drive, drivePath);
    return volume ? locked.lock({name.shown, place, volume.take()}) : volume.status();
}

// Volumes with a letter come first, because users know them by it. After a failure some volumes stay locked;
// inTheWay names the volume that failed, if any.
Status lockEveryVolume(const DriveIdentity &drive, const QString &drivePath, const QStringList &letters,
                       LockedVolumes &locked, QString &inTheWay)
{
    QList<VolumeName> names;
    for (const QString &letter : letters)
        names.append({letter, volumePath(letter)});
    const Result<QStringList> volumes = machineVolumes();
    if (!volumes)
        return volumes.status();
    for (const QString &path : volumes.value())
        names.append({path, path});
    for (const VolumeName &name : std::as_const(names)) {
        if (const Status status = lockIfOn(drive, drivePath, name, locked); !status) {
            inTheWay = name.shown;
            return status;
        }
    }
    return {};
}

// The call requires the root with its trailing separator, and is only sure to understand native separators.
bool isOnLocalDrive(const QString &root)
{
    const UINT type = volumeCalls().getDriveType(QDir::toNativeSeparators(root).toStdWString().c_str());
    return type == DRIVE_REMOVABLE || type == DRIVE_FIXED;
}

} // namespace

QString WindowsDevices::drivePath(int number)
{
    return number < 0 ? QString() : QStringLiteral(R"(\\.\PhysicalDrive%1)").arg(number);
}

Result<std::unique_ptr<DeviceQuery>> WindowsDevices::queryDrive(int number)
{
    if (number < 0)
        return Status{FileNotFound, 0, "drive number"};
    Result<WinHandle> drive = openForQuery(drivePath(number));
    if (!drive)
        return drive.status();
    return std::unique_ptr<DeviceQuery>(std::make_unique<WindowsDriveQuery>(drive.take()));
}

Result<std::unique_ptr<DeviceQuery>> WindowsDevices::queryVolume(const QString &name)
{
    const QString path = isMachineVolume(name) ? name : volumePath(name);
    if (path.isEmpty())
        return Status{FileNotFound, 0, "volume name"};
    Result<WinHandle> volume = openForQuery(path);
    if (!volume)
        return volume.status();
    return std::unique_ptr<DeviceQuery>(std::make_unique<WindowsVolumeQuery>(volume.take(), name));
}

Result<std::unique_ptr<RawDevice>> WindowsDevices::openDrive(const DriveIdentity &drive, DriveAccess access)
{
    const QString path = drivePath(drive.number);
    Result<WinHandle> opened = openChosen(drive, path, access);
    if (!opened)
        return opened.status();
    if (access != DriveAccess::Alone)
        return std::unique_ptr<RawDevice>(std::make_unique<WindowsRawDevice>(opened.take()));
    LockedVolumes volumes;
    QString inTheWay;
    Status held = lockEveryVolume(drive, path, volumeNames(), volumes, inTheWay);
    if (held)
        held = volumes.dismount(inTheWay);
    if (!held)
        return held;
    return std::unique_ptr<RawDevice>(std::make_unique<WindowsHeldDrive>(opened.take(), std::move(volumes)));
}

Result<std::unique_ptr<VolumeDevice>> WindowsDevices::openVolume(const QString &name,
                                                                 const DriveIdentity &drive)
{
    const QString path = volumePath(name);
    if (path.isEmpty())
        return Status{FileNotFound, 0, "volume name"};
    return openAt(path, drive, drivePath(drive.number));
}

VolumeRelease WindowsDevices::releaseVolumes(const DriveIdentity &drive)
{
    const QString path = drivePath(drive.number);
    Result<WinHandle> opened = openChosen(drive, path, DriveAccess::BesideOwnVolumes);
    if (!opened)
        return {.failure = opened.status()};
    LockedVolumes volumes;
    QString inTheWay;
    const Status locked = lockEveryVolume(drive, path, volumeNames(), volumes, inTheWay);
    if (!locked)
        return {.failure = locked, .volume = inTheWay};
    auto released = std::make_unique<WindowsReleasedVolumes>(opened.take(), std::move(volumes));
    const Status away = released->takeAway(inTheWay);
    if (!away)
        return {.failure = away, .volume = inTheWay};
    return {.volumes = std::move(released)};
}

QStringList WindowsDevices::volumeNames()
{
    QStringList names;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
        names.append(QString(QChar(letter)) + u':');
    return names;
}

Result<QStringList> WindowsDevices::machineVolumes()
{
    return platform::machineVolumes();
}

QList<MountedVolume> WindowsDevices::mountedVolumes()
{
    QList<MountedVolume> volumes;
    for (const QStorageInfo &storage : QStorageInfo::mountedVolumes()) {
        MountedVolume mounted;
        mounted.rootPath = storage.rootPath();
        mounted.name = mounted.rootPath.left(2);
        mounted.isReady = storage.isValid() && storage.isReady();
        mounted.isLocal = isOnLocalDrive(mounted.rootPath);
        if (mounted.isReady) {
            mounted.label = storage.name();
            mounted.fileSystem = storage.fileSystemType();
            mounted.totalBytes = storage.bytesTotal();
            mounted.freeBytes = storage.bytesFree();
            mounted.identity = volumeIdentityAt(mounted.rootPath);
        }
        volumes.append(mounted);
    }
    return volumes;
}

} // namespace platform
