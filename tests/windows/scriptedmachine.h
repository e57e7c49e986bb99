#pragma once

#include "platform/devices.h"
#include "windows/win32faults.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

// Replies put together byte by byte, as the storage stack lays them out.
namespace replies {

template <typename Number>
QByteArray number(Number value)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian<Number>(value, bytes.data());
    return bytes;
}

inline QByteArray geometry(qint32 sector)
{
    return number<qint64>(130) + number<quint32>(12) + number<quint32>(255) + number<quint32>(63) +
           number<qint32>(sector);
}

inline QByteArray geometryEx(qint64 size, qint32 sector)
{
    return geometry(sector) + number<qint64>(size) + QByteArray(8, '\0');
}

inline QByteArray length(qint64 bytes)
{
    return number<qint64>(bytes);
}

// A SATA drive with a padded serial number.
inline QByteArray descriptor(const QByteArray &serialNumber)
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

// Both flags have the same place.
inline QByteArray flag(bool value)
{
    return number<quint32>(12) + number<quint32>(12) + char(value ? 1 : 0) + QByteArray(3, '\0');
}

inline QByteArray extentsHeader(quint32 count)
{
    return number<quint32>(count) + QByteArray(4, '\xAA');
}

inline QByteArray extent(qint32 disk, qint64 offset, qint64 bytes)
{
    return number<qint32>(disk) + QByteArray(4, '\xBB') + number<qint64>(offset) + number<qint64>(bytes);
}

} // namespace replies

// Drive 3 and the volume E: on it, as the system presents them; below each a file of the test's own.
class ScriptedMachine
{
public:
    static constexpr int Number = 3;
    static constexpr qint64 DriveSize = 1024 * 1024;
    static constexpr qint64 VolumeSize = 256 * 1024;
    static constexpr qint32 Sector = 512;

    ScriptedMachine()
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

    void script(const QString &path, DWORD code, const QByteArray &bytes)
    {
        faults.setReply(path, code, {ERROR_SUCCESS, bytes, {}});
    }
    void refuse(const QString &path, DWORD code, DWORD error)
    {
        faults.setReply(path, code, {error, {}, {}});
    }
    void describe(const QByteArray &serialNumber = "W621ABCD", qint64 size = DriveSize)
    {
        script(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, replies::geometryEx(size, Sector));
        faults.setPropertyReply(drive, StorageDeviceProperty, {0, replies::descriptor(serialNumber), {}});
    }
    // As a driver that answers nothing but transfers.
    void describeNothing(DWORD error = ERROR_NOT_SUPPORTED)
    {
        refuse(drive, IOCTL_DISK_GET_DRIVE_GEOMETRY_EX, error);
        faults.setPropertyReply(drive, StorageDeviceProperty, {error, {}, {}});
    }
    void placeVolume(qint32 disk)
    {
        script(volume, IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS,
               replies::extentsHeader(1) + replies::extent(disk, 1048576, VolumeSize));
    }

    static QByteArray bytes(const QString &image, qint64 offset, qint64 size)
    {
        QFile file(image);
        return file.open(QIODevice::ReadOnly) && file.seek(offset) ? file.read(size) : QByteArray();
    }
    static bool isUntouched(const QString &image)
    {
        const QByteArray all = bytes(image, 0, 2 * DriveSize);
        return !all.isEmpty() && all == QByteArray(all.size(), '.');
    }
    bool isUntouched() const { return isUntouched(driveImage) && isUntouched(volumeImage); }
    void restoreImages()
    {
        makeImage(driveImage, DriveSize);
        makeImage(volumeImage, VolumeSize);
    }
    static void makeImage(const QString &path, qint64 size)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(size, '.')) != size)
            qFatal("cannot make %s", qPrintable(path));
    }

    const QString drive = QStringLiteral(R"(\\.\PhysicalDrive3)");
    const QString volume = QStringLiteral(R"(\\.\E:)");
    const platform::DriveIdentity identity{Number, QStringLiteral("W621ABCD"), DriveSize};
    const platform::DriveIdentity undescribed{Number, {}, 0};

private:
    QTemporaryDir m_folder;

public:
    const QString driveImage = m_folder.filePath(QStringLiteral("drive.img"));
    const QString volumeImage = m_folder.filePath(QStringLiteral("volume.img"));
    Win32Faults faults;
};
