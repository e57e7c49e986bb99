#pragma once

#include "platform/devices.h"
#include "platform/storagereplies.h"

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <utility>

// A volume on drives in memory.
struct MemoryDriveVolume
{
    QString name;
    QList<platform::Extent> extents;
    bool mounted = true;
    int failingLocks = 0; // attempts that fail before one succeeds; below 0: every one fails
    platform::ErrorCode lockError = platform::AccessDenied;
    platform::ErrorCode dismountError = platform::NoError;
    QString label;
    QByteArray fileSystem = "ext4";
    qint64 freeBytes = 0;
    qint32 sectorSize = 0; // 0: the drive's

    qint64 length() const
    {
        qint64 sum = 0;
        for (const platform::Extent &extent : extents)
            sum += extent.length;
        return sum;
    }
};

// A drive in memory. Its medium is whole sectors, which may be more or fewer than the size it states.
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
    qint64 sizeBytes = 0;
    qint32 sectorSize = 512;
    qint64 unreachableBytes = 0; // behind the last whole sector
    platform::DeviceUse use;
    QByteArray medium;
    // What a write at the end of the medium answers; NoError stands for success with 0 bytes.
    platform::ErrorCode endError = platform::SectorNotFound;
};

// Drives and volumes in memory, with the rules of the real ones: sectors and page-aligned buffers, exclusive
// opening, the identity check, locks that end with their handle, and no write below a mounted file system.
// Counts what is open and locked. Outlives its handles; drives and volumes are changed from outside only
// while nothing is open.
class MemoryDevices : public platform::Devices
{
public:
    void addDrive(const MemoryDrive &drive) { m_drives.insert_or_assign(drive.number, drive); }
    void addVolume(const MemoryDriveVolume &volume) { m_volumes.append(volume); }
    // A volume of one extent.
    void addVolume(const QString &name, int driveNumber, qint64 offset, qint64 length)
    {
        MemoryDriveVolume volume;
        volume.name = name;
        volume.extents = {{driveNumber, offset, length}};
        addVolume(volume);
    }

    MemoryDrive &drive(int number) { return m_drives.at(number); }
    MemoryDriveVolume &volume(const QString &name) { return *find(name); }
    const QByteArray &medium(int number) const { return m_drives.at(number).medium; }

    int openHandles() const { return count(m_openHandles); }
    int heldLocks() const { return count(m_heldLocks); }
    // Since construction.
    int openings() const { return count(m_openings); }
    int lockAttempts() const { return count(m_lockAttempts); }
    int dismounts() const { return count(m_dismounts); }
    int writes() const { return count(m_writes); }

    QString drivePath(int number) override { return QStringLiteral("memory drive %1").arg(number); }

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override;
    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryVolume(const QString &name) override;
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &identity,
                                                                     platform::DriveAccess access) override;
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &identity) override;

    QStringList volumeNames() override
    {
        const QMutexLocker locker(&m_mutex);
        QStringList names;
        for (const MemoryDriveVolume &volume : m_volumes)
            names.append(volume.name);
        return names;
    }
    QList<platform::MountedVolume> mountedVolumes() override
    {
        const QMutexLocker locker(&m_mutex);
        QList<platform::MountedVolume> mounted;
        for (const MemoryDriveVolume &volume : m_volumes) {
            if (volume.mounted)
                mounted.append({volume.name, volume.name, volume.label, volume.fileSystem, volume.length(),
                                volume.freeBytes, true, true});
        }
        return mounted;
    }

private:
    class DriveQuery;
    class VolumeQuery;
    template <typename Base>
    class Transfers;
    class Drive;
    class Volume;

    int count(const int &counter) const
    {
        const QMutexLocker locker(&m_mutex);
        return counter;
    }
    MemoryDriveVolume *find(const QString &name)
    {
        const auto found =
            std::find_if(m_volumes.begin(), m_volumes.end(),
                         [&name](const MemoryDriveVolume &volume) { return volume.name == name; });
        return found == m_volumes.end() ? nullptr : &*found;
    }
    static platform::Result<std::unique_ptr<platform::DeviceQuery>> notFound()
    {
        return platform::Status{platform::FileNotFound, 0, "memory device"};
    }
    bool isSame(const platform::DriveIdentity &identity) const
    {
        const auto found = m_drives.find(identity.number);
        return found != m_drives.end() && found->second.serialNumber == identity.serialNumber &&
               found->second.sizeBytes == identity.sizeBytes;
    }

    mutable QMutex m_mutex;
    std::map<int, MemoryDrive> m_drives;
    QList<MemoryDriveVolume> m_volumes;
    int m_openHandles = 0;
    int m_heldLocks = 0;
    int m_openings = 0;
    int m_lockAttempts = 0;
    int m_dismounts = 0;
    int m_writes = 0;
};

class MemoryDevices::DriveQuery : public platform::DeviceQuery
{
public:
    explicit DriveQuery(MemoryDrive drive)
        : m_drive(std::move(drive))
    {}
    platform::Result<platform::Geometry> geometry() override
    {
        return platform::Geometry{m_drive.sizeBytes, m_drive.sectorSize};
    }
    platform::Result<QByteArray> descriptor() override
    {
        platform::DeviceDescriptor descriptor;
        descriptor.productId = m_drive.model;
        descriptor.serialNumber = m_drive.serialNumber;
        descriptor.busType = platform::BusVirtual;
        return platform::encodeDeviceDescriptor(descriptor);
    }
    platform::Result<bool> seekPenalty() override { return false; }
    platform::Result<bool> trimEnabled() override { return false; }
    platform::Result<platform::DeviceUse> use() override { return m_drive.use; }
    platform::Result<QList<platform::Extent>> extents(int) override
    {
        return platform::Status{platform::NotSupported, 0, "extents"};
    }

private:
    MemoryDrive m_drive;
};

class MemoryDevices::VolumeQuery : public platform::DeviceQuery
{
public:
    explicit VolumeQuery(MemoryDriveVolume volume)
        : m_volume(std::move(volume))
    {}
    platform::Result<platform::Geometry> geometry() override { return unsupported(); }
    platform::Result<QByteArray> descriptor() override { return unsupported(); }
    platform::Result<bool> seekPenalty() override { return unsupported(); }
    platform::Result<bool> trimEnabled() override { return unsupported(); }
    platform::Result<platform::DeviceUse> use() override
    {
        return platform::DeviceUse{false, {}, {QStringLiteral("umount ") + m_volume.name}};
    }
    platform::Result<QList<platform::Extent>> extents(int maxExtents) override
    {
        if (m_volume.extents.size() > maxExtents)
            return platform::Status{platform::MoreData, 0, "extents"};
        return m_volume.extents;
    }

private:
    static platform::Status unsupported() { return {platform::NotSupported, 0, "memory volume"}; }

    MemoryDriveVolume m_volume;
};

template <typename Base>
class MemoryDevices::Transfers : public Base
{
public:
    Transfers(MemoryDevices &devices, QList<platform::Extent> extents, qint32 sectorSize,
              platform::ErrorCode endError)
        : m_devices(devices)
        , m_extents(std::move(extents))
        , m_sectorSize(sectorSize)
        , m_endError(endError)
    {}

    platform::Result<qint32> bytesPerSector() override { return m_sectorSize; }

    platform::Status seek(qint64 position) override
    {
        if (position < 0 || position % m_sectorSize != 0)
            return {platform::InvalidParameter, 0, "seek"};
        m_position = position;
        return {};
    }

    platform::Result<qint64> read(void *data, qint64 size) override
    {
        if (!isAligned(data, size))
            return platform::Status{platform::InvalidParameter, 0, "read"};
        const QMutexLocker locker(&m_devices.m_mutex);
        auto *to = static_cast<char *>(data);
        return transfer(size, [&to](char *medium, qint64 count) {
            std::memcpy(to, medium, static_cast<std::size_t>(count));
            to += count;
        });
    }

    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        if (!isAligned(data, size))
            return platform::Status{platform::InvalidParameter, 0, "write"};
        const QMutexLocker locker(&m_devices.m_mutex);
        ++m_devices.m_writes;
        const auto *from = static_cast<const char *>(data);
        const qint64 written = transfer(size, [&from](char *medium, qint64 count) {
            std::memcpy(medium, from, static_cast<std::size_t>(count));
            from += count;
        });
        if (written == 0 && size > 0 && m_endError != platform::NoError)
            return platform::Status{m_endError, 0, "write"};
        return written;
    }

    platform::Status flush() override { return {}; }

protected:
    MemoryDevices &m_devices;
    QList<platform::Extent> m_extents;
    qint32 m_sectorSize;

private:
    bool isAligned(const void *data, qint64 size) const
    {
        return size >= 0 && size % m_sectorSize == 0 && reinterpret_cast<quintptr>(data) % 4096 == 0;
    }

    // Goes through the stretches of media that the range lies on; what is behind the end is left out.
    template <typename Copy>
    qint64 transfer(qint64 size, Copy copy)
    {
        qint64 done = 0;
        while (done < size) {
            const auto [start, room] = stretchAt(m_position);
            const qint64 count = std::min(size - done, room);
            if (count <= 0)
                break;
            copy(start, count);
            done += count;
            m_position += count;
        }
        return done;
    }

    std::pair<char *, qint64> stretchAt(qint64 position)
    {
        for (const platform::Extent &extent : m_extents) {
            if (position < extent.length) {
                QByteArray &medium = m_devices.m_drives.at(extent.diskNumber).medium;
                const qint64 place = extent.startingOffset + position;
                const qint64 room = std::min(extent.length - position, medium.size() - place);
                return {room > 0 ? medium.data() + place : nullptr, room};
            }
            position -= extent.length;
        }
        return {nullptr, 0};
    }

    platform::ErrorCode m_endError;
    qint64 m_position = 0;
};

class MemoryDevices::Drive : public Transfers<platform::RawDevice>
{
public:
    Drive(MemoryDevices &devices, const MemoryDrive &drive)
        : Transfers(devices, {{drive.number, 0, drive.medium.size()}}, drive.sectorSize, drive.endError)
        , m_sizeBytes(drive.sizeBytes)
        , m_length(drive.sizeBytes + drive.unreachableBytes)
    {
        ++m_devices.m_openHandles;
        ++m_devices.m_openings;
    }
    ~Drive() override
    {
        const QMutexLocker locker(&m_devices.m_mutex);
        --m_devices.m_openHandles;
    }
    platform::Result<platform::Geometry> geometry() override
    {
        return platform::Geometry{m_sizeBytes, m_sectorSize};
    }
    platform::Result<qint64> length() override { return m_length; }

private:
    qint64 m_sizeBytes;
    qint64 m_length;
};

class MemoryDevices::Volume : public Transfers<platform::VolumeDevice>
{
public:
    Volume(MemoryDevices &devices, const MemoryDriveVolume &volume, const MemoryDrive &drive)
        : Transfers(devices, volume.extents, volume.sectorSize > 0 ? volume.sectorSize : drive.sectorSize,
                    drive.endError)
        , m_name(volume.name)
        , m_length(volume.length())
        , m_mounted(volume.mounted)
    {
        ++m_devices.m_openHandles;
        ++m_devices.m_openings;
    }
    ~Volume() override
    {
        static_cast<void>(unlock());
        const QMutexLocker locker(&m_devices.m_mutex);
        --m_devices.m_openHandles;
    }

    platform::Result<platform::Geometry> geometry() override
    {
        return platform::Status{platform::NotSupported, 0, "geometry"};
    }
    platform::Result<qint64> length() override { return m_length; }

    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        if (m_mounted)
            return platform::Status{platform::SharingViolation, 0, "write"};
        return Transfers::write(data, size);
    }

    platform::Status lock() override
    {
        const QMutexLocker locker(&m_devices.m_mutex);
        ++m_devices.m_lockAttempts;
        MemoryDriveVolume &volume = *m_devices.find(m_name);
        if (volume.failingLocks != 0) {
            volume.failingLocks -= volume.failingLocks > 0 ? 1 : 0;
            return {volume.lockError, 0, "lock"};
        }
        if (!std::exchange(m_locked, true))
            ++m_devices.m_heldLocks;
        return {};
    }
    platform::Status dismount() override
    {
        const QMutexLocker locker(&m_devices.m_mutex);
        const platform::ErrorCode error = m_devices.find(m_name)->dismountError;
        if (error != platform::NoError)
            return {error, 0, "dismount"};
        ++m_devices.m_dismounts;
        m_mounted = false;
        return {};
    }
    platform::Status allowExtendedIo() override { return {}; }
    platform::Status unlock() override
    {
        const QMutexLocker locker(&m_devices.m_mutex);
        if (std::exchange(m_locked, false))
            --m_devices.m_heldLocks;
        return {};
    }

private:
    QString m_name;
    qint64 m_length;
    bool m_mounted;
    bool m_locked = false;
};

inline platform::Result<std::unique_ptr<platform::DeviceQuery>> MemoryDevices::queryDrive(int number)
{
    const QMutexLocker locker(&m_mutex);
    const auto found = m_drives.find(number);
    if (found == m_drives.end())
        return notFound();
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<DriveQuery>(found->second));
}

inline platform::Result<std::unique_ptr<platform::DeviceQuery>>
MemoryDevices::queryVolume(const QString &name)
{
    const QMutexLocker locker(&m_mutex);
    const MemoryDriveVolume *volume = find(name);
    if (!volume)
        return notFound();
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<VolumeQuery>(*volume));
}

inline platform::Result<std::unique_ptr<platform::RawDevice>>
MemoryDevices::openDrive(const platform::DriveIdentity &identity, platform::DriveAccess access)
{
    const QMutexLocker locker(&m_mutex);
    if (!m_drives.contains(identity.number))
        return platform::Status{platform::FileNotFound, 0, "open drive"};
    if (!isSame(identity))
        return platform::Status{platform::NotReady, 0, "identity check"};
    const bool inUse =
        m_openHandles > 0 ||
        std::any_of(m_volumes.begin(), m_volumes.end(), [&identity](const MemoryDriveVolume &volume) {
            return volume.mounted &&
                   std::any_of(volume.extents.begin(), volume.extents.end(), [&identity](const auto &extent) {
                       return extent.diskNumber == identity.number;
                   });
        });
    if (access == platform::DriveAccess::Alone && inUse)
        return platform::Status{platform::SharingViolation, 0, "open drive"};
    return std::unique_ptr<platform::RawDevice>(std::make_unique<Drive>(*this, m_drives.at(identity.number)));
}

inline platform::Result<std::unique_ptr<platform::VolumeDevice>>
MemoryDevices::openVolume(const QString &name, const platform::DriveIdentity &identity)
{
    const QMutexLocker locker(&m_mutex);
    const MemoryDriveVolume *volume = find(name);
    if (!volume || volume->extents.isEmpty())
        return platform::Status{platform::FileNotFound, 0, "open volume"};
    if (!isSame(identity) || !platform::liesOnlyOn(volume->extents, identity.number))
        return platform::Status{platform::NotReady, 0, "identity check"};
    return std::unique_ptr<platform::VolumeDevice>(
        std::make_unique<Volume>(*this, *volume, m_drives.at(identity.number)));
}
