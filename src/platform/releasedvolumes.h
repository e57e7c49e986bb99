#pragma once

#include "platform/status.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace platform {

/// The volumes that the system has released from a drive, so that the drive itself can be written from its
/// first sector to its last. While this object exists, no other process can mount them, and the drive is
/// opened with DriveAccess::BesideOwnVolumes. Destruction without restore() or keep() restores. One thread at
/// a time.
class ReleasedVolumes
{
public:
    ReleasedVolumes() = default;
    virtual ~ReleasedVolumes() = default;
    ReleasedVolumes(const ReleasedVolumes &) = delete;
    ReleasedVolumes &operator=(const ReleasedVolumes &) = delete;

    /// The names of the volumes, as Devices::volumeNames() listed them.
    virtual QStringList names() const = 0;

    /// Whether this object holds the still visible volume, locked and dismounted.
    virtual bool holds(const QString &name) const = 0;

    /// Call it when the drive is unchanged: mounts the volumes again where and how they were, and returns
    /// those that could not be restored. All handles of the drive must be closed. Windows: takes the drive
    /// online again. Linux: mounts in the original order, with the original source, file system, options and
    /// propagation.
    virtual QStringList restore() = 0;

    /// Call it when the content of the drive is gone: restores nothing, and the system reads the drive anew.
    /// All handles of the drive must be closed. Windows: takes the drive online again; a failure leaves it
    /// offline. Linux: has the partition table read, where the system does that.
    virtual Status keep() = 0;
};

/// The result of releasing the volumes of a drive.
struct VolumeRelease
{
    std::unique_ptr<ReleasedVolumes> volumes{}; ///< null after a failure
    Status failure{};
    QString volume{};          ///< the volume that prevents the release, where it is known
    QStringList notRestored{}; ///< volumes that were released before the failure and could not be restored
};

} // namespace platform
