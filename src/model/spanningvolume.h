#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A mounted volume that lies on a disk and elsewhere too, so that to overwrite it is to overwrite what
/// nobody chose.
struct SpanningVolume
{
    QString name;          ///< as PartitionInfo::driveLetter
    QList<int> otherDisks; ///< ascending; -1 stands for a device that is no disk with a number

    bool operator==(const SpanningVolume &) const = default;
};

/// What keeps a disk from being erased.
struct DiskObstacles
{
    bool isReadOnly = false;
    QList<SpanningVolume> spanningVolumes;
    QStringList holders;         ///< what the system has built on the disk, by name
    QStringList releaseCommands; ///< free the disk of volumes and holders, in the order to be given

    bool isEmpty() const { return !isReadOnly && spanningVolumes.isEmpty() && holders.isEmpty(); }
};
