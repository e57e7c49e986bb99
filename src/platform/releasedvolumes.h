#pragma once

#include "platform/status.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace platform {

/// The volumes of a drive that the system has let go of, so that the drive itself can be written from its
/// first sector to its last. As long as this lives nobody else gets them back, and the drive is to be opened
/// with DriveAccess::BesideOwnVolumes. Destroyed before restore() or keep(), it restores. One thread at a
/// time.
class ReleasedVolumes
{
public:
    ReleasedVolumes() = default;
    virtual ~ReleasedVolumes() = default;
    ReleasedVolumes(const ReleasedVolumes &) = delete;
    ReleasedVolumes &operator=(const ReleasedVolumes &) = delete;

    /// Their names, as Devices::volumeNames() had them.
    virtual QStringList names() const = 0;

    /// Whether the volume, which is still in sight, is one that this holds locked and dismounted.
    virtual bool holds(const QString &name) const = 0;

    /// The drive is as it was: the volumes are back where and how they were. Those that cannot be brought
    /// back are the answer. All handles of the drive are closed by then. Windows: takes the drive online
    /// again. Linux: mounts in the order of the mounts before, with their source, file system, options and
    /// propagation.
    virtual QStringList restore() = 0;

    /// What was on the drive is gone: nothing is brought back, and the system looks at the drive anew. All
    /// handles of the drive are closed by then.
    /// Windows: takes the drive online again; a failure leaves it offline. Linux: has the partition table
    /// read, where the system does that.
    virtual Status keep() = 0;
};

/// What became of the attempt to release a drive of its volumes.
struct VolumeRelease
{
    std::unique_ptr<ReleasedVolumes> volumes{}; ///< null after a failure
    Status failure{};
    QString volume{};          ///< that is in the way, where it is known
    QStringList notRestored{}; ///< let go of before the failure, and lost to it
};

} // namespace platform
