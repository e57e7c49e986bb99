#pragma once

#include <QMetaType>

/// The target of a job. Reports store the number. Unscoped with a fixed width, so that an unknown number read
/// from outside is kept.
enum OperationType : qint32 {
    DiskWipe = 0,
    PartitionWipe = 1,
    FreeSpaceWipe = 2,
    FileWipe = 3,
};

Q_DECLARE_METATYPE(OperationType)
