#include "ui/disks/disktreerows.h"

#include "model/displaytext.h"
#include "model/spokentext.h"
#include "ui/style/palette.h"
#include "ui/style/tooltip.h"

#include <QBrush>
#include <QIcon>
#include <QTreeWidgetItem>

using namespace Qt::StringLiterals;

namespace {

void setStatus(QTreeWidgetItem &row, const QString &text, const QColor &color)
{
    row.setText(DiskTreeRows::StatusColumn, text);
    row.setData(DiskTreeRows::StatusColumn, Qt::AccessibleTextRole, spokenText(text));
    row.setForeground(DiskTreeRows::StatusColumn, color);
}

void greyOut(QTreeWidgetItem &row)
{
    for (int column = 0; column < DiskTreeRows::StatusColumn; ++column)
        row.setForeground(column, palette::DisabledText);
}

// The names of devices are longer than the first column, so the whole name is in the tip.
void setName(QTreeWidgetItem &row, const QString &name)
{
    row.setText(DiskTreeRows::NameColumn, name);
    row.setData(DiskTreeRows::NameColumn, Qt::AccessibleTextRole, spokenText(name));
    row.setToolTip(DiskTreeRows::NameColumn, plainTip(name));
}

} // namespace

QTreeWidgetItem *DiskTreeRows::create(const DiskInfo &disk, int diskIndex)
{
    auto *row = new QTreeWidgetItem;
    row->setData(NameColumn, TypeRole, DiskRow);
    row->setData(NameColumn, DiskIndexRole, diskIndex);
    row->setData(NameColumn, IsSystemDiskRole, disk.isSystemDisk);

    setName(*row, tr("💿 Disk %1 - %2").arg(QString::number(disk.diskNumber), displayText(disk.model)));
    row->setIcon(NameColumn, QIcon(u":/icons/disk.svg"_s));
    row->setText(SizeColumn, disk.formattedSize());
    row->setText(TypeColumn, disk.diskTypeName());
    row->setText(InterfaceColumn, disk.busTypeName());
    if (disk.isSystemDisk)
        setStatus(*row, tr("⚠️ System Disk"), palette::Error);
    else if (disk.isRemovable)
        setStatus(*row, tr("Removable"), palette::Warning);
    else
        setStatus(*row, tr("Available"), palette::Success);

    if (disk.isSystemDisk) {
        greyOut(*row);
    } else {
        QFont font = row->font(NameColumn);
        font.setBold(true);
        row->setFont(NameColumn, font);
    }
    for (const PartitionInfo &partition : disk.partitions)
        row->addChild(createPartition(partition, diskIndex));
    return row;
}

QTreeWidgetItem *DiskTreeRows::createPartition(const PartitionInfo &partition, int diskIndex)
{
    auto *row = new QTreeWidgetItem;
    row->setData(NameColumn, TypeRole, PartitionRow);
    row->setData(NameColumn, DiskIndexRole, diskIndex);
    row->setData(NameColumn, PartitionNumberRole, partition.partitionIndex);
    row->setData(NameColumn, IsSystemPartitionRole, partition.isSystem);

    QString name = partition.driveLetter.isEmpty() ? tr("📁 Partition %1").arg(partition.partitionIndex)
                                                   : tr("📁 %1").arg(displayText(partition.driveLetter));
    if (!partition.driveLetter.isEmpty() && !partition.label.isEmpty())
        name += u" (%1)"_s.arg(displayText(partition.label));
    setName(*row, name);
    row->setText(SizeColumn, partition.formattedTotal());
    row->setText(TypeColumn, displayText(partition.fileSystem));
    row->setText(InterfaceColumn, tr("%1 free").arg(partition.formattedFree()));
    if (partition.isSystem)
        setStatus(*row, tr("⚠️ System"), palette::Error);
    else if (partition.isBoot)
        setStatus(*row, tr("⚠️ Boot"), palette::Warning);
    else
        setStatus(*row, tr("Available"), palette::Success);
    if (partition.isSystem)
        greyOut(*row);
    return row;
}
