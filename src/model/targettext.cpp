#include "model/targettext.h"

#include "model/displaytext.h"
#include "model/formatsize.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString indent = u"  "_s;

QString orUnknown(const QString &name)
{
    return name.isEmpty() ? TargetText::tr("unknown") : displayText(name);
}

} // namespace

QString TargetText::drive(const DiskInfo &disk)
{
    return tr("drive %1: model %2, serial number %3, %4, %5")
        .arg(QString::number(disk.diskNumber), orUnknown(disk.model), orUnknown(disk.serialNumber),
             disk.formattedSize(), displayText(disk.devicePath));
}

QString TargetText::volume(const PartitionInfo &partition)
{
    QString line = tr("volume %1, %2, %3, %4 free")
                       .arg(displayText(partition.driveLetter), orUnknown(partition.fileSystem),
                            partition.formattedTotal(), partition.formattedFree());
    if (!partition.label.isEmpty())
        line += tr(", label %1").arg(displayText(partition.label));
    return line;
}

QStringList TargetText::driveWithVolumes(const DiskInfo &disk)
{
    QStringList lines{drive(disk)};
    for (const PartitionInfo &partition : disk.partitions)
        lines.append(indent + volume(partition));
    if (disk.partitions.isEmpty())
        lines.append(indent + tr("no mounted volumes"));
    return lines;
}

QStringList TargetText::freeSpace(const DiskInfo &disk, const PartitionInfo &partition)
{
    if (partition.driveLetter.isEmpty())
        return driveWithVolumes(disk);
    if (disk.diskNumber < 0)
        return {volume(partition)};
    return {drive(disk), indent + volume(partition)};
}

QString TargetText::amount(quint64 files, quint64 bytes, bool isComplete)
{
    // Whole sentences, as languages differ in the order of their parts.
    const QString size = formatSize(static_cast<qint64>(bytes));
    if (files == 1)
        return isComplete ? tr("1 file, %1").arg(size) : tr("at least 1 file, %1").arg(size);
    const QString text = isComplete ? tr("%1 files, %2") : tr("at least %1 files, %2");
    return text.arg(QString::number(files), size);
}

QStringList TargetText::beginningOf(qsizetype count, const std::function<QString(qsizetype)> &lineOf)
{
    constexpr qsizetype most = 20;
    QStringList lines;
    for (qsizetype i = 0; i < std::min(count, most); ++i)
        lines.append(lineOf(i));
    if (count > most)
        lines.append(tr("and %1 more").arg(count - most));
    return lines;
}
