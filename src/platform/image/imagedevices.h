#pragma once

#include "platform/devices.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QHash>

namespace platform {

/// Image files as drives with 512-byte sectors and no volumes. Their numbers follow the highest number of a
/// real drive at construction and never change; a real drive that later gets such a number stays hidden. The
/// file keeps its length, so an incomplete last sector is written up to the end of the file.
class ImageDevices : public Devices
{
public:
    /// Both bases outlive this object. A path without a file becomes a drive that does not answer.
    ImageDevices(Devices &base, Files &files, const ImageDriveOptions &options);

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

private:
    Devices &m_base;
    Files &m_files;
    bool m_onlyImages;
    QHash<int, QString> m_images; ///< by drive number
};

} // namespace platform
