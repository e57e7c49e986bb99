#pragma once

#include <QMetaType>

/// What a job wipes. Reports store the number. Unscoped with a fixed width, so that a number from outside
/// that has no name survives.
enum OperationType : qint32 {
    DiskWipe = 0,
    PartitionWipe = 1,
    FreeSpaceWipe = 2,
    FileWipe = 3,
};

Q_DECLARE_METATYPE(OperationType)
