#pragma once

#include "model/diskinfo.h"
#include "model/partitioninfo.h"
#include "model/spanningvolume.h"

#include <QList>

/// Finds the physical disks of the machine and the mounted volumes on each, through the platform in force.
/// Needs no administrator rights. Every call asks the devices anew; nothing is kept between calls and no
/// handle stays open. A list waits for each device for the time of limitedquestion; one that does not answer
/// counts as one that cannot be opened. Any thread.
///
/// Nothing fails as a whole: a device that cannot be opened is left out, a question without an answer leaves
/// the defaults of the record. Diagnostics go to the debug output.
class DiskManager
{
public:
    DiskManager() = delete;

    static constexpr int FirstDrive = 0;
    static constexpr int LastDrive = 31;

    /// What limitedquestion knows a disk as.
    static QString driveKey(int diskNumber);

    /// The disks numbered FirstDrive to LastDrive that can be opened, ascending, each with its volumes.
    static QList<DiskInfo> enumerateDisks();

    /// The mounted volumes that lie wholly on that disk, in the order of the system's list. `driveLetter` is
    /// the name that opens the volume and is kept as it is; labels are safe to show.
    static QList<PartitionInfo> partitionsForDisk(int diskNumber);

    /// The mounted volumes that lie on that disk and elsewhere too, in the order of the system's list. They
    /// are in no list of partitionsForDisk().
    static QList<SpanningVolume> spanningVolumesForDisk(int diskNumber);

    /// What is in the way of erasing that disk; of one that cannot be asked, nothing is known to be.
    static DiskObstacles obstacles(int diskNumber);

    /// SSD when the disk has no seek penalty or takes trim commands, HDD when it claims neither, Unknown when
    /// it cannot be opened.
    static DiskType detectDiskType(int diskNumber);
};
