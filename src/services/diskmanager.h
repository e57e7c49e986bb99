#pragma once

#include "model/diskinfo.h"
#include "model/partitioninfo.h"
#include "model/spanningvolume.h"

#include <QList>

/// Finds the physical disks and the mounted volumes on each, through the current platform. Needs no
/// administrator rights. Every call asks the devices again; nothing is cached and no handle stays open. A
/// list waits for each device up to the limit of limitedquestion; a device that does not answer counts as one
/// that cannot be opened. Any thread.
///
/// There are no errors: a device that cannot be opened is left out, and a query that fails leaves the default
/// of its field. Diagnostics go to the debug output.
class DiskManager
{
public:
    DiskManager() = delete;

    static constexpr int FirstDrive = 0;
    static constexpr int LastDrive = 31;

    /// The name of a disk for limitedquestion.
    static QString driveKey(int diskNumber);

    /// The disks FirstDrive to LastDrive that can be opened, ascending, each with its volumes.
    static QList<DiskInfo> enumerateDisks();

    /// The mounted volumes that lie wholly on that disk, in the system's order. `driveLetter` is the
    /// unchanged name that opens the volume; labels are safe to display.
    static QList<PartitionInfo> partitionsForDisk(int diskNumber);

    /// The mounted volumes that lie on that disk and also elsewhere, in the system's order.
    /// partitionsForDisk() does not list them.
    static QList<SpanningVolume> spanningVolumesForDisk(int diskNumber);

    /// The reasons why that disk cannot be erased. A disk that cannot be queried has none.
    static DiskObstacles obstacles(int diskNumber);

    /// SSD when the disk has no seek penalty or supports trim, HDD when it reports neither, Unknown when it
    /// cannot be opened.
    static DiskType detectDiskType(int diskNumber);
};
