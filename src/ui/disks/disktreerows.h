#pragma once

#include "model/diskinfo.h"

#include <QCoreApplication>

QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)

/// The rows of the tree of disks. Names from devices and file systems are shown as displayText().
class DiskTreeRows
{
    Q_DECLARE_TR_FUNCTIONS(DiskSelectPage)

public:
    DiskTreeRows() = delete;

    enum Column { NameColumn, SizeColumn, TypeColumn, InterfaceColumn, StatusColumn, ColumnCount };
    enum RowType { DiskRow = 0, PartitionRow = 1 };
    /// Data in the first column of a row.
    enum Role {
        TypeRole = Qt::UserRole, ///< a RowType
        DiskIndexRole,           ///< position of the disk, also of a partition's
        PartitionNumberRole,     ///< partitions only
        IsSystemDiskRole,        ///< disks only
        IsSystemPartitionRole,   ///< partitions only
    };

    /// Makes the disk's row with one child for each partition. The caller owns the row.
    static QTreeWidgetItem *create(const DiskInfo &disk, int diskIndex);

private:
    static QTreeWidgetItem *createPartition(const PartitionInfo &partition, int diskIndex);
};
