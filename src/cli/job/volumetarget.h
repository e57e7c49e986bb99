#pragma once

#include "cli/outcome.h"
#include "model/diskinfo.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace cli {

// What one argument of a free-space job stands for.
struct VolumeTarget
{
    DiskInfo disk;           // without a number, and named after the volume, when that is on no single drive
    PartitionInfo partition; // its name is empty when all volumes of the drive are meant
    QString name;            // for the user
};

// A volume by drive letter or mount point, or all volumes of a drive by its number. Refused when there is
// none.
Outcome<VolumeTarget> findVolume(const QString &nameOrNumber, const QList<DiskInfo> &disks);

} // namespace cli
