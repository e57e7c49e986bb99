#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A mounted volume that lies on a disk and on others too. Overwriting it would overwrite disks that were not
/// chosen.
struct SpanningVolume
{
    QString name;          ///< as PartitionInfo::driveLetter
    QList<int> otherDisks; ///< ascending; -1 stands for a device without a disk number

    bool operator==(const SpanningVolume &) const = default;
};

/// The reasons why a disk cannot be erased.
struct DiskObstacles
{
    bool isReadOnly = false;
    QList<SpanningVolume> spanningVolumes;
    QStringList holders;         ///< names of the structures that the system has built on the disk
    QStringList releaseCommands; ///< free the disk of volumes and holders, in the order of execution

    bool isEmpty() const { return !isReadOnly && spanningVolumes.isEmpty() && holders.isEmpty(); }
};
