#pragma once

#include "platform/releasedvolumes.h"
#include "platform/status.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace platform {

struct Geometry
{
    qint64 sizeBytes = 0;
    qint32 bytesPerSector = 512; ///< logical sector
};

/// A contiguous part of a drive that belongs to a volume.
struct Extent
{
    qint32 diskNumber = -1;
    qint64 startingOffset = 0; ///< bytes
    qint64 length = 0;         ///< bytes

    bool operator==(const Extent &) const = default;
};

/// The obstacles to writing to a drive or volume.
struct DeviceUse
{
    bool isReadOnly = false;
    /// The layers that the system has built on a drive, the lowest first, named as the system's tools name
    /// them: "LUKS secret".
    QStringList holders;
    /// The commands that remove these layers from a drive, or unmount a volume, in the order of execution.
    QStringList releaseCommands;
};

/// The number of extents that fit into a reply. The header takes 8 bytes, each extent 24.
inline constexpr int OneExtent = 1;    ///< 32-byte reply
inline constexpr int ManyExtents = 33; ///< 800-byte reply
inline constexpr int AllExtents = 4096;

/// A drive or volume opened for queries. It needs no administrator rights and changes nothing. Each query can
/// fail on its own, with NotSupported where the device does not provide the value. One thread at a time;
/// closes on destruction.
///
/// Windows: CreateFileW with access 0, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING, then
/// DeviceIoControl. Linux: /sys, /proc and udev's database, which every user can read.
class DeviceQuery
{
public:
    DeviceQuery() = default;
    virtual ~DeviceQuery() = default;
    DeviceQuery(const DeviceQuery &) = delete;
    DeviceQuery &operator=(const DeviceQuery &) = delete;

    /// Windows: IOCTL_DISK_GET_DRIVE_GEOMETRY_EX (DiskSize, Geometry.BytesPerSector). Linux: size and
    /// queue/logical_block_size.
    virtual Result<Geometry> geometry() = 0;

    /// The raw reply of a device descriptor query, see storagereplies.h for its layout.
    /// Windows: IOCTL_STORAGE_QUERY_PROPERTY, StorageDeviceProperty, 10000-byte reply. Linux: the same layout
    /// filled from /sys and udev.
    virtual Result<QByteArray> descriptor() = 0;

    /// A globally unique name, prefixed with its type and a full stop: "naa.5000c500a1b2c3d4",
    /// "eui.0025385b71b0a1c2". An image has "file." and the identity of its file, a drive without a serial
    /// number "attachment." and the time of its attachment. NotSupported where the device has none. Windows:
    /// IOCTL_STORAGE_QUERY_PROPERTY, StorageDeviceIdProperty, 1024-byte reply. Linux: wwid.
    virtual Result<QString> worldWideName() = 0;

    /// Whether random access costs time, as on rotating media. Windows: StorageDeviceSeekPenaltyProperty.
    /// Linux: queue/rotational.
    virtual Result<bool> seekPenalty() = 0;

    /// Windows: StorageDeviceTrimProperty. Linux: queue/discard_max_bytes above 0.
    virtual Result<bool> trimEnabled() = 0;

    /// What uses the device. Windows: IOCTL_DISK_IS_WRITABLE, and IOCTL_DISK_GET_DRIVE_LAYOUT_EX for the
    /// groups of drives that the drive is a member of. Linux: ro, and the holders of the drive and of its
    /// partitions.
    virtual Result<DeviceUse> use() = 0;

    /// The extents of a volume, the first one first; an extent outside the numbered drives has disk number
    /// -1. MoreData when there are more than maxExtents. The list may be empty on success. Windows:
    /// IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS with a reply of 8 + 24 * maxExtents bytes. Linux: the drives
    /// below the mounted device, through LVM, dm-crypt, md and btrfs members.
    virtual Result<QList<Extent>> extents(int maxExtents) = 0;
};

/// A drive or volume opened for raw, unbuffered, write-through transfers. Buffers begin on a page boundary
/// (AlignedBuffer); other buffers fail with MisalignedBuffer before the system is called, because the
/// system's own error for them is the one for the end of the device. Positions and sizes are multiples of the
/// logical sector; others fail with InvalidParameter. Transfers continue after interruptions and short
/// counts. One thread at a time; closes on destruction.
class RawDevice
{
public:
    RawDevice() = default;
    virtual ~RawDevice() = default;
    RawDevice(const RawDevice &) = delete;
    RawDevice &operator=(const RawDevice &) = delete;

    /// Windows: IOCTL_DISK_GET_DRIVE_GEOMETRY_EX. Linux: BLKGETSIZE64 and BLKSSZGET.
    virtual Result<Geometry> geometry() = 0;
    /// Logical sector in bytes. Windows: IOCTL_DISK_GET_DRIVE_GEOMETRY. Linux: BLKSSZGET.
    virtual Result<qint32> bytesPerSector() = 0;
    /// Length in bytes, not necessarily a multiple of the sector. Windows: IOCTL_DISK_GET_LENGTH_INFO. Linux:
    /// BLKGETSIZE64.
    virtual Result<qint64> length() = 0;

    /// Windows: SetFilePointerEx(FILE_BEGIN). Linux: remembered for pread and pwrite.
    virtual Status seek(qint64 position) = 0;
    /// Returns the count read, which is below size only at the end of the device. Reads the medium, not a
    /// cache. After a failure the contents of data are unspecified.
    virtual Result<qint64> read(void *data, qint64 size) = 0;
    /// Returns the count written, which is below size, or 0, at the end of the device. A failure there is
    /// SectorNotFound, WriteFault or InvalidParameter; on Linux none of these three occurs within the device.
    /// DiskFull: a thinly provisioned device has no storage left.
    virtual Result<qint64> write(const void *data, qint64 size) = 0;
    /// After success all written data is on the medium. Windows: FlushFileBuffers, on the drive where a
    /// dismounted volume does not forward the flush. Linux: fdatasync.
    virtual Status flush() = 0;
};

/// A volume, opened for raw transfers. The effects of lock() and dismount() end with the handle.
class VolumeDevice : public RawDevice
{
public:
    /// Locks the volume for this handle. One attempt. SharingViolation (Linux) or AccessDenied (Windows)
    /// while files on the volume are open. Windows: FSCTL_LOCK_VOLUME. Linux: unmounts every mount point of
    /// the volume, then opens the node with O_EXCL.
    virtual Status lock() = 0;
    /// Detaches the file system from the volume. Success when no file system is mounted on the volume any
    /// more. Windows: FSCTL_DISMOUNT_VOLUME, which also invalidates open files. Linux: as lock(). The file
    /// system of a volume that stays mounted would overwrite the erased sectors, so this call and every
    /// write() then fail with SharingViolation.
    virtual Status dismount() = 0;
    /// Allows transfers up to the very end of the volume. Windows: FSCTL_ALLOW_EXTENDED_DASD_IO. Linux:
    /// success.
    virtual Status allowExtendedIo() = 0;
    /// Windows: FSCTL_UNLOCK_VOLUME. Linux: gives up the exclusive access.
    virtual Status unlock() = 0;
};

/// The chosen drive: its number, and the values that distinguish it from another drive that gets the same
/// number later. Values that the drive does not report are empty.
struct DriveIdentity
{
    int number = -1;
    QString serialNumber{};
    qint64 sizeBytes = 0;
    QString product{};
    QString worldWideName{}; ///< see DeviceQuery::worldWideName

    bool operator==(const DriveIdentity &) const = default;
};

enum class DriveAccess {
    Alone,            ///< no other handle may hold the drive or a part of it
    BesideOwnVolumes, ///< this process already holds volumes of the drive
    ReadOnly,         ///< for reading, also while others hold the drive; every write() fails
};

/// A mounted volume as the system lists it.
struct MountedVolume
{
    QString name;     ///< as queryVolume and openVolume take it: "E:" on Windows, the mount point on Linux
    QString rootPath; ///< "E:/" on Windows, the mount point on Linux
    QString label;
    QByteArray fileSystem; ///< UTF-8
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;
    bool isReady = false; ///< valid and ready
    bool isLocal = false; ///< on a fixed or removable drive; not network, optical or memory
    QString identity{};   ///< see AnchoredFolder::volumeIdentity; empty when unknown
};

/// The drives and volumes of the machine. Thread-safe; only the numbers of drives are cached.
class Devices
{
public:
    Devices() = default;
    virtual ~Devices() = default;
    Devices(const Devices &) = delete;
    Devices &operator=(const Devices &) = delete;

    /// The path that opens the drive; empty when no drive has the number. Windows: "\\.\PhysicalDrive%1" for
    /// every number. Linux: the device node.
    virtual QString drivePath(int number) = 0;

    /// FileNotFound when no drive has the number. Windows: the system's own numbers. Linux: drives are
    /// numbered in natural name order when first seen; a device keeps its number for the life of the process.
    virtual Result<std::unique_ptr<DeviceQuery>> queryDrive(int number) = 0;

    /// A volume by its name: "E:" on Windows, a mount point or a device node on Linux.
    virtual Result<std::unique_ptr<DeviceQuery>> queryVolume(const QString &name) = 0;

    /// Opens a drive for writing, or only for reading. NotReady, with nothing opened, when the drive no
    /// longer matches the identity; AccessDenied without the rights; SharingViolation when another handle
    /// holds the drive. Windows: CreateFileW with GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ |
    /// FILE_SHARE_WRITE, OPEN_EXISTING, FILE_FLAG_WRITE_THROUGH | FILE_FLAG_NO_BUFFERING, with GENERIC_READ
    /// alone when ReadOnly. When Alone, every volume of the drive is locked, then dismounted, and held with
    /// the drive; NotReady when a volume lies on another drive too. Linux: O_RDWR | O_DIRECT | O_DSYNC, with
    /// O_EXCL when Alone; O_RDONLY | O_DIRECT when ReadOnly.
    virtual Result<std::unique_ptr<RawDevice>> openDrive(const DriveIdentity &drive, DriveAccess access) = 0;

    /// Opens a volume of that drive for writing, with the flags above, neither locked nor dismounted. Writing
    /// to a volume that spans several drives would also overwrite its data on the other drives. So the call
    /// fails with NotReady, with nothing opened, when the volume is not wholly on the drive or the drive no
    /// longer matches the identity.
    virtual Result<std::unique_ptr<VolumeDevice>> openVolume(const QString &name,
                                                             const DriveIdentity &drive) = 0;

    /// Releases every volume of the drive, without force: a volume in use makes the call fail. A failure
    /// leaves the drive as it was, except for the volumes in notRestored. NotReady when the drive no longer
    /// matches the identity or a volume lies on another drive too, SharingViolation when something on the
    /// drive is in use, AccessDenied without the rights. Windows: FSCTL_LOCK_VOLUME on each volume, then
    /// IOCTL_DISK_SET_DISK_ATTRIBUTES takes the drive offline until it is given back or the system restarts;
    /// media that cannot go offline stay locked and dismounted instead. Linux: unmounts every mount point,
    /// the latest mount first, and holds the drive with O_EXCL.
    virtual VolumeRelease releaseVolumes(const DriveIdentity &drive) = 0;

    /// Every name that a volume may have, in the order in which to try them; some may not open. Windows: "A:"
    /// to "Z:". Linux: the mount points of block devices, one per device, in mount order.
    virtual QStringList volumeNames() = 0;

    /// Every volume under the system's own name for it, also volumes that volumeNames() lists. queryVolume()
    /// takes these names, openVolume() does not. Windows: FindFirstVolumeW, "\\?\Volume{...}", also volumes
    /// without a letter. Linux: NotSupported, because the mount points are the names.
    virtual Result<QStringList> machineVolumes() = 0;

    /// Windows: QStorageInfo::mountedVolumes, GetDriveTypeW. Linux: the same mount points as volumeNames,
    /// with space and label.
    virtual QList<MountedVolume> mountedVolumes() = 0;
};

} // namespace platform
