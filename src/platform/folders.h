#pragma once

#include "platform/entrypath.h"
#include "platform/files.h"
#include "platform/folderhandle.h"
#include "platform/status.h"

#include <QString>

#include <functional>
#include <memory>

namespace platform {

class AnchoredFolder;

/// Space on a mounted volume, in bytes.
struct SpaceInfo
{
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;      ///< all free bytes, also those reserved for administrators
    qint64 availableBytes = 0; ///< the free bytes that the effective user may use
};

struct FolderOwner
{
    bool isOwn = false;    ///< belongs to the effective user
    bool isSticky = false; ///< several users may create entries, and each may remove only their own
};

/// Operations on folders and on their volumes. Paths as in Files; no operation follows a link in the last
/// component. Thread-safe.
class Folders
{
public:
    Folders() = default;
    virtual ~Folders() = default;
    Folders(const Folders &) = delete;
    Folders &operator=(const Folders &) = delete;

    /// Opens a folder to work in it, without claiming it. PathNotFound for a link and for any entry that is
    /// no folder.
    virtual Result<std::unique_ptr<AnchoredFolder>> anchor(const EntryPath &folder) = 0;

    /// Called once per entry with its name (no path) and kind. The result false ends the listing, which then
    /// succeeds.
    using Visitor = std::function<bool(const QString &name, FileKind kind)>;

    /// Lists a folder, including hidden and system entries, without "." and "..", in the system's order.
    /// Success means that every entry was visited, or that the visitor ended the listing. A failure may come
    /// after some entries were visited. Windows: FindFirstFileExW. Linux: readdir; the kind is queried
    /// separately where readdir does not report it.
    virtual Status forEachEntry(const EntryPath &folder, const Visitor &visit) = 0;

    /// Opens and holds a folder. The system resolves the path, so the last component may be a link. Windows:
    /// CreateFileW. Linux: open.
    virtual Result<std::shared_ptr<FolderHandle>> hold(const QString &folder) = 0;

    enum class Mounts {
        Refuse,
        Enter,
    };
    /// Opens a folder in a held one. PathNotFound for a link and for any entry that is no folder;
    /// NotSameDevice for a mount point unless mounts is Enter. Windows: CreateFileW with
    /// FILE_FLAG_OPEN_REPARSE_POINT; mount points are links there. Linux: openat and statx.
    virtual Result<std::shared_ptr<FolderHandle>> holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                         const QString &name, Mounts mounts) = 0;

    /// Creates the folder with all missing parents; success when it exists already as a real folder. Windows:
    /// CreateDirectoryW. Linux: mkdir, mode 0700 for new folders.
    virtual Status create(const QString &folder) = 0;

    /// Removes an empty folder; DirectoryNotEmpty otherwise.
    /// Windows: RemoveDirectoryW. Linux: rmdir.
    virtual Status removeEmpty(const EntryPath &folder) = 0;

    /// Removes the folder with all its contents. Links inside are removed themselves, their targets are never
    /// touched. Continues after an entry that cannot be removed, and returns the first failure. Windows:
    /// FindFirstFileExW, DeleteFileW, RemoveDirectoryW. Linux: openat and unlinkat, so that a folder that is
    /// replaced by a link meanwhile is not followed.
    virtual Status removeTree(const QString &folder) = 0;

    /// The owner of the folder. PathNotFound for a link, whatever its target, and for any entry that is no
    /// folder. Windows: NotSupported, because its users have no numbers. Linux: lstat.
    virtual Result<FolderOwner> owner(const QString &folder) = 0;

    /// Hides the entry from ordinary listings. Windows: SetFileAttributesW(FILE_ATTRIBUTE_HIDDEN |
    /// FILE_ATTRIBUTE_SYSTEM). Linux: does nothing, because a leading dot in the name hides the entry;
    /// success when the entry exists.
    virtual Status hide(const QString &path) = 0;

    /// Space on the volume that holds the path. When the volume is gone or does not answer, NotReady or the
    /// system's own number. Windows: GetDiskFreeSpaceExW. Linux: statvfs.
    virtual Result<SpaceInfo> space(const QString &path) = 0;

    /// Whether the system may have denied a write because of this program itself, regardless of its user's
    /// rights. code: the failure of the call that was to write. Windows: controlled folder access, which
    /// reports to untrusted programs that access is denied or that the entry does not exist. Linux: never.
    virtual bool mayDistrustProgram(quint32 code) = 0;

    /// The number of snapshots that the system keeps of the volume that holds the path. Snapshots retain data
    /// that is overwritten on the volume. NotSupported where the system has no such snapshots; any other
    /// failure when the number cannot be determined. Windows: volume shadow copies, CreateFileW on
    /// "\\?\GLOBALROOT\Device\HarddiskVolumeShadowCopy%1" and GetVolumeInformationByHandleW, NTFS and ReFS.
    /// Linux: NotSupported; file systems with snapshots report them for each file (ContentPlace).
    virtual Result<int> snapshots(const QString &path) = 0;
};

} // namespace platform
