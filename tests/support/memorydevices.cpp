#include "support/memorydevices.h"

#include "platform/transfercheck.h"

#include <QMutexLocker>

#include <algorithm>
#include <cstring>
#include <utility>

qint64 MemoryDriveVolume::length() const
{
    qint64 sum = 0;
    for (const platform::Extent &extent : extents)
        sum += extent.length;
    return sum;
}

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
    platform::Result<QString> worldWideName() override { return m_drive.worldWideName; }
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
    platform::Result<QString> worldWideName() override { return unsupported(); }
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
        if (const platform::Status refusal = platform::checkTransfer(data, size, m_sectorSize, "read");
            !refusal)
            return refusal;
        const QMutexLocker locker(&m_devices.m_mutex);
        auto *to = static_cast<char *>(data);
        return transfer(size, [&to](char *medium, qint64 count) {
            std::memcpy(to, medium, static_cast<std::size_t>(count));
            to += count;
        });
    }

    platform::Result<qint64> write(const void *data, qint64 size) override
    {
        if (const platform::Status refusal = platform::checkTransfer(data, size, m_sectorSize, "write");
            !refusal)
            return refusal;
        if (m_devices.beforeWrite)
            m_devices.beforeWrite();
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
    // Visits the parts of the media that hold the range; bytes beyond the end are left out.
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

class MemoryDevices::Released : public platform::ReleasedVolumes
{
public:
    Released(MemoryDevices &devices, QList<MemoryDriveVolume> volumes)
        : m_devices(devices)
        , m_volumes(std::move(volumes))
    {
        ++m_devices.m_releasedDrives;
        for (const MemoryDriveVolume &volume : m_volumes) {
            if (volume.staysInSight)
                m_devices.find(volume.name)->mounted = false;
            else
                m_devices.m_volumes.removeIf(
                    [&volume](const MemoryDriveVolume &other) { return other.name == volume.name; });
        }
    }
    ~Released() override
    {
        if (!m_isSettled)
            restore();
    }

    QStringList names() const override
    {
        QStringList names;
        for (const MemoryDriveVolume &volume : m_volumes)
            names.append(volume.name);
        return names;
    }
    bool holds(const QString &name) const override
    {
        return std::any_of(m_volumes.begin(), m_volumes.end(), [&name](const MemoryDriveVolume &volume) {
            return volume.name == name && volume.staysInSight;
        });
    }
    QStringList restore() override
    {
        const QMutexLocker locker(&m_devices.m_mutex);
        settle();
        ++m_devices.m_restores;
        QStringList lost;
        for (const MemoryDriveVolume &volume : std::as_const(m_volumes)) {
            if (volume.isLost)
                lost.append(volume.name);
            else if (volume.staysInSight)
                m_devices.find(volume.name)->mounted = true;
            else
                m_devices.m_volumes.append(volume);
        }
        return lost;
    }
    platform::Status keep() override
    {
        const QMutexLocker locker(&m_devices.m_mutex);
        settle();
        ++m_devices.m_keeps;
        return {m_devices.keepError, 0, "keep"};
    }

private:
    void settle()
    {
        if (m_devices.m_openHandles > 0)
            qFatal("volumes are given back while the drive is open");
        --m_devices.m_releasedDrives;
        m_isSettled = true;
    }

    MemoryDevices &m_devices;
    QList<MemoryDriveVolume> m_volumes;
    bool m_isSettled = false;
};

platform::VolumeRelease MemoryDevices::releaseVolumes(const platform::DriveIdentity &identity)
{
    const QMutexLocker locker(&m_mutex);
    if (!isSame(identity))
        return {.failure = {platform::NotReady, 0, "identity check"}};
    QList<MemoryDriveVolume> volumes = m_volumes;
    volumes.removeIf([&identity](const MemoryDriveVolume &volume) {
        return !volume.mounted || volume.extents.isEmpty() ||
               volume.extents.first().diskNumber != identity.number;
    });
    for (const MemoryDriveVolume &volume : std::as_const(volumes)) {
        if (volume.releaseError == platform::NoError)
            continue;
        platform::VolumeRelease refused{.failure = {volume.releaseError, 0, "release"},
                                        .volume = volume.name};
        for (const MemoryDriveVolume &other : std::as_const(volumes)) {
            if (other.isLost)
                refused.notRestored.append(other.name);
        }
        return refused;
    }
    return {.volumes = std::make_unique<Released>(*this, volumes)};
}

void MemoryDevices::addVolume(const QString &name, int driveNumber, qint64 offset, qint64 length)
{
    MemoryDriveVolume volume;
    volume.name = name;
    volume.extents = {{driveNumber, offset, length}};
    addVolume(volume);
}

QStringList MemoryDevices::volumeNames()
{
    const QMutexLocker locker(&m_mutex);
    QStringList names;
    for (const MemoryDriveVolume &volume : m_volumes)
        names.append(volume.name);
    return names;
}

QList<platform::MountedVolume> MemoryDevices::mountedVolumes()
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

int MemoryDevices::count(const int &counter) const
{
    const QMutexLocker locker(&m_mutex);
    return counter;
}

MemoryDriveVolume *MemoryDevices::find(const QString &name)
{
    const auto found = std::find_if(m_volumes.begin(), m_volumes.end(),
                                    [&name](const MemoryDriveVolume &volume) { return volume.name == name; });
    return found == m_volumes.end() ? nullptr : &*found;
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> MemoryDevices::notFound()
{
    return platform::Status{platform::FileNotFound, 0, "memory device"};
}

bool MemoryDevices::isSame(const platform::DriveIdentity &identity) const
{
    const auto found = m_drives.find(identity.number);
    if (found == m_drives.end())
        return false;
    const MemoryDrive &drive = found->second;
    return identity == platform::DriveIdentity{drive.number, drive.serialNumber, drive.sizeBytes, drive.model,
                                               drive.worldWideName};
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> MemoryDevices::queryDrive(int number)
{
    const QMutexLocker locker(&m_mutex);
    const auto found = m_drives.find(number);
    if (found == m_drives.end())
        return notFound();
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<DriveQuery>(found->second));
}

platform::Result<std::unique_ptr<platform::DeviceQuery>> MemoryDevices::queryVolume(const QString &name)
{
    const QMutexLocker locker(&m_mutex);
    const MemoryDriveVolume *volume = find(name);
    if (!volume)
        return notFound();
    return std::unique_ptr<platform::DeviceQuery>(std::make_unique<VolumeQuery>(*volume));
}

platform::Result<std::unique_ptr<platform::RawDevice>>
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

platform::Result<std::unique_ptr<platform::VolumeDevice>>
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
