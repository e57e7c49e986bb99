#pragma once

#include "platform/devices.h"
#include "windows/win32faults.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QtEndian>

// Replies built byte by byte, in the layout of the storage stack.
namespace replies {

template <typename Number>
QByteArray number(Number value)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian<Number>(value, bytes.data());
    return bytes;
}

QByteArray geometry(qint32 sector);
QByteArray geometryEx(qint64 size, qint32 sector);
QByteArray length(qint64 bytes);

// A SATA drive with a padded serial number.
QByteArray descriptor(const QByteArray &serialNumber);

// A reply with a flag; both flags have the same offset.
QByteArray flag(bool value);
// One designator of the unit, in hexadecimal digits.
QByteArray naaIdentifier(const QByteArray &digits);

QByteArray extentsHeader(quint32 count);
QByteArray extent(qint32 disk, qint64 offset, qint64 bytes);

// A drive's partition table up to its first entry, and its entries. The type of a GPT entry is given in
// hexadecimal digits.
QByteArray layout(quint32 style, quint32 count);
QByteArray gptPartition(const QByteArray &type);
QByteArray mbrPartition(quint8 type);

} // namespace replies

// Drive 3 and its volume E: as the system presents them, each backed by a file of the test.
class ScriptedMachine
{
public:
    static constexpr int Number = 3;
    static constexpr qint64 DriveSize = 1024 * 1024;
    static constexpr qint64 VolumeSize = 256 * 1024;
    static constexpr qint32 Sector = 512;

    ScriptedMachine();

    void script(const QString &path, DWORD code, const QByteArray &bytes);
    void refuse(const QString &path, DWORD code, DWORD error);
    void describe(const QByteArray &serialNumber = "W621ABCD", qint64 size = DriveSize);
    // Behaves like a driver that supports transfers only.
    void describeNothing(DWORD error = ERROR_NOT_SUPPORTED);
    void placeVolume(qint32 disk);
    // Adds a volume with its own image.
    void addVolume(const QString &path, qint64 offset, qint32 disk = Number);
    // Sets the place of any volume, as a single extent.
    void place(const QString &path, qint64 offset, qint32 disk);
    // The operations on the devices in order, without queries: "lock E:", "offline PhysicalDrive3".
    QStringList deeds() const;

    static QByteArray bytes(const QString &image, qint64 offset, qint64 size);
    static bool isUntouched(const QString &image);
    bool isUntouched() const { return isUntouched(driveImage) && isUntouched(volumeImage); }
    void restoreImages();

    const QString drive = QStringLiteral(R"(\\.\PhysicalDrive3)");
    const QString volume = QStringLiteral(R"(\\.\E:)");
    const platform::DriveIdentity identity{Number, QStringLiteral("W621ABCD"), DriveSize,
                                           QStringLiteral("MODEL 9"), QStringLiteral("naa.5000c500a1b2c3d4")};
    const platform::DriveIdentity undescribed{.number = Number};

private:
    QTemporaryDir m_folder;
    int m_added = 0;

public:
    const QString driveImage = m_folder.filePath(QStringLiteral("drive.img"));
    const QString volumeImage = m_folder.filePath(QStringLiteral("volume.img"));
    Win32Faults faults;
};
