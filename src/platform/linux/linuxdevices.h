#pragma once

#include "platform/devices.h"
#include "platform/linux/linuxblocktree.h"
#include "platform/linux/linuxdriveregistry.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxsystemtree.h"
#include "platform/linux/linuxvolume.h"

namespace platform {

/// The drives and volumes of a Linux machine, queried from the kernel at each call.
class LinuxDevices : public Devices
{
public:
    explicit LinuxDevices(const SystemTree &tree = {});

    QString drivePath(int number) override;
    Result<std::unique_ptr<DeviceQuery>> queryDrive(int number) override;
    Result<std::unique_ptr<DeviceQuery>> queryVolume(const QString &name) override;
    Result<std::unique_ptr<RawDevice>> openDrive(const DriveIdentity &drive, DriveAccess access) override;
    Result<std::unique_ptr<VolumeDevice>> openVolume(const QString &name,
                                                     const DriveIdentity &drive) override;
    VolumeRelease releaseVolumes(const DriveIdentity &drive) override;
    QStringList volumeNames() override;
    Result<QStringList> machineVolumes() override { return Status{NotSupported, 0, "volumes"}; }
    QList<MountedVolume> mountedVolumes() override;

private:
    Status checkIdentity(const DriveIdentity &chosen, const Drive &present) const;
    Result<FileDescriptor> openChosen(const DriveIdentity &drive, DriveAccess access);
    QList<VolumeTable::Mount> mountsOn(int driveNumber);
    QList<Extent> extentsOf(const QByteArray &device);

    SystemTree m_tree;
    BlockTree m_blocks;
    VolumeTable m_volumes;
    DriveRegistry m_registry;
};

} // namespace platform
