#pragma once

#include "platform/devices.h"
#include "platform/storagereplies.h"

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

// A volume on drives in memory.
struct MemoryDriveVolume
{
    QString name;
    QList<platform::Extent> extents;
    bool mounted = true;
    int failingLocks = 0; // failed attempts before a success; negative: all fail
    platform::ErrorCode lockError = platform::AccessDenied;
    platform::ErrorCode dismountError = platform::NoError;
    platform::ErrorCode releaseError = platform::NoError;
    bool staysInSight = false; // stays locked and listed when released
    bool isLost = false;       // cannot be given back after release
    QString label;
    QByteArray fileSystem = "ext4";
    qint64 freeBytes = 0;
    qint32 sectorSize = 0; // 0: the drive's

    qint64 length() const;
};

// A drive in memory. Its medium consists of whole sectors and may be larger or smaller than the stated size.
struct MemoryDrive
{
    MemoryDrive() = default;
    MemoryDrive(int driveNumber, qint64 size, qint32 sector = 512, char content = '\x5C')
        : number(driveNumber)
        , serialNumber(QStringLiteral("SERIAL-%1").arg(driveNumber))
        , sizeBytes(size)
        , sectorSize(sector)
        , medium((size + sector - 1) / sector * sector, content)
    {}

    int number = -1;
    QString model = QStringLiteral("Memory drive");
    QString serialNumber;
    QString worldWideName;
    qint64 sizeBytes = 0;
    qint32 sectorSize = 512;
    qint64 unreachableBytes = 0; // behind the last whole sector
    platform::DeviceUse use;
    QByteArray medium;
    // The answer to a write at the end of the medium; NoError stands for success with 0 bytes.
    platform::ErrorCode endError = platform::SectorNotFound;
};

// Drives and volumes in memory that follow the rules of real ones: whole sectors, page-aligned buffers,
// exclusive opening, the identity check, locks that end with their handle, and no writes below a mounted
// file system. They count open handles and locks. The object outlives its handles; a test changes drives and
// volumes only while none is open.
class MemoryDevices : public platform::Devices
{
public:
    void addDrive(const MemoryDrive &drive) { m_drives.insert_or_assign(drive.number, drive); }
    void addVolume(const MemoryDriveVolume &volume) { m_volumes.append(volume); }
    // A volume of one extent.
    void addVolume(const QString &name, int driveNumber, qint64 offset, qint64 length);
    MemoryDrive &drive(int number) { return m_drives.at(number); }
    MemoryDriveVolume &volume(const QString &name) { return *find(name); }
    const QByteArray &medium(int number) const { return m_drives.at(number).medium; }

    int openHandles() const { return count(m_openHandles); }
    int heldLocks() const { return count(m_heldLocks); }
    platform::ErrorCode keepError = platform::NoError; // of ReleasedVolumes::keep()
    // Called in the writing thread before each write; set while nothing is open.
    std::function<void()> beforeWrite;

    // The number since construction.
    int openings() const { return count(m_openings); }
    int lockAttempts() const { return count(m_lockAttempts); }
    int dismounts() const { return count(m_dismounts); }
    int writes() const { return count(m_writes); }
    // The drives whose volumes are released now, and how often volumes were given back or kept.
    int releasedDrives() const { return count(m_releasedDrives); }
    int restores() const { return count(m_restores); }
    int keeps() const { return count(m_keeps); }

    QString drivePath(int number) override { return QStringLiteral("memory drive %1").arg(number); }

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override;
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override;
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &identity,
                                                                     platform::DriveAccess access) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &identity) override;
    platform::VolumeRelease releaseVolumes(const platform::DriveIdentity &identity) override;
    QStringList volumeNames() override;
    platform::Result<QStringList> machineVolumes() override
    {
        return platform::Status{platform::NotSupported, 0, "memory devices"};
    }
    QList<platform::MountedVolume> mountedVolumes() override;

private:
    class DriveQuery;
    class VolumeQuery;
    template <typename Base>
    class Transfers;
    class Drive;
    class Volume;
    class Released;

    int count(const int &counter) const;
    MemoryDriveVolume *find(const QString &name);
    static platform::Result<std::unique_ptr<platform::DeviceQuery>> notFound();
    bool isSame(const platform::DriveIdentity &identity) const;

    mutable QMutex m_mutex;
    std::map<int, MemoryDrive> m_drives;
    QList<MemoryDriveVolume> m_volumes;
    int m_openHandles = 0;
    int m_heldLocks = 0;
    int m_openings = 0;
    int m_lockAttempts = 0;
    int m_dismounts = 0;
    int m_writes = 0;
    int m_releasedDrives = 0;
    int m_restores = 0;
    int m_keeps = 0;
};
