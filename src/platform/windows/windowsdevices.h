#pragma once

#include "platform/devices.h"

namespace platform {

/// Drives and volumes of a Windows machine under the system's own numbers and letters.
class WindowsDevices : public Devices
{
public:
    QString drivePath(int number) override;
    Result<std::unique_ptr<DeviceQuery>> queryDrive(int number) override;
    Result<std::unique_ptr<DeviceQuery>> queryVolume(const QString &name) override;
    Result<std::unique_ptr<RawDevice>> openDrive(const DriveIdentity &drive, DriveAccess access) override;
    Result<std::unique_ptr<VolumeDevice>> openVolume(const QString &name,
                                                     const DriveIdentity &drive) override;
    VolumeRelease releaseVolumes(const DriveIdentity &drive) override;
    QStringList volumeNames() override;
    Result<QStringList> machineVolumes() override;
    QList<MountedVolume> mountedVolumes() override;
};

} // namespace platform
