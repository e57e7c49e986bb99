#include "platform/storagereplies.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

// STORAGE_DEVICE_DESCRIPTOR up to RawDeviceProperties. The replies to both queries begin with Version and
// Size.
namespace descriptorfield {
constexpr qsizetype Version = 0;
constexpr qsizetype Size = 4;
constexpr qsizetype RemovableMedia = 10;
constexpr qsizetype ProductIdOffset = 16;
constexpr qsizetype SerialNumberOffset = 24;
constexpr qsizetype BusType = 28;
constexpr qsizetype FixedPart = 36;
constexpr quint32 StructureSize = 40; // with one byte of properties, padded; the value of Version
} // namespace descriptorfield

// VOLUME_DISK_EXTENTS. The extents, and the 64-bit numbers in each, begin on an 8-byte boundary.
namespace extentfield {
constexpr qsizetype Count = 0;
constexpr qsizetype Header = 8;
constexpr qsizetype DiskNumber = 0;
constexpr qsizetype StartingOffset = 8;
constexpr qsizetype Length = 16;
constexpr qsizetype ExtentSize = 24;
} // namespace extentfield

// STORAGE_DEVICE_ID_DESCRIPTOR with its STORAGE_IDENTIFIER entries, the designators of SCSI's vital product
// data page 0x83.
namespace idfield {
constexpr qsizetype Count = 8;
constexpr qsizetype FirstIdentifier = 12;
constexpr qsizetype CodeSet = 0;
constexpr qsizetype Type = 4;
constexpr qsizetype IdentifierSize = 8;
constexpr qsizetype NextOffset = 10;
constexpr qsizetype Association = 12;
constexpr qsizetype Identifier = 16;
constexpr quint32 Binary = 1;
constexpr quint32 Eui64 = 2;
constexpr quint32 Naa = 3;
constexpr quint32 OfUnit = 0; // not of the port or of the target device
} // namespace idfield

// DRIVE_LAYOUT_INFORMATION_EX with its PARTITION_INFORMATION_EX entries.
namespace layoutfield {
constexpr qsizetype Style = 0;
constexpr qsizetype Count = 4;
constexpr qsizetype CountEnd = 8;
constexpr qsizetype FirstPartition = 48;
constexpr qsizetype PartitionSize = 144;
constexpr qsizetype Type = 32;     // one byte in an MBR, 16 in a GPT
constexpr qsizetype TypeSize = 16; // for a GPT
constexpr quint32 Mbr = 0;
constexpr quint32 Gpt = 1;
} // namespace layoutfield

constexpr QLatin1String StorageSpaces("Storage Spaces");
constexpr QLatin1String LogicalDisks("LDM"); // the logical disk manager of dynamic disks

template <typename Number>
Number numberAt(QByteArrayView bytes, qsizetype offset)
{
    return qFromLittleEndian<Number>(bytes.sliced(offset, sizeof(Number)).data());
}

template <typename Number>
void putNumber(QByteArray &bytes, qsizetype offset, Number number)
{
    Q_ASSERT(offset + qsizetype(sizeof(Number)) <= bytes.size());
    qToLittleEndian<Number>(number, bytes.data() + offset);
}

// C0, DEL and C1 controls affect terminals. A soft hyphen is invisible and could make two serial numbers look
// the same.
bool isPrinting(QChar character)
{
    const char16_t code = character.unicode();
    return code >= 0x20 && !(code >= 0x7F && code <= 0x9F) && code != 0xAD;
}

// Non-printing characters are removed first, so that trimming also removes the blanks between them and the
// text.
QString printingPart(QString text)
{
    text.removeIf([](QChar character) { return !isPrinting(character); });
    return text.trimmed();
}

QString textAt(QByteArrayView reply, quint32 offset)
{
    // Compared as 64-bit numbers, because 0xFFFFFFFF, the "none" of some bridges, would overflow in 32 bits.
    if (offset == 0 || qint64(offset) >= reply.size())
        return {};
    const QByteArrayView tail = reply.sliced(qsizetype(offset));
    const qsizetype terminator = tail.indexOf('\0');
    return printingPart(QString::fromLatin1(terminator < 0 ? tail : tail.first(terminator)));
}

// QString::toLatin1 does not define the result for other characters.
QByteArray latin1Text(const QString &text)
{
    QByteArray bytes;
    const QList<uint> codePoints = printingPart(text).toUcs4();
    bytes.reserve(codePoints.size());
    for (const uint codePoint : codePoints)
        bytes += codePoint <= 0xFF ? char(uchar(codePoint)) : '?';
    return bytes;
}

// Appends the terminated text and stores its offset; the offset stays 0 for an empty text.
void putText(QByteArray &reply, qsizetype offsetField, const QString &text)
{
    const QByteArray bytes = latin1Text(text);
    if (bytes.isEmpty())
        return;
    putNumber<quint32>(reply, offsetField, quint32(reply.size()));
    reply += bytes;
    reply += '\0';
}

struct PartitionType
{
    const char *hex; // in the byte order of a GPT
    QLatin1String holder;
};
constexpr PartitionType HolderTypes[] = {
    {"8FAF5CE780F6EE4CAFA3B001E56EFC2D", StorageSpaces},
    {"AAC808588F7EE04285D2E1E90434CFB3", LogicalDisks}, // metadata
    {"A0609BAF3114624FBC683311714A69AD", LogicalDisks}, // data
};
constexpr quint8 MbrLogicalDisks = 0x42;

QLatin1String holderOf(quint32 style, QByteArrayView partition)
{
    if (style == layoutfield::Mbr)
        return numberAt<quint8>(partition, layoutfield::Type) == MbrLogicalDisks ? LogicalDisks
                                                                                 : QLatin1String();
    const QByteArrayView type = partition.sliced(layoutfield::Type, layoutfield::TypeSize);
    const auto *found = std::ranges::find_if(
        HolderTypes, [type](const PartitionType &known) { return QByteArray::fromHex(known.hex) == type; });
    return found == std::end(HolderTypes) ? QLatin1String() : found->holder;
}

} // namespace

DeviceDescriptor decodeDeviceDescriptor(const QByteArray &reply)
{
    if (reply.size() < descriptorfield::FixedPart)
        return {};
    DeviceDescriptor descriptor;
    descriptor.productId = textAt(reply, numberAt<quint32>(reply, descriptorfield::ProductIdOffset));
    descriptor.serialNumber = textAt(reply, numberAt<quint32>(reply, descriptorfield::SerialNumberOffset));
    descriptor.removableMedia = numberAt<quint8>(reply, descriptorfield::RemovableMedia) != 0;
    descriptor.busType = numberAt<quint32>(reply, descriptorfield::BusType);
    return descriptor;
}

QByteArray encodeDeviceDescriptor(const DeviceDescriptor &descriptor)
{
    QByteArray reply(descriptorfield::FixedPart, '\0');
    putNumber<quint32>(reply, descriptorfield::Version, descriptorfield::StructureSize);
    putNumber<quint8>(reply, descriptorfield::RemovableMedia, descriptor.removableMedia ? 1 : 0);
    putNumber<quint32>(reply, descriptorfield::BusType, descriptor.busType);
    putText(reply, descriptorfield::ProductIdOffset, descriptor.productId);
    putText(reply, descriptorfield::SerialNumberOffset, descriptor.serialNumber);
    putNumber<quint32>(reply, descriptorfield::Size, quint32(reply.size()));
    return reply;
}

QList<Extent> decodeExtents(const QByteArray &reply)
{
    if (reply.size() < extentfield::Header)
        return {};
    const qint64 room = (reply.size() - extentfield::Header) / extentfield::ExtentSize;
    const qint64 count = std::min<qint64>(numberAt<quint32>(reply, extentfield::Count), room);
    QList<Extent> extents;
    extents.reserve(qsizetype(count));
    for (qsizetype i = 0; i < count; ++i) {
        const QByteArrayView bytes = QByteArrayView(reply).sliced(
            extentfield::Header + i * extentfield::ExtentSize, extentfield::ExtentSize);
        extents.append({.diskNumber = qint32(numberAt<quint32>(bytes, extentfield::DiskNumber)),
                        .startingOffset = numberAt<qint64>(bytes, extentfield::StartingOffset),
                        .length = numberAt<qint64>(bytes, extentfield::Length)});
    }
    return extents;
}

QByteArray encodeExtents(const QList<Extent> &extents)
{
    QByteArray reply(extentfield::Header + extents.size() * extentfield::ExtentSize, '\0');
    putNumber<quint32>(reply, extentfield::Count, quint32(extents.size()));
    qsizetype offset = extentfield::Header;
    for (const Extent &extent : extents) {
        putNumber<quint32>(reply, offset + extentfield::DiskNumber, quint32(extent.diskNumber));
        putNumber<qint64>(reply, offset + extentfield::StartingOffset, extent.startingOffset);
        putNumber<qint64>(reply, offset + extentfield::Length, extent.length);
        offset += extentfield::ExtentSize;
    }
    return reply;
}

Result<QList<Extent>> allExtents(DeviceQuery &volume)
{
    auto extents = volume.extents(ManyExtents);
    return extents.code() == MoreData ? volume.extents(AllExtents) : extents;
}

bool liesOnlyOn(const QList<Extent> &extents, int driveNumber)
{
    return !extents.isEmpty() && std::ranges::all_of(extents, [driveNumber](const Extent &extent) {
        return extent.diskNumber == driveNumber;
    });
}

Result<QStringList> decodeHolders(const QByteArray &reply)
{
    constexpr const char *Operation = "drive layout";
    if (reply.size() < layoutfield::CountEnd)
        return Status{GeneralFailure, 0, Operation};
    const quint32 style = numberAt<quint32>(reply, layoutfield::Style);
    // A drive without a partition table has no partitions to examine.
    if (style != layoutfield::Mbr && style != layoutfield::Gpt)
        return QStringList();
    const qint64 counted = numberAt<quint32>(reply, layoutfield::Count);
    const qint64 room =
        std::max<qint64>(reply.size() - layoutfield::FirstPartition, 0) / layoutfield::PartitionSize;
    QStringList holders;
    for (qint64 i = 0; i < std::min(counted, room); ++i) {
        const QByteArrayView partition = QByteArrayView(reply).sliced(
            layoutfield::FirstPartition + i * layoutfield::PartitionSize, layoutfield::PartitionSize);
        const QLatin1String holder = holderOf(style, partition);
        if (!holder.isEmpty() && !holders.contains(holder))
            holders.append(holder);
    }
    if (holders.isEmpty() && counted > room)
        return Status{MoreData, 0, Operation};
    return holders;
}

QString decodeWorldWideName(const QByteArray &reply)
{
    if (reply.size() < idfield::FirstIdentifier)
        return {};
    const quint32 count = numberAt<quint32>(reply, idfield::Count);
    QString name;
    qint64 at = idfield::FirstIdentifier;
    for (quint32 i = 0; i < count && at + idfield::Identifier <= reply.size(); ++i) {
        const QByteArrayView entry = QByteArrayView(reply).sliced(qsizetype(at));
        const quint32 type = numberAt<quint32>(entry, idfield::Type);
        const qsizetype size = numberAt<quint16>(entry, idfield::IdentifierSize);
        const bool isOfUnit = numberAt<quint32>(entry, idfield::Association) == idfield::OfUnit;
        const bool isBinary = numberAt<quint32>(entry, idfield::CodeSet) == idfield::Binary;
        if (isOfUnit && isBinary && size > 0 && idfield::Identifier + size <= entry.size()) {
            const QByteArray hex = entry.sliced(idfield::Identifier, size).toByteArray().toHex();
            if (type == idfield::Naa)
                return QLatin1String("naa.") + QString::fromLatin1(hex);
            if (type == idfield::Eui64 && name.isEmpty())
                name = QLatin1String("eui.") + QString::fromLatin1(hex);
        }
        const quint16 next = numberAt<quint16>(entry, idfield::NextOffset);
        if (next == 0)
            break;
        at += next;
    }
    return name;
}

DriveIdentity identityFrom(int number, const QByteArray &descriptorReply, qint64 sizeBytes,
                           const QString &worldWideName)
{
    const DeviceDescriptor descriptor = decodeDeviceDescriptor(descriptorReply);
    return {number, descriptor.serialNumber, sizeBytes, descriptor.productId, worldWideName};
}

DriveIdentity identityOf(int number, DeviceQuery &drive)
{
    return identityFrom(number, drive.descriptor().valueOr({}), drive.geometry().valueOr({}).sizeBytes,
                        drive.worldWideName().valueOr({}));
}

} // namespace platform
