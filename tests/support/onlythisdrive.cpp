#include "support/onlythisdrive.h"

QString OnlyThisDrive::drivePath(int number)
{
    const QString path = m_target.drivePath(number);
    return path == m_device ? path : QString();
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> OnlyThisDrive::queryDrive(int number)
{
    if (drivePath(number).isEmpty())
        return absent();
    return m_target.queryDrive(number);
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> OnlyThisDrive::queryVolume(const QString &name)
{
    if (!isOurs(name))
        return absent();
    return m_target.queryVolume(name);
}

platform::Result<std::unique_ptr<platform::RawDevice>>
OnlyThisDrive::openDrive(const platform::DriveIdentity &drive, platform::DriveAccess access)
{
    if (drivePath(drive.number).isEmpty())
        return absent();
    return m_target.openDrive(drive, access);
}

platform::Result<std::unique_ptr<platform::VolumeDevice>>
OnlyThisDrive::openVolume(const QString &name, const platform::DriveIdentity &drive)
{
    if (!isOurs(name))
        return absent();
    return m_target.openVolume(name, drive);
}

platform::VolumeRelease OnlyThisDrive::releaseVolumes(const platform::DriveIdentity &drive)
{
    if (drivePath(drive.number).isEmpty())
        return {.failure = absent()};
    return m_target.releaseVolumes(drive);
}

QStringList OnlyThisDrive::volumeNames()
{
    QStringList names = m_target.volumeNames();
    names.removeIf([this](const QString &name) { return !isOurs(name); });
    return names;
}

QList<platform::MountedVolume> OnlyThisDrive::mountedVolumes()
{
    QList<platform::MountedVolume> volumes = m_target.mountedVolumes();
    volumes.removeIf([this](const platform::MountedVolume &volume) { return !isOurs(volume.name); });
    return volumes;
}
