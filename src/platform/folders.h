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

/// Room on a mounted volume, in bytes.
struct SpaceInfo
{
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;      ///< all free bytes, also those that only an administrator may use
    qint64 availableBytes = 0; ///< those of them that the user in effect may use
};

struct FolderOwner
{
    bool isOwn = false;    ///< belongs to the user in effect
    bool isSticky = false; ///< several may put entries in it, and only remove their own
};

/// Operations on folders and on the volume below them. Paths as in Files; no operation follows a link in the
/// last component. Thread-safe.
class Folders
{
public:
    Folders() = default;
    virtual ~Folders() = default;
    Folders(const Folders &) = delete;
    Folders &operator=(const Folders &) = delete;

    /// Opens a folder to work in it, without claiming it. PathNotFound for a link and for everything else
    /// that is no folder.
    virtual Result<std::unique_ptr<AnchoredFolder>> anchor(const QString &folder) = 0;

    /// Called once per entry with its name (no path) and kind; false ends the listing, which then counts as
    /// success.
    using Visitor = std::function<bool(const QString &name, FileKind kind)>;

    /// Lists a folder: hidden and system entries too, without "." and "..", in the order the system gives.
    /// Success means that every entry was seen (or the visitor ended it); a failure may come after some were.
    /// Windows: FindFirstFileExW. Linux: readdir; the kind is asked for separately where readdir leaves it
    /// open.
    virtual Status forEachEntry(const EntryPath &folder, const Visitor &visit) = 0;

    /// Opens a folder to be held, as the system resolves its path: the last component, too, may be a link.
    /// Windows: CreateFileW. Linux: open.
    virtual Result<std::shared_ptr<FolderHandle>> hold(const QString &folder) = 0;

    enum class Mounts {
        Refuse,
        Enter,
    };
    /// Opens a folder in a held one. PathNotFound for a link and for everything else that is no folder,
    /// NotSameDevice for what is mounted over the name, unless that is to be entered.
    /// Windows: CreateFileW with FILE_FLAG_OPEN_REPARSE_POINT; whatever is mounted is a link there. Linux:
    /// openat and statx.
    virtual Result<std::shared_ptr<FolderHandle>> holdIn(const std::shared_ptr<FolderHandle> &parent,
                                                         const QString &name, Mounts mounts) = 0;

    /// Creates the folder with all missing parents; success when it exists already as a real folder.
    /// Windows: CreateDirectoryW. Linux: mkdir, mode 0700 for what it creates.
    virtual Status create(const QString &folder) = 0;

    /// Removes an empty folder; DirectoryNotEmpty otherwise.
    /// Windows: RemoveDirectoryW. Linux: rmdir.
    virtual Status removeEmpty(const EntryPath &folder) = 0;

    /// Removes the folder with everything in it. Links inside are removed themselves, what they lead to is
    /// never touched. Goes on past what cannot be removed and answers the first failure. Windows:
    /// FindFirstFileExW, DeleteFileW, RemoveDirectoryW. Linux: openat and unlinkat, so that a folder that is
    /// swapped for a link meanwhile is not followed.
    virtual Status removeTree(const QString &folder) = 0;

    /// Whose the folder is. PathNotFound for a link, wherever it leads, and for everything else that is no
    /// folder. Windows: NotSupported, folders do not belong to numbered users there. Linux: lstat.
    virtual Result<FolderOwner> owner(const QString &folder) = 0;

    /// Hides the entry from ordinary listings.
    /// Windows: SetFileAttributesW(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM). Linux: nothing to do, a
    /// leading dot in the name hides it; success when the entry exists.
    virtual Status hide(const QString &path) = 0;

    /// Room on the volume that holds the path. NotReady, or the system's own number, when the volume is gone
    /// or does not answer. Windows: GetDiskFreeSpaceExW. Linux: statvfs.
    virtual Result<SpaceInfo> space(const QString &path) = 0;

    /// Whether the system may have refused to let this program write because of the program itself, whatever
    /// the rights of its user. code: the failure of the call that was to write. Windows: controlled folder
    /// access, which tells programs that it does not trust that they have no access, or that nothing stands
    /// there. Linux: never.
    virtual bool mayDistrustProgram(quint32 code) = 0;

    /// How many snapshots the system keeps of the volume that holds the path: whatever is overwritten on the
    /// volume stays in them. NotSupported where there are none of that kind, any other failure when that
    /// cannot be found out. Windows: volume shadow copies, CreateFileW on
    /// "\?\GLOBALROOT\Device\HarddiskVolumeShadowCopy%1" and GetVolumeInformationByHandleW, NTFS and ReFS.
    /// Linux: NotSupported; a file system that has snapshots tells of them at each file (ContentPlace).
    virtual Result<int> snapshots(const QString &path) = 0;
};

} // namespace platform
