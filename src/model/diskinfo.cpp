#include "model/diskinfo.h"

#include "model/displaytext.h"
#include "model/formatsize.h"

#include <QObject>

#include <array>

namespace {
constexpr const char *unknownText = QT_TRANSLATE_NOOP("QObject", "未知");

// Indexed by the number of the type, from 1.
constexpr std::array<const char *, 5> diskTypeTexts{
    QT_TRANSLATE_NOOP("QObject", "机械硬盘"), QT_TRANSLATE_NOOP("QObject", "固态硬盘"),
    QT_TRANSLATE_NOOP("QObject", "USB设备"),  QT_TRANSLATE_NOOP("QObject", "NVMe"),
    QT_TRANSLATE_NOOP("QObject", "外置硬盘"),
};
constexpr std::array<const char *, 5> busTypeTexts{"SATA", "NVMe", "USB", "SCSI", "IDE"};

template <std::size_t Size>
const char *textOf(const std::array<const char *, Size> &texts, qint32 number)
{
    return number >= 1 && number <= static_cast<qint32>(Size) ? texts[static_cast<std::size_t>(number - 1)]
                                                              : nullptr;
}
} // namespace

QString DiskInfo::displayName() const
{
    const QString shownModel = displayText(model);
    if (shownModel.isEmpty())
        return QStringLiteral("Disk %1 (%2)").arg(QString::number(diskNumber), formattedSize());
    return QStringLiteral("%1 (%2)").arg(shownModel, formattedSize());
}

QString DiskInfo::diskTypeName() const
{
    const char *text = textOf(diskTypeTexts, static_cast<qint32>(diskType));
    return QObject::tr(text ? text : unknownText);
}

QString DiskInfo::busTypeName() const
{
    const char *text = textOf(busTypeTexts, static_cast<qint32>(busType));
    return text ? QString::fromLatin1(text) : QObject::tr(unknownText);
}

QString DiskInfo::formattedSize() const
{
    return formatSize(sizeBytes);
}

void DiskInfo::addPartition(const PartitionInfo &partition)
{
    partitions.append(partition);
    isSystemDisk = isSystemDisk || partition.isSystem;
}
