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
    qint32 bytesPerSector = 512; // logical sector
};

// A stretch of a drive that a volume occupies.
struct Extent
{
    qint32 diskNumber = -1;
    qint64 startingOffset = 0; // bytes
    qint64 length = 0;         // bytes

    bool operator==(const Extent &) const = default;
};

// What is in the way of writing to a drive or volume.
struct DeviceUse
{
    bool isReadOnly = false;
    // What the system has built on a drive, the lowest first, named as its tools name it: "LUKS secret".
    QStringList holders;
    // What frees a drive of them, and what unmounts a volume, as commands in the order to be given.
    QStringList releaseCommands;
};

// How many extents the two sizes of reply have room for: the header takes 8 bytes, each extent 24.
inline constexpr int OneExtent = 1;    // 32-byte reply
inline constexpr int ManyExtents = 33; // 800-byte reply
inline constexpr int AllExtents = 4096;

// A drive or volume opened to ask it about itself; needs no administrator rights and changes nothing. Each
// question may fail on its own: NotSupported where the device does not know the answer. One thread at a time;
// closes on destruction.
//
// Windows: CreateFileW with access 0, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING, then
// DeviceIoControl. Linux: /sys, /proc and udev's database, readable by everybody.
class DeviceQuery
{
public:
    DeviceQuery() = default;
    virtual ~DeviceQuery() = default;
    DeviceQuery(const DeviceQuery &) = delete;
    DeviceQuery &operator=(const DeviceQuery &) = delete;

    // Windows: IOCTL_DISK_GET_DRIVE_GEOMETRY_EX (DiskSize, Geometry.BytesPerSector). Linux: size and
    // queue/logical_block_size.
    virtual Result<Geometry> geometry() = 0;

    // The raw reply of a device descriptor query, see storagereplies.h for its layout.
    // Windows: IOCTL_STORAGE_QUERY_PROPERTY, StorageDeviceProperty, 10000-byte reply. Linux: the same layout
    // filled from /sys and udev.
    virtual Result<QByteArray> descriptor() = 0;

    // The name that no other unit in the world has, with its form before a full stop: "naa.5000c500a1b2c3d4",
    // "eui.0025385b71b0a1c2"; of an image "file." and which file it is, of a drive without a serial
    // number "attachment." and when it was attached. NotSupported where the device has
    // none. Windows: IOCTL_STORAGE_QUERY_PROPERTY, StorageDeviceIdProperty, 1024-byte reply. Linux: wwid.
    virtual Result<QString> worldWideName() = 0;

    // Whether reading elsewhere costs time, as it does on rotating media.
    // Windows: StorageDeviceSeekPenaltyProperty. Linux: queue/rotational.
    virtual Result<bool> seekPenalty() = 0;

    // Windows: StorageDeviceTrimProperty. Linux: queue/discard_max_bytes above 0.
    virtual Result<bool> trimEnabled() = 0;

    // Who stands on the device. Windows: IOCTL_DISK_IS_WRITABLE, and IOCTL_DISK_GET_DRIVE_LAYOUT_EX for what
    // a drive is a member of. Linux: ro, and holders of the drive and of its partitions.
    virtual Result<DeviceUse> use() = 0;

    // Where a volume lies, first extent first; a stretch that is on no drive with a number has -1. MoreData
    // when there are more than maxExtents; at least one on success is not promised. Windows:
    // IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS with a reply of 8 + 24 * maxExtents bytes. Linux: the drives below
    // the mounted device, through LVM, dm-crypt, md and btrfs members.
    virtual Result<QList<Extent>> extents(int maxExtents) = 0;
};

// A drive or volume opened for raw, unbuffered, write-through transfers. Buffers begin on a page boundary
// (AlignedBuffer), else a transfer fails with MisalignedBuffer before the system is asked, whose own answer
// is that of a device at its end; positions and sizes are multiples of the logical sector, everything else
// fails with InvalidParameter. Transfers loop over interruptions and short counts. One thread at a time;
// closes on destruction.
class RawDevice
{
public:
    RawDevice() = default;
    virtual ~RawDevice() = default;
    RawDevice(const RawDevice &) = delete;
    RawDevice &operator=(const RawDevice &) = delete;

    // Windows: IOCTL_DISK_GET_DRIVE_GEOMETRY_EX. Linux: BLKGETSIZE64 and BLKSSZGET.
    virtual Result<Geometry> geometry() = 0;
    // Logical sector in bytes. Windows: IOCTL_DISK_GET_DRIVE_GEOMETRY. Linux: BLKSSZGET.
    virtual Result<qint32> bytesPerSector() = 0;
    // Length in bytes, which need not be whole sectors. Windows: IOCTL_DISK_GET_LENGTH_INFO. Linux:
    // BLKGETSIZE64.
    virtual Result<qint64> length() = 0;

    // Windows: SetFilePointerEx(FILE_BEGIN). Linux: remembered for pread and pwrite.
    virtual Status seek(qint64 position) = 0;
    // The count read, fewer than asked for only at the end of the device. Reads the medium, not a cache.
    // After a failure the contents of data are unspecified.
    virtual Result<qint64> read(void *data, qint64 size) = 0;
    // The count written. Fewer than asked for, or 0, at the end of the device; a failure there is
    // SectorNotFound, WriteFault or InvalidParameter, and none of these three on Linux within the device.
    // DiskFull: the device has no room behind it (thin provisioning).
    virtual Result<qint64> write(const void *data, qint64 size) = 0;
    // After success everything written is on the medium. Windows: FlushFileBuffers, of the drive where a
    // volume that was dismounted does not pass it on. Linux: fdatasync.
    virtual Status flush() = 0;
};

// A volume, opened for raw transfers. Whatever lock() and dismount() brought about ends with the handle.
class VolumeDevice : public RawDevice
{
public:
    // Takes the volume for this handle alone. One attempt. SharingViolation (Linux) or AccessDenied (Windows)
    // while files on it are open. Windows: FSCTL_LOCK_VOLUME. Linux: unmounts every mount point of the
    // volume, then opens the node with O_EXCL.
    virtual Status lock() = 0;
    // Makes the file system let go of the volume. Success when no file system is mounted on it any more.
    // Windows: FSCTL_DISMOUNT_VOLUME, which also cuts off open files. Linux: as lock(); a volume that stays
    // mounted answers SharingViolation here and at every write(), since its file system would write over what
    // is erased.
    virtual Status dismount() = 0;
    // Allows transfers up to the very end of the volume. Windows: FSCTL_ALLOW_EXTENDED_DASD_IO. Linux:
    // success.
    virtual Status allowExtendedIo() = 0;
    // Windows: FSCTL_UNLOCK_VOLUME. Linux: gives the exclusive opening back.
    virtual Status unlock() = 0;
};

// The drive that somebody chose: its number, and what tells it from another that takes its number later. What
// the drive does not tell stays empty.
struct DriveIdentity
{
    int number = -1;
    QString serialNumber{};
    qint64 sizeBytes = 0;
    QString product{};
    QString worldWideName{}; // see DeviceQuery::worldWideName

    bool operator==(const DriveIdentity &) const = default;
};

enum class DriveAccess {
    Alone,            // nobody else may hold the drive or a part of it
    BesideOwnVolumes, // this process holds volumes of the drive
    ReadOnly,         // to look at it, whoever holds it; every write() fails
};

// A mounted volume as the system lists it.
struct MountedVolume
{
    QString name;     // what queryVolume and openVolume take: "E:" on Windows, the mount point on Linux
    QString rootPath; // "E:/" on Windows, the mount point on Linux
    QString label;
    QByteArray fileSystem; // UTF-8
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;
    bool isReady = false; // valid and ready
    bool isLocal = false; // on a fixed or removable drive; not network, optical or memory
    QString identity{};   // see AnchoredFolder::volumeIdentity; empty when it does not tell
};

// The drives and volumes of the machine. Thread-safe; nothing is cached but the numbers of drives.
class Devices
{
public:
    Devices() = default;
    virtual ~Devices() = default;
    Devices(const Devices &) = delete;
    Devices &operator=(const Devices &) = delete;

    // The path that opens the drive, empty when there is none under the number.
    // Windows: "\\.\PhysicalDrive%1" for every number. Linux: the device node.
    virtual QString drivePath(int number) = 0;

    // FileNotFound when no drive has the number.
    // Windows: the system's own numbers. Linux: a number is given at first sight, in natural name order, and
    // stays with its device for the life of the process.
    virtual Result<std::unique_ptr<DeviceQuery>> queryDrive(int number) = 0;

    // A volume by its name: "E:" on Windows, a mount point or a device node on Linux.
    virtual Result<std::unique_ptr<DeviceQuery>> queryVolume(const QString &name) = 0;

    // Opens a drive for writing, or only for reading. NotReady, with nothing opened, when anything
    // in the identity is no longer as it was; AccessDenied without the rights; SharingViolation when
    // somebody else holds it. Windows: CreateFileW with GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ |
    // FILE_SHARE_WRITE, OPEN_EXISTING, FILE_FLAG_WRITE_THROUGH | FILE_FLAG_NO_BUFFERING, with GENERIC_READ
    // alone when ReadOnly; when Alone every volume of the drive is locked, then dismounted, and held with
    // the drive, NotReady when one lies on another drive too. Linux: O_RDWR | O_DIRECT | O_DSYNC, with O_EXCL
    // when Alone; O_RDONLY | O_DIRECT when ReadOnly.
    virtual Result<std::unique_ptr<RawDevice>> openDrive(const DriveIdentity &drive, DriveAccess access) = 0;

    // Opens a volume of that drive for writing, flags as above, neither locked nor dismounted. NotReady, with
    // nothing opened, when the drive is no longer the one of the identity or the volume is not wholly on it:
    // whatever lies on another drive too would be overwritten there with it.
    virtual Result<std::unique_ptr<VolumeDevice>> openVolume(const QString &name,
                                                             const DriveIdentity &drive) = 0;

    // Takes every volume off the drive, gently: one that somebody uses is in the way. Failure leaves the
    // drive as it was, but for what it names: NotReady when the drive is no longer the one of the identity or
    // a volume lies on another drive too, SharingViolation when something on it is in use, AccessDenied
    // without the rights. Windows: FSCTL_LOCK_VOLUME on each, then IOCTL_DISK_SET_DISK_ATTRIBUTES takes the
    // drive offline until it is given back or the system starts anew; media that cannot go offline stay
    // locked and dismounted instead. Linux: unmounts every place, the latest mount first, and holds the drive
    // with O_EXCL.
    virtual VolumeRelease releaseVolumes(const DriveIdentity &drive) = 0;

    // Every name that a volume may have, in the order in which they are to be tried; some may not open.
    // Windows: "A:" to "Z:". Linux: the mount points of block devices, one per device, in mount order.
    virtual QStringList volumeNames() = 0;

    // Every volume under the name that the system itself has for it, whether or not volumeNames() has it too,
    // as queryVolume() takes it; openVolume() takes none of these. Windows: FindFirstVolumeW,
    // "\\?\Volume{...}", also those without a letter. Linux: NotSupported, the mount points are the names.
    virtual Result<QStringList> machineVolumes() = 0;

    // Windows: QStorageInfo::mountedVolumes, GetDriveTypeW. Linux: the same mount points as volumeNames, with
    // room and label.
    virtual QList<MountedVolume> mountedVolumes() = 0;
};

} // namespace platform
