#pragma once

#include <QMetaType>
#include <QString>

/// One mounted volume that lies on a disk. A plain value; sizes are bytes.
struct PartitionInfo
{
    QString driveLetter; ///< the volume's root: "C:" or a mount point
    QString label;
    QString fileSystem;
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;
    qint64 usedBytes = 0; ///< set by the code that fills the record, not computed here
    bool isSystem = false;
    bool isBoot = false;
    qint32 partitionIndex = 0; ///< 0-based position in the disk's list, in order of discovery
    /// Distinguishes the volume from one that is mounted in its place later; opaque, empty when unknown, and
    /// not stored.
    QString identity{};

    QString formattedTotal() const;
    QString formattedFree() const;

    bool operator==(const PartitionInfo &) const = default;
};

Q_DECLARE_METATYPE(PartitionInfo)
