#pragma once

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/status.h"

#include <QString>

#include <memory>

namespace platform {

// An open folder. What is done in it reaches this folder and its volume, whatever becomes of its path
// meanwhile: a link that takes its place, another volume that is mounted over it.
//
// Names are single components; everything else fails with InvalidParameter. No operation follows a link. One
// thread at a time; closes on destruction. As long as a folder is open, its volume is in use.
class AnchoredFolder
{
public:
    AnchoredFolder() = default;
    virtual ~AnchoredFolder() = default;
    AnchoredFolder(const AnchoredFolder &) = delete;
    AnchoredFolder &operator=(const AnchoredFolder &) = delete;

    // Under which it was opened, for display.
    virtual QString path() const = 0;

    // Whether this handle alone has the folder: openFolder() and createFolder() claim it. False of the folder
    // that Folders::anchor() opened, and where the file system knows no such claims.
    virtual bool isClaimed() const = 0;

    // What tells the volume of the folder from another that takes its place later: the same text as
    // MountedVolume::identity. Windows: serial number, number and time of birth of its root. Linux: device,
    // number and time of birth of its root, f_fsid of statfs, and the UUID that udev has noted.
    virtual Result<QString> volumeIdentity() = 0;

    // Room on its volume. Windows: GetDiskFreeSpaceExW. Linux: fstatvfs.
    virtual Result<SpaceInfo> space() = 0;

    // As Folders::forEachEntry.
    virtual Status forEachEntry(const Folders::Visitor &visit) = 0;
    // As Files::info.
    virtual Result<FileInfo> info(const QString &name) = 0;

    // Makes a new file to be written; AlreadyExists when the name is taken by anything. Data is on the medium
    // after flush(). Stored as it is written, never compressed; it stays behind empty where that fails.
    // Windows: CREATE_NEW without sharing, FSCTL_SET_COMPRESSION. Linux: openat with O_CREAT | O_EXCL |
    // O_NOFOLLOW, mode 0600, then O_DIRECT where the file system takes it.
    virtual Result<std::unique_ptr<FileHandle>> createFile(const QString &name) = 0;
    // As Files::remove. Linux: unlinkat.
    virtual Status removeFile(const QString &name) = 0;

    // Makes a new folder, claims and opens it; AlreadyExists when the name is taken by anything.
    // Windows: CreateDirectoryW, then as openFolder. Linux: mkdirat, mode 0700.
    virtual Result<std::unique_ptr<AnchoredFolder>> createFolder(const QString &name) = 0;
    // Opens a folder and claims it: SharingViolation when somebody has it open by such a call. PathNotFound
    // for a link. Windows: held without FILE_SHARE_DELETE, so that nobody renames or deletes it meanwhile.
    // Linux: openat with O_DIRECTORY | O_NOFOLLOW, then flock.
    virtual Result<std::unique_ptr<AnchoredFolder>> openFolder(const QString &name) = 0;
    // Hides the folder itself, as Folders::hide.
    virtual Status hide() = 0;
    // As Folders::removeEmpty and removeTree. The folder must not be open here.
    virtual Status removeFolder(const QString &name) = 0;
    virtual Status removeTree(const QString &name) = 0;
};

} // namespace platform
