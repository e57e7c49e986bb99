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
    Link,    ///< symbolic link; on Windows any name that stands for another (also junction, mount point)
    Special, ///< pipe, socket, device node
};

struct FileInfo
{
    FileKind kind = FileKind::Regular;
    qint64 size = 0;   ///< bytes; 0 for everything but regular files
    int linkCount = 1; ///< names that the file has (hard links), at least 1
    FileId id{};       ///< only to be compared where FileHandle::id() answers
    /// In a held folder: something from elsewhere that is mounted over the name, which is not in the folder.
    bool isMounted = false;
    /// What the content of a regular file occupies, less than its size where there are holes or it is
    /// compressed; below 0 where nothing says that it may be less.
    qint64 allocatedBytes = -1;
    /// A cloud service keeps copies of it, and maybe of what it was before. Windows: by its reparse tag.
    bool isInCloud = false;
};

/// What a file or folder holds beside its content.
struct NamedStream
{
    QString name; ///< as EntryPath::stream() takes it
    qint64 size = 0;
};

/// An open file. Positions and lengths are bytes. Transfers loop over short ones and interruptions by
/// themselves, so a count below the one asked for means: end of file for a read, no further progress for a
/// write. The system's page cache is never trusted: read() returns what the medium holds.
///
/// A handle is used by one thread at a time and closes on destruction.
class FileHandle
{
public:
    FileHandle() = default;
    virtual ~FileHandle() = default;
    FileHandle(const FileHandle &) = delete;
    FileHandle &operator=(const FileHandle &) = delete;

    /// Sets the position, counted from the start, for the next read, write or setEnd. Beyond the end is
    /// allowed; a negative one fails with InvalidParameter. Windows: SetFilePointerEx(FILE_BEGIN). Linux:
    /// remembered for pread and pwrite.
    virtual Status seek(qint64 position) = 0;

    /// Reads up to size bytes and advances the position by the count returned; 0 is the end of the file. The
    /// bytes of data between the count and size, and on failure all of them, are unspecified: direct
    /// transfers fill whole units, also where the file ends within one. Nothing at or behind data + size is
    /// touched. Windows: ReadFile. Linux: pread on a descriptor with O_DIRECT through an aligned buffer;
    /// where the file system refuses that, posix_fadvise(POSIX_FADV_DONTNEED) before each read.
    virtual Result<qint64> read(void *data, qint64 size) = 0;

    /// Writes size bytes and advances the position by the count returned. With OpenMode::Overwrite every byte
    /// has reached the device when the call returns, except of a member of a group. On failure an unknown
    /// part of the range may have been written. Windows: WriteFile. Linux: pwrite.
    virtual Result<qint64> write(const void *data, qint64 size) = 0;

    /// Makes the current position the end of the file.
    /// Windows: SetEndOfFile. Linux: ftruncate.
    virtual Status setEnd() = 0;

    /// After success everything written is on the medium, of a member of a group when the group was closed. A
    /// failure means that an unknown part of what was written is not; it is never to be retried as if nothing
    /// had happened. Windows: FlushFileBuffers. Linux: fsync after setEnd, else fdatasync; nothing where each
    /// write is known to have waited for the device.
    virtual Status flush() = 0;

    /// The same as FileInfo::id. NotSupported where the file system gives its files other numbers whenever it
    /// likes (FAT on Linux, file systems in user space, most of the network), so that another number says
    /// nothing. Windows: GetFileInformationByHandle. Linux: statx.
    virtual Result<FileId> id() = 0;

    /// Where the content lies, none of a file without content; not that of other streams. To be asked before
    /// the first write, which may already change the answer. What the system still holds back is written out
    /// first. A failure leaves the question open. Windows: GetFileInformationByHandle(Ex),
    /// GetVolumeInformationByHandleW, FSCTL_GET_INTEGRITY_INFORMATION, FSCTL_GET_RETRIEVAL_POINTERS. Linux:
    /// fstatfs, FS_IOC_GETFLAGS, FS_IOC_FIEMAP, /proc/fs/ext4.
    virtual Result<ContentPlace> contentPlace() = 0;
};

enum class OpenMode {
    /// Read and write in place, write-through; the length and the blocks of the file stay. Others may read.
    /// Windows: GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, FILE_FLAG_WRITE_THROUGH |
    /// FILE_FLAG_SEQUENTIAL_SCAN | FILE_ATTRIBUTE_NORMAL. Linux: O_RDWR | O_DIRECT | O_DSYNC (without
    /// O_DIRECT
    /// where the file system refuses it, without O_DSYNC in a group).
    Overwrite,
    /// Read only; others may read and write.
    /// Windows: GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING. Linux: O_RDONLY | O_DIRECT.
    Verify,
    /// Write, to cut the file before it is deleted; others may read. Opening itself cuts nothing.
    /// Windows: GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING. Linux: O_WRONLY.
    Truncate,
    /// Create, or cut an existing regular file to nothing, and write. Data is on the medium after flush().
    /// Windows: GENERIC_WRITE, no sharing, CREATE_NEW, and OPEN_EXISTING with SetEndOfFile where that finds a
    /// file: CREATE_ALWAYS would cut what a link leads to. Linux: O_WRONLY | O_CREAT | O_TRUNC | O_DIRECT,
    /// mode
    /// 0600.
    CreateFill,
};

/// Operations on single files. Paths are absolute, with forward or native separators; a name that the system
/// cannot express in Unicode is carried losslessly (Linux: an undecodable byte b as the lone surrogate U+DC00
/// + b).
///
/// No operation follows a link in the last component of the path. In a held folder, none
/// of those that open or change an entry touches what is mounted over a name: they fail with NotSameDevice,
/// rename and remove with SharingViolation. Thread-safe.
class Files
{
public:
    Files() = default;
    virtual ~Files() = default;
    Files(const Files &) = delete;
    Files &operator=(const Files &) = delete;

    /// What stands under the path itself. FileNotFound or PathNotFound when there is nothing.
    /// Windows: GetFileAttributesExW, FindFirstFileExW for the tag of a reparse point,
    /// GetFileInformationByHandle for link count and identity, GetFileInformationByHandleEx for what a sparse
    /// or compressed file occupies. Linux: statx.
    virtual Result<FileInfo> info(const EntryPath &entry) = 0;

    /// Opens a regular file. Everything else is refused with CannotAccessFile, a folder with AccessDenied,
    /// before any byte is read or written, and without blocking on a pipe; also a file whose bytes the system
    /// keeps elsewhere. FileOffline where a part of its bytes is only in a cloud: nothing is brought here.
    /// Windows: CreateFileW with FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL; every reparse point
    /// is refused but the mark of a cloud service on what is here. Linux: open with O_NOFOLLOW | O_NONBLOCK,
    /// then fstat.
    Result<std::unique_ptr<FileHandle>> open(const EntryPath &entry, OpenMode mode)
    {
        return openIn(nullptr, entry, mode);
    }

    /// Opens it as a member of a group, none for null. A file that the group does not cover is opened all the
    /// same, and is flushed by itself.
    virtual Result<std::unique_ptr<FileHandle>> openIn(const std::shared_ptr<DurabilityGroup> &group,
                                                       const EntryPath &entry, OpenMode mode) = 0;

    /// Begins a group on the file system of a held folder. Before the first write to its members: what is
    /// lost earlier it may not tell. NotSupported where lost writes are told to nobody but the file's own
    /// flush; after any failure each file is to be flushed by itself. Windows: NotSupported. Linux: a
    /// descriptor for syncfs; ext2 to ext4, XFS, btrfs and F2FS from Linux 5.8 on.
    virtual Result<std::shared_ptr<DurabilityGroup>> beginGroup(const EntryPath &folder) = 0;

    /// After success everything is on the medium that was written to members and flushed, and every change of
    /// name and length on that file system. A failure means that an unknown part of it is not, whichever
    /// member it belongs to. Once, and while nobody writes to a member.
    /// Linux: syncfs, then fdatasync of a member that was written: where nothing is to be logged syncfs
    /// leaves the cache of the drive as it is.
    virtual Status closeGroup(DurabilityGroup &group) = 0;

    /// FileHandle::contentPlace() of a regular file and of all its streams together; for a folder what holds
    /// for new files in it, without a count of bytes. Everything else is refused as by open(). Needs no
    /// permission to write.
    virtual Result<ContentPlace> contentPlace(const EntryPath &entry) = 0;

    /// The streams of a regular file or folder beside its content, none where the file system knows none.
    /// Those of a file are opened as files are, and gone with it. Everything else is refused as by open().
    /// Windows: FileStreamInfo. Linux: none.
    virtual Result<QList<NamedStream>> namedStreams(const EntryPath &entry) = 0;

    /// The first bytes of a regular file, at most limit; fewer when it ends before. Read through the system's
    /// cache, for the small files that tell about others. Nothing but a regular file is read
    /// (CannotAccessFile, AccessDenied for a folder), also no pipe waited for. Windows: CreateFileW with
    /// FILE_FLAG_OPEN_REPARSE_POINT and all sharing. Linux: O_NOFOLLOW | O_NONBLOCK.
    virtual Result<QByteArray> readBeginning(const QString &path, qint64 limit) = 0;

    /// Opens a file for lines of text, each write of which lands behind everything in it, also behind what
    /// other processes have written since. One that is not there is made, for its owner only; anything but a
    /// regular file is refused as by open(), a link as well. What could not be written is kept and tried
    /// again with the next flush. The device may outlive the Platform; one thread at a time. Windows:
    /// FILE_APPEND_DATA without FILE_WRITE_DATA, all sharing but deletion. Linux: O_APPEND | O_NOFOLLOW.
    virtual Result<std::unique_ptr<QFileDevice>> openForAppending(const QString &path) = 0;

    /// Whether the path, followed through links, is a character device or a pipe. Never on Windows, whose
    /// names for them lie in no folder.
    virtual bool isStream(const QString &path) = 0;

    /// Opens a character device or pipe to be written in this mode, and waits for a pipe's reader. False for
    /// everything else that stands under the name of the file by now; it stays as it is. Linux: open, then
    /// fstat.
    virtual bool openStream(QFile &stream, QIODevice::OpenMode mode) = 0;

    /// Writes out the bytes of the open file that the system still has in its cache. False when some of them
    /// were lost on the way; true where the system has nothing to tell. Linux: fsync. Windows: true, room is
    /// taken as it is written.
    virtual bool isWrittenOut(const QFileDevice &file) = 0;

    /// How many more files the process can open now. The count is rough while other threads open and close
    /// theirs, and beyond all needs where no limit is known. Windows: no limit is known. Linux: getrlimit and
    /// fcntl.
    virtual int spareOpenFiles() = 0;

    /// Makes the file writable for its owner. Success when nothing had to change, or when nothing stands
    /// there. Windows: clears FILE_ATTRIBUTE_READONLY, keeps the other attributes. Linux: adds the owner's
    /// write permission; a link is left as it is.
    virtual Status clearReadOnly(const EntryPath &entry) = 0;

    /// Renames within a folder, replacing what the new name stood for.
    /// Windows: MoveFileExW(MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED). Linux: rename.
    virtual Status rename(const EntryPath &from, const EntryPath &to) = 0;

    /// Deletes a file, link, pipe, socket or device node: the name itself, never what it leads to. One
    /// attempt. SharingViolation or AccessDenied while somebody holds the file open on Windows. Windows:
    /// DeleteFileW, RemoveDirectoryW for a link to a folder. Linux: unlink.
    virtual Status remove(const EntryPath &entry) = 0;
};

} // namespace platform
