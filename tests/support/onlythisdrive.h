#pragma once

#include "platform/forwarding.h"
#include "support/loopmount.h"

// Of all drives and volumes of the machine, those of one loop device that a test owns: nothing else is
// listed, asked or opened.
class OnlyThisDrive : public platform::ForwardingDevices
{
public:
    OnlyThisDrive(platform::Devices &machine, const LoopMount &volume)
        : ForwardingDevices(machine)
        , m_device(volume.device())
        , m_mountPoint(volume.mountPoint())
    {}
    QString drivePath(int number) override
    {
        const QString path = m_target.drivePath(number);
        return path == m_device ? path : QString();
    }
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override
    {
        if (drivePath(number).isEmpty())
            return absent();
        return m_target.queryDrive(number);
    }
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override
    {
        if (!isOurs(name))
            return absent();
        return m_target.queryVolume(name);
    }
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override
    {
        if (drivePath(drive.number).isEmpty())
            return absent();
        return m_target.openDrive(drive, access);
    }
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &drive) override
    {
        if (!isOurs(name))
            return absent();
        return m_target.openVolume(name, drive);
    }
    QStringList volumeNames() override
    {
        QStringList names = m_target.volumeNames();
        names.removeIf([this](const QString &name) { return !isOurs(name); });
        return names;
    }
    QList<platform::MountedVolume> mountedVolumes() override
    {
        QList<platform::MountedVolume> volumes = m_target.mountedVolumes();
        volumes.removeIf([this](const platform::MountedVolume &volume) { return !isOurs(volume.name); });
        return volumes;
    }

private:
    bool isOurs(const QString &name) const { return name == m_mountPoint || name == m_device; }
    static platform::Status absent() { return {platform::FileNotFound, 0, "only the test's own drive"}; }

    QString m_device;
    QString m_mountPoint;
};
