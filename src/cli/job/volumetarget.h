#pragma once

#include "cli/outcome.h"
#include "model/diskinfo.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace cli {

/// The target of one argument of a free-space job.
struct VolumeTarget
{
    DiskInfo disk;           ///< no number, and the name of the volume, when the volume is on no single drive
    PartitionInfo partition; ///< no name when all volumes of the drive are meant
    QString name;            ///< for the user
};

/// The volume with that drive letter or mount point, or all volumes of the drive with that number. Refused
/// when there is none.
Outcome<VolumeTarget> findVolume(const QString &nameOrNumber, const QList<DiskInfo> &disks);

} // namespace cli
