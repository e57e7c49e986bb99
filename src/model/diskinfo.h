#pragma once

#include "model/partitioninfo.h"

#include <QList>
#include <QMetaType>
#include <QString>

/// Kind of medium. The numbers are fixed; any other number is carried and shown as unknown.
enum class DiskType : qint32 {
    Unknown = 0,
    HDD = 1,
    SSD = 2,
    USB = 3,
    NVMe = 4,
    External = 5,
};

/// Interface of a disk. The numbers are fixed; any other number is carried and shown as unknown.
enum class BusType : qint32 {
    Unknown = 0,
    SATA = 1,
    NVMe = 2,
    USB = 3,
    SCSI = 4,
    IDE = 5,
};

/// One physical disk and the mounted volumes on it. A plain value that holds no handle.
struct DiskInfo
{
    qint32 diskNumber = -1; ///< -1: the record is not filled
    QString devicePath;
    QString model;
    QString serialNumber;
    QString description; ///< free for the caller; enumeration leaves it empty
    qint64 sizeBytes = 0;
    qint64 totalSectors = 0; ///< sizeBytes / bytesPerSector
    qint32 bytesPerSector = 512;
    DiskType diskType = DiskType::Unknown;
    BusType busType = BusType::Unknown;
    QList<PartitionInfo> partitions; ///< in order of discovery
    bool isRemovable = false;
    bool isSystemDisk = false;
    bool isAvailable = true;
    QString worldWideName; ///< "naa.5000c500a1b2c3d4"; empty when the drive has none

    /// Model (or the disk's number) and size. Safe to show: see displayText().
    QString displayName() const;
    /// Translated kind of medium.
    QString diskTypeName() const;
    /// Name of the interface; only "unknown" is translated.
    QString busTypeName() const;
    QString formattedSize() const;

    /// Appends the volume. A system volume marks the disk as the system disk, which is never undone.
    void addPartition(const PartitionInfo &partition);

    bool operator==(const DiskInfo &) const = default;
};

Q_DECLARE_METATYPE(DiskInfo)
