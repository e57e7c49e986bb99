#pragma once

#include "platform/contentplace.h"
#include "platform/durabilitygroup.h"
#include "platform/entrypath.h"
#include "platform/fileid.h"
#include "platform/status.h"

#include <QByteArray>
#include <QFile>
#include <QFileDevice>
#include <QIODevice>
#include <QList>
#include <QString>

#include <memory>

namespace platform {

enum class FileKind {
    Regular, ///< a file whose bytes can be overwritten
    Folder,  ///< a real folder, never a link to one
    Link,    ///< symbolic link; on Windows any name that refers to another entry (also junction, mount point)
    Special, ///< pipe, socket, device node
};

struct FileInfo
{
    FileKind kind = FileKind::Regular;
    qint64 size = 0;   ///< bytes; 0 except for regular files
    int linkCount = 1; ///< number of names (hard links), at least 1
    FileId id{};       ///< comparable only where FileHandle::id() succeeds
    /// In a held folder: the name is a mount point, so the entry found is not one of the folder.
    bool isMounted = false;
    /// The space allocated for the content of a regular file, less than its size if it has holes or is
    /// compressed; below 0 where it is not known to be less.
    qint64 allocatedBytes = -1;
    /// A cloud service keeps copies of the file, and possibly of older versions. Windows: by its reparse tag.
    bool isInCloud = false;
};

/// A named stream of a file or folder, beside its content.
struct NamedStream
{
    QString name; ///< as EntryPath::stream() takes it
    qint64 size = 0;
};

/// An open file. Positions and lengths are bytes. Transfers continue after short counts and interruptions, so
/// a count below the requested one means the end of the file for a read, and no further progress for a write.
/// The system's page cache is never trusted: read() returns the bytes on the medium.
///
/// One thread at a time; closes on destruction.
class FileHandle
{
public:
    FileHandle() = default;
    virtual ~FileHandle() = default;
    FileHandle(const FileHandle &) = delete;
    FileHandle &operator=(const FileHandle &) = delete;

    /// Sets the position, counted from the start, for the next read, write or setEnd. It may lie beyond the
    /// end; a negative position fails with InvalidParameter. Windows: SetFilePointerEx(FILE_BEGIN). Linux:
    /// remembered for pread and pwrite.
    virtual Status seek(qint64 position) = 0;

    /// Reads up to size bytes and advances the position by the count returned; 0 is the end of the file.
    /// Direct transfers fill whole units even if the file ends within one, so the bytes of data between the
    /// count and size are unspecified, and on failure all of them. Nothing at or behind data + size is
    /// touched. Windows: ReadFile. Linux: pread on a descriptor with O_DIRECT through an aligned buffer;
    /// where the file system refuses O_DIRECT, posix_fadvise(POSIX_FADV_DONTNEED) before each read.
    virtual Result<qint64> read(void *data, qint64 size) = 0;

    /// Writes size bytes and advances the position by the count returned. With OpenMode::Overwrite every byte
    /// has reached the device when the call returns, except for a member of a group. On failure an unknown
    /// part of the range may have been written. Windows: WriteFile. Linux: pwrite.
    virtual Result<qint64> write(const void *data, qint64 size) = 0;

    /// Makes the current position the end of the file.
    /// Windows: SetEndOfFile. Linux: ftruncate.
    virtual Status setEnd() = 0;

    /// After success all written data is on the medium; for a member of a group, only after the group was
    /// closed. After a failure an unknown part of the data is not on the medium, and a successful retry does
    /// not prove otherwise. Windows: FlushFileBuffers. Linux: fsync after setEnd, else fdatasync; nothing
    /// where each write is known to have waited for the device.
    virtual Status flush() = 0;

    /// The same as FileInfo::id. NotSupported where the file system may renumber its files (FAT on Linux,
    /// file systems in user space, most network file systems), so that a different number proves nothing.
    /// Windows: GetFileInformationByHandle. Linux: statx.
    virtual Result<FileId> id() = 0;

    /// The location of the content, without other streams; no reasons for a file without content. The first
    /// write may change the answer, so the caller asks before it. Data that is still in the system's cache is
    /// written out first. A failure leaves the location unknown. Windows: GetFileInformationByHandle(Ex),
    /// GetVolumeInformationByHandleW, FSCTL_GET_INTEGRITY_INFORMATION, FSCTL_GET_RETRIEVAL_POINTERS. Linux:
    /// fstatfs, FS_IOC_GETFLAGS, FS_IOC_FIEMAP, /proc/fs/ext4.
    virtual Result<ContentPlace> contentPlace() = 0;
};

enum class OpenMode {
    /// Read and write in place, write-through; the length and the blocks of the file stay. Others may read.
    /// Windows: GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, FILE_FLAG_WRITE_THROUGH |
    /// FILE_FLAG_SEQUENTIAL_SCAN | FILE_ATTRIBUTE_NORMAL. Linux: O_RDWR | O_DIRECT | O_DSYNC (without
    /// O_DIRECT where the file system refuses it, without O_DSYNC in a group).
    Overwrite,
    /// Read only; others may read and write.
    /// Windows: GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING. Linux: O_RDONLY | O_DIRECT.
    Verify,
    /// Write, to truncate the file before it is deleted; others may read. Opening itself truncates nothing.
    /// Windows: GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING. Linux: O_WRONLY.
    Truncate,
    /// Create, or truncate an existing regular file to zero bytes, and write. Data is on the medium after
    /// flush(). Windows: GENERIC_WRITE, no sharing, CREATE_NEW, and OPEN_EXISTING with SetEndOfFile for an
    /// existing file, because CREATE_ALWAYS would truncate the target of a link. Linux: O_WRONLY | O_CREAT |
    /// O_TRUNC | O_DIRECT, mode 0600.
    CreateFill,
};

/// Operations on single files. Paths are absolute, with forward or native separators. A name that the system
/// cannot express in Unicode is carried losslessly (Linux: an undecodable byte b as the lone surrogate U+DC00
/// + b).
///
/// No operation follows a link in the last component of the path. In a held folder, no operation that opens
/// or changes an entry touches a file system mounted over the name; it fails with NotSameDevice, rename and
/// remove with SharingViolation. Thread-safe.
class Files
{
public:
    Files() = default;
    virtual ~Files() = default;
    Files(const Files &) = delete;
    Files &operator=(const Files &) = delete;

    /// The entry under the path itself. FileNotFound or PathNotFound when there is none. Windows:
    /// GetFileAttributesExW, FindFirstFileExW for the tag of a reparse point, GetFileInformationByHandle for
    /// link count and identity, GetFileInformationByHandleEx for the allocated size of a sparse or compressed
    /// file. Linux: statx.
    virtual Result<FileInfo> info(const EntryPath &entry) = 0;

    /// Opens a regular file. Other entries are refused with CannotAccessFile, a folder with AccessDenied,
    /// before any byte is read or written, and without blocking on a pipe. A file whose bytes the system
    /// keeps elsewhere is refused too. FileOffline where a part of its bytes is only in a cloud: nothing is
    /// downloaded. Windows: CreateFileW with FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL; every
    /// reparse point is refused except a cloud service's mark on local data. Linux: open with O_NOFOLLOW |
    /// O_NONBLOCK, then fstat.
    Result<std::unique_ptr<FileHandle>> open(const EntryPath &entry, OpenMode mode)
    {
        return openIn(nullptr, entry, mode);
    }

    /// Opens a file as a member of a group; without a group when group is null. A file that the group does
    /// not cover is opened as well, and is flushed by itself.
    virtual Result<std::unique_ptr<FileHandle>> openIn(const std::shared_ptr<DurabilityGroup> &group,
                                                       const EntryPath &entry, OpenMode mode) = 0;

    /// Begins a group on the file system of a held folder. Call it before the first write to a member,
    /// because the group may not report data that was lost earlier. NotSupported where only a file's own
    /// flush reports lost writes. After any failure each file needs a flush of its own. Windows:
    /// NotSupported. Linux: a descriptor for syncfs; ext2 to ext4, XFS, btrfs and F2FS from Linux 5.8 on.
    virtual Result<std::shared_ptr<DurabilityGroup>> beginGroup(const EntryPath &folder) = 0;

    /// After success all data that was written to members and flushed is on the medium, and so is every
    /// change of name and length on that file system. After a failure an unknown part of it is not, and it
    /// may belong to any member. Call it once, and while no thread writes to a member. Linux: syncfs, then
    /// fdatasync of a written member, because syncfs does not flush the drive's cache when the file system
    /// has nothing to log.
    virtual Status closeGroup(DurabilityGroup &group) = 0;

    /// FileHandle::contentPlace() of a regular file and of all its streams together; for a folder the
    /// properties of new files in it, without a count of bytes. Other entries are refused as by open(). Needs
    /// no permission to write.
    virtual Result<ContentPlace> contentPlace(const EntryPath &entry) = 0;

    /// The named streams of a regular file or folder; none where the file system has no named streams. The
    /// streams of a file are deleted with it, and opened as files are where that is possible. Other entries
    /// are refused as by open(). Windows: FileStreamInfo. Linux: the extended attributes that users give
    /// (flistxattr), which cannot be opened.
    virtual Result<QList<NamedStream>> namedStreams(const EntryPath &entry) = 0;

    /// The first bytes of a regular file, at most limit; fewer when the file is shorter. Read through the
    /// system's cache, for small files that describe other files. Only regular files are read (else
    /// CannotAccessFile, AccessDenied for a folder), and the call never waits for a pipe. Windows:
    /// CreateFileW with FILE_FLAG_OPEN_REPARSE_POINT and all sharing. Linux: O_NOFOLLOW | O_NONBLOCK.
    virtual Result<QByteArray> readBeginning(const QString &path, qint64 limit) = 0;

    /// Opens a file for appending lines of text. Each write goes to the end of the file, also behind the data
    /// that other processes have written since. A missing file is created, for its owner only. Links, and
    /// other entries that are no regular file, are refused as by open(). Data that could not be written is
    /// kept and tried again with the next flush. The device may outlive the Platform; one thread at a time.
    /// Windows: FILE_APPEND_DATA without FILE_WRITE_DATA, all sharing but deletion. Linux: O_APPEND |
    /// O_NOFOLLOW.
    virtual Result<std::unique_ptr<QFileDevice>> openForAppending(const QString &path) = 0;

    /// Whether the path, followed through links, is a character device or a pipe. Always false on Windows,
    /// whose names of devices and pipes lie in no folder.
    virtual bool isStream(const QString &path) = 0;

    /// Opens a character device or pipe for writing in this mode, and waits for a pipe's reader. False when
    /// the file's name belongs to any other kind of entry by now; that entry stays unchanged. Linux: open,
    /// then fstat.
    virtual bool openStream(QFile &stream, QIODevice::OpenMode mode) = 0;

    /// Writes out the cached bytes of the open file. False when some of them were lost; true where the system
    /// reports nothing. Linux: fsync. Windows: true, because space is allocated at the write.
    virtual bool isWrittenOut(const QFileDevice &file) = 0;

    /// The number of further files that the process can open now. It is approximate while other threads open
    /// and close files, and larger than any need where no limit is known. Windows: no limit is known. Linux:
    /// getrlimit and fcntl.
    virtual int spareOpenFiles() = 0;

    /// Makes the file writable for its owner. Success when nothing had to change, or when the entry does not
    /// exist. Windows: clears FILE_ATTRIBUTE_READONLY, keeps the other attributes. Linux: adds the owner's
    /// write permission; a link is left as it is.
    virtual Status clearReadOnly(const EntryPath &entry) = 0;

    /// Renames within a folder and replaces an existing entry of the new name. Windows:
    /// MoveFileExW(MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED). Linux: rename.
    virtual Status rename(const EntryPath &from, const EntryPath &to) = 0;

    /// Deletes a file, link, pipe, socket or device node; of a link the name itself, never its target. One
    /// attempt. On Windows SharingViolation or AccessDenied while the file is open elsewhere. Windows:
    /// DeleteFileW, RemoveDirectoryW for a link to a folder. Linux: unlink.
    virtual Status remove(const EntryPath &entry) = 0;
};

} // namespace platform
