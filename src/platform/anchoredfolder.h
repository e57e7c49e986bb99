#pragma once

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/status.h"
#include "platform/volumejournal.h"

#include <QString>

#include <memory>

namespace platform {

/// An open folder. Every operation reaches this folder and its volume, even if a link replaces the folder's
/// path or another volume is mounted over it.
///
/// Names are single components; other names fail with InvalidParameter. No operation follows a link. One
/// thread at a time; closes on destruction. The volume is in use as long as the folder is open.
class AnchoredFolder
{
public:
    AnchoredFolder() = default;
    virtual ~AnchoredFolder() = default;
    AnchoredFolder(const AnchoredFolder &) = delete;
    AnchoredFolder &operator=(const AnchoredFolder &) = delete;

    /// The path under which the folder was opened, for display.
    virtual QString path() const = 0;

    /// Whether this handle holds the folder exclusively. openFolder() and createFolder() claim it. False for
    /// a folder from Folders::anchor(), and where the file system does not support such claims.
    virtual bool isClaimed() const = 0;

    /// Identifies the folder's volume, so that another volume mounted there later is detected. The same text
    /// as MountedVolume::identity. Windows: serial number, and number and creation time of the root. Linux:
    /// device, number and creation time of the root, f_fsid of statfs, and the UUID from udev's database.
    virtual Result<QString> volumeIdentity() = 0;

    /// Space on the folder's volume. Windows: GetDiskFreeSpaceExW. Linux: fstatvfs.
    virtual Result<SpaceInfo> space() = 0;

    /// As Folders::forEachEntry.
    virtual Status forEachEntry(const Folders::Visitor &visit) = 0;
    /// As Files::info.
    virtual Result<FileInfo> info(const QString &name) = 0;

    /// Creates a new file for writing; AlreadyExists when any entry has the name. Data is on the medium after
    /// flush(). The file is stored uncompressed; if compression cannot be turned off, the call fails and
    /// leaves an empty file. Windows: CREATE_NEW without sharing, FSCTL_SET_COMPRESSION. Linux: openat with
    /// O_CREAT | O_EXCL | O_NOFOLLOW, mode 0600, then O_DIRECT where the file system accepts it.
    virtual Result<std::unique_ptr<FileHandle>> createFile(const QString &name) = 0;
    /// As Files::remove. Linux: unlinkat.
    virtual Status removeFile(const QString &name) = 0;

    /// Creates, claims and opens a new folder; AlreadyExists when any entry has the name. A failure leaves no
    /// folder. Windows: CreateDirectoryW, then as openFolder. Linux: mkdirat, mode 0700.
    virtual Result<std::unique_ptr<AnchoredFolder>> createFolder(const QString &name) = 0;
    /// Opens and claims a folder. SharingViolation when another handle has claimed it, PathNotFound for a
    /// link. Windows: opened without FILE_SHARE_DELETE, so that the folder cannot be renamed or deleted
    /// meanwhile. Linux: openat with O_DIRECTORY | O_NOFOLLOW, then flock.
    virtual Result<std::unique_ptr<AnchoredFolder>> openFolder(const QString &name) = 0;
    /// Hides the folder itself, as Folders::hide.
    virtual Status hide() = 0;
    /// As Folders::removeEmpty and removeTree. This process must not have the folder open.
    virtual Status removeFolder(const QString &name) = 0;
    virtual Status removeTree(const QString &name) = 0;

    /// The journal of the folder's file system, with this folder as the one to change blocks in. NotSupported
    /// where names are kept in other ways. Windows: NotSupported. Linux: ext2 to ext4, fstatfs, /sys/fs/ext4
    /// and /proc/fs/jbd2.
    virtual Result<std::unique_ptr<VolumeJournal>> journal() = 0;
};

} // namespace platform
