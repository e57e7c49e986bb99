#include "windows/scriptedmachine.h"

#include "support/testfiles.h"

#include <winioctl.h>

#include <QFile>

namespace replies {

QByteArray geometry(qint32 sector)
{
    return number<qint64>(130) + number<quint32>(12) + number<quint32>(255) + number<quint32>(63) +
           number<qint32>(sector);
}

QByteArray geometryEx(qint64 size, qint32 sector)
{
    return geometry(sector) + number<qint64>(size) + QByteArray(8, '\0');
}

QByteArray length(qint64 bytes)
{
    return number<qint64>(bytes);
}

QByteArray descriptor(const QByteArray &serialNumber)
{
    return QByteArray::fromHex("28000000"
                               "40000000"
                               "00000001"
                               "00000000"
                               "24000000"
                               "00000000"
                               "2C000000"
                               "0B000000"
                               "00000000") +
           QByteArray("MODEL 9\0", 8) + "  " + serialNumber + ' ' + QByteArray(1, '\0');
}

QByteArray naaIdentifier(const QByteArray &digits)
{
    const QByteArray name = QByteArray::fromHex(digits);
    return number<quint32>(12) + number<quint32>(quint32(28 + name.size())) + number<quint32>(1) +
           number<quint32>(1) + number<quint32>(3) + number<quint16>(quint16(name.size())) +
           number<quint16>(0) + number<quint32>(0) + name;
}

QByteArray flag(bool value)
{
    return number<quint32>(12) + number<quint32>(12) + char(value ? 1 : 0) + QByteArray(3, '\0');
}

QByteArray extentsHeader(quint32 count)
{
    return number<quint32>(count) + QByteArray(4, '\xAA');
}

QByteArray extent(qint32 disk, qint64 offset, qint64 bytes)
{
    return number<qint32>(disk) + QByteArray(4, '\xBB') + number<qint64>(offset) + number<qint64>(bytes);
}

QByteArray layout(quint32 style, quint32 count)
{
    return number(style) + number(count) + QByteArray(40, '\xCC');
}

QByteArray gptPartition(const QByteArray &type)
{
    return QByteArray(32, '\xDD') + QByteArray::fromHex(type) + QByteArray(96, '\xEE');
}

QByteArray mbrPartition(quint8 type)
{
    return QByteArray(32, '\xDD') + char(type) + QByteArray(111, '\xEE');
}

} // namespace replies

namespace {

constexpr DWORD SetDiskAttributes = 0x0007C0F4;
constexpr DWORD UpdateProperties = 0x00070140;

QString nameOf(const Win32Faults::Control &control)
{
    switch (control.code) {
    case FSCTL_LOCK_VOLUME:
        return QStringLiteral("lock");
    case FSCTL_UNLOCK_VOLUME:
        return QStringLiteral("unlock");
    case FSCTL_DISMOUNT_VOLUME:
        return QStringLiteral("dismount");
    case UpdateProperties:
        return QStringLiteral("look anew");
    case SetDiskAttributes:
        return control.input.size() > 8 && control.input.at(8) == 1 ? QStringLiteral("offline")
                                                                    : QStringLiteral("online");
    default:
        return {};
    }
}

} // namespace

ScriptedMachine::ScriptedMachine()
{
    restoreImages();
    faults.addDevice(drive, driveImage, DriveSize);
    faults.addDevice(volume, volumeImage, VolumeSize);
    describe();
    script(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY, replies::geometry(Sector));
    script(drive, IOCTL_DISK_GET_LENGTH_INFO, replies::length(DriveSize));
    faults.setPropertyReply(drive, StorageDeviceSeekPenaltyProperty, {0, replies::flag(true), {}});
    faults.setPropertyReply(drive, StorageDeviceTrimProperty, {0, replies::flag(true), {}});
    script(volume, IOCTL_DISK_GET_DRIVE_GEOMETRY, replies::geometry(Sector));
    script(volume, IOCTL_DISK_GET_LENGTH_INFO, replies::length(VolumeSize));
    placeVolume(Number);
    for (const DWORD code :
         {FSCTL_LOCK_VOLUME, FSCTL_DISMOUNT_VOLUME, FSCTL_ALLOW_EXTENDED_DASD_IO, FSCTL_UNLOCK_VOLUME})
        script(volume, code, {});
}

void ScriptedMachine::script(const QString &path, DWORD code, const QByteArray &bytes)
{
    faults.setReply(path, code, {ERROR_SUCCESS, bytes, {}});
}

void ScriptedMachine::refuse(const QString &path, DWORD code, DWORD error)
{
    faults.setReply(path, code, {error, {}, {}});
}

void ScriptedMachine::describe(const QByteArray &serialNumber, qint64 size)
{
    script(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, replies::geometryEx(size, Sector));
    faults.setPropertyReply(drive, StorageDeviceProperty, {0, replies::descriptor(serialNumber), {}});
    faults.setPropertyReply(drive, StorageDeviceIdProperty,
                            {0, replies::naaIdentifier("5000C500A1B2C3D4"), {}});
}

void ScriptedMachine::describeNothing(DWORD error)
{
    refuse(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, error);
    faults.setPropertyReply(drive, StorageDeviceProperty, {error, {}, {}});
    faults.setPropertyReply(drive, StorageDeviceIdProperty, {error, {}, {}});
}

void ScriptedMachine::placeVolume(qint32 disk)
{
    place(volume, 1048576, disk);
}

void ScriptedMachine::place(const QString &path, qint64 offset, qint32 disk)
{
    script(path, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
           replies::extentsHeader(1) + replies::extent(disk, offset, VolumeSize));
}

void ScriptedMachine::addVolume(const QString &path, qint64 offset, qint32 disk)
{
    const QString image = m_folder.filePath(QStringLiteral("volume%1.img").arg(m_added++));
    faults.addDevice(path, writeFile(image, QByteArray(VolumeSize, '.')), VolumeSize);
    script(path, IOCTL_DISK_GET_DRIVE_GEOMETRY, replies::geometry(Sector));
    script(path, IOCTL_DISK_GET_LENGTH_INFO, replies::length(VolumeSize));
    place(path, offset, disk);
    for (const DWORD code : {FSCTL_LOCK_VOLUME, FSCTL_DISMOUNT_VOLUME, FSCTL_UNLOCK_VOLUME})
        script(path, code, {});
}

QStringList ScriptedMachine::deeds() const
{
    QStringList all;
    for (const Win32Faults::Control &control : faults.controls()) {
        const QString what = nameOf(control);
        if (!what.isEmpty())
            all.append(what + QLatin1Char(' ') + control.path.mid(4));
    }
    return all;
}

QByteArray ScriptedMachine::bytes(const QString &image, qint64 offset, qint64 size)
{
    QFile file(image);
    return file.open(QIODevice::ReadOnly) && file.seek(offset) ? file.read(size) : QByteArray();
}

bool ScriptedMachine::isUntouched(const QString &image)
{
    const QByteArray all = bytes(image, 0, 2 * DriveSize);
    return !all.isEmpty() && all == QByteArray(all.size(), '.');
}

void ScriptedMachine::restoreImages()
{
    writeFile(driveImage, QByteArray(DriveSize, '.'));
    writeFile(volumeImage, QByteArray(VolumeSize, '.'));
}
