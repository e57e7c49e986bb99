#pragma once

#include "platform/forwarding.h"
#include "support/loopmount.h"

#include <QString>
#include <QStringList>

// Shows only the drives and volumes of one loop device that a test owns. No other device is listed, queried
// or opened.
class OnlyThisDrive : public platform::ForwardingDevices
{
public:
    OnlyThisDrive(platform::Devices &machine, const LoopMount &volume)
        : ForwardingDevices(machine)
        , m_device(volume.device())
        , m_mountPoint(volume.mountPoint())
    {}
    QString drivePath(int number) override;
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override;
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override;
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &drive) override;
    platform::VolumeRelease releaseVolumes(const platform::DriveIdentity &drive) override;
    QStringList volumeNames() override;
    QList<platform::MountedVolume> mountedVolumes() override;

private:
    bool isOurs(const QString &name) const { return name == m_mountPoint || name == m_device; }
    static platform::Status absent() { return {platform::FileNotFound, 0, "only the test's own drive"}; }

    QString m_device;
    QString m_mountPoint;
};
