#pragma once

#include "platform/devices.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// Pure functions over the raw replies in which devices describe themselves. Layouts and numbers are those of
/// the Windows storage stack (STORAGE_DEVICE_DESCRIPTOR, VOLUME_DISK_EXTENTS and others; winioctl.h),
/// little-endian. Other systems fill the same layouts, so that one decoder serves all and is tested with
/// hand-made replies.

namespace platform {

/// STORAGE_BUS_TYPE, as far as backends produce it; a reply may contain any number.
enum StorageBus : quint32 {
    BusUnknown = 0,
    BusScsi = 1,
    BusAtapi = 2,
    BusAta = 3,
    BusFirewire = 4,
    BusUsb = 7,
    BusRaid = 8,
    BusIscsi = 9,
    BusSas = 10,
    BusSata = 11,
    BusSd = 12,
    BusMmc = 13,
    BusVirtual = 14,
    BusFileBackedVirtual = 15,
    BusNvme = 17,
};

struct DeviceDescriptor
{
    QString productId;    ///< Latin-1 in the reply; trimmed, without non-printing characters
    QString serialNumber; ///< the same
    bool removableMedia = false;
    quint32 busType = BusUnknown;
};

/// Never reads outside the reply: a string whose offset is 0 or beyond the end is empty, one without a
/// terminator ends with the reply. A reply too short for the fixed part gives an empty record.
DeviceDescriptor decodeDeviceDescriptor(const QByteArray &reply);
/// The reply that decodes to the record. Characters outside Latin-1 become '?'.
QByteArray encodeDeviceDescriptor(const DeviceDescriptor &descriptor);

/// The extents in a reply. Those that do not lie wholly inside the reply are left out.
QList<Extent> decodeExtents(const QByteArray &reply);
QByteArray encodeExtents(const QList<Extent> &extents);

/// All extents of a volume, whatever their number.
Result<QList<Extent>> allExtents(DeviceQuery &volume);

/// Whether a volume lies on that drive and nowhere else; false without extents.
bool liesOnlyOn(const QList<Extent> &extents, int driveNumber);

/// The layers that the partitions in a reply (DRIVE_LAYOUT_INFORMATION_EX) reveal on the drive, each once:
/// "Storage Spaces", "LDM". MoreData when the reply holds fewer partitions than it counts and none of them
/// reveals a layer, GeneralFailure when it is too short for the count.
Result<QStringList> decodeHolders(const QByteArray &reply);

/// The world-wide name among the identifiers in a reply (STORAGE_DEVICE_ID_DESCRIPTOR). Of the identifiers of
/// the unit itself the NAA one, else the EUI-64. Empty when there is neither.
QString decodeWorldWideName(const QByteArray &reply);

/// The identity from the drive's present replies. Missing values are empty or 0.
DriveIdentity identityFrom(int number, const QByteArray &descriptorReply, qint64 sizeBytes,
                           const QString &worldWideName);
/// The same, with the replies read from the drive.
DriveIdentity identityOf(int number, DeviceQuery &drive);

} // namespace platform
