#pragma once

#include "model/diskinfo.h"

#include <QCoreApplication>

QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)

/// The rows of a tree of disks. Names that a device or a file system chose are shown as displayText().
class DiskTreeRows
{
    Q_DECLARE_TR_FUNCTIONS(DiskSelectPage)

public:
    DiskTreeRows() = delete;

    enum Column { NameColumn, SizeColumn, TypeColumn, InterfaceColumn, StatusColumn, ColumnCount };
    enum RowType { DiskRow = 0, PartitionRow = 1 };
    /// What a row carries in its first column.
    enum Role {
        TypeRole = Qt::UserRole, ///< a RowType
        DiskIndexRole,           ///< position of the disk, also of a partition's
        PartitionNumberRole,     ///< partitions only
        IsSystemDiskRole,        ///< disks only
        IsSystemPartitionRole,   ///< partitions only
    };

    /// The disk's row with one child for each of its partitions; the caller owns it.
    static QTreeWidgetItem *create(const DiskInfo &disk, int diskIndex);

private:
    static QTreeWidgetItem *createPartition(const PartitionInfo &partition, int diskIndex);
};
