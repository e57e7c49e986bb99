#include "platform/linux/linuxfiles.h"

#include "platform/filenames.h"
#include "platform/linux/errnotable.h"
#include "platform/linux/filekind.h"
#include "platform/linux/linuxcontentplace.h"
#include "platform/linux/linuxfilehandle.h"
#include "platform/linux/linuxfileid.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cstdio>

namespace platform {

namespace {

int flagsOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Overwrite:
        return O_RDWR | O_DIRECT | O_DSYNC;
    case OpenMode::Verify:
        return O_RDONLY | O_DIRECT;
    case OpenMode::Truncate:
        return O_WRONLY;
    case OpenMode::CreateFill:
        return O_WRONLY | O_CREAT | O_TRUNC | O_DIRECT;
    }
    Q_UNREACHABLE();
}

Status refusalOf(mode_t mode, const char *operation)
{
    switch (fileKindFromMode(mode)) {
    case FileKind::Regular:
        return {};
    case FileKind::Folder:
        return statusFromErrno(EISDIR, operation);
    case FileKind::Link:
        return statusFromErrno(ELOOP, operation);
    case FileKind::Special:
        break;
    }
    return {CannotAccessFile, 0, operation};
}

FileDescriptor openFile(const char *path, int flags)
{
    // O_NONBLOCK in case that a pipe takes the place of the file after it was looked at.
    constexpr int Always = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return FileDescriptor(uninterrupted([&] { return ::open(path, flags | Always, S_IRUSR | S_IWUSR); }));
}

// Where O_DSYNC is kept by the kernel itself. A file system in user space may take the flag and forget about
// it, and others are not known well enough: they are flushed once more.
bool keepsWriteThrough(int file)
{
    struct statfs volume = {};
    if (::fstatfs(file, &volume) != 0)
        return false;
    switch (static_cast<quint32>(volume.f_type)) {
    case EXT4_SUPER_MAGIC: // ext2 and ext3 as well
    case XFS_SUPER_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case F2FS_SUPER_MAGIC:
        return true;
    default:
        return false;
    }
}

} // namespace

Result<FileInfo> fileInfoAt(int folder, const char *name)
{
    constexpr unsigned int Wanted = STATX_TYPE | STATX_SIZE | STATX_NLINK;
    struct statx file = {};
    if (::statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, Wanted | FileIdMask, &file) != 0)
        return statusFromErrno(errno, "statx");
    FileInfo info;
    info.kind = fileKindFromMode(file.stx_mode);
    info.size = info.kind == FileKind::Regular ? static_cast<qint64>(file.stx_size) : 0;
    info.linkCount = qMax(1, static_cast<int>(file.stx_nlink));
    info.id = fileIdFrom(file);
    return info;
}

Result<FileInfo> LinuxFiles::info(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    return fileInfoAt(AT_FDCWD, name.value().constData());
}

Result<std::unique_ptr<FileHandle>> LinuxFiles::open(const QString &path, OpenMode mode)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    const char *const bytes = name.value().constData();
    // Opening alone already has effects on what is no regular file: a tape rewinds, the writer at a pipe
    // wakes up.
    struct stat found = {};
    if (::lstat(bytes, &found) != 0) {
        if (mode != OpenMode::CreateFill || errno != ENOENT)
            return statusFromErrno(errno, "lstat");
    } else if (const Status refusal = refusalOf(found.st_mode, "lstat"); !refusal) {
        return refusal;
    }

    int flags = flagsOf(mode);
    FileDescriptor file = openFile(bytes, flags);
    if (!file.isValid() && errno == EINVAL && (flags & O_DIRECT)) {
        flags &= ~O_DIRECT;
        file = openFile(bytes, flags);
    }
    if (!file.isValid())
        return statusFromErrno(errno, "open");

    struct statx opened = {};
    if (::statx(file.get(), "", AT_EMPTY_PATH, STATX_TYPE | DirectTransfersMask, &opened) != 0)
        return statusFromErrno(errno, "statx");
    if (const Status refusal = refusalOf(opened.stx_mode, "statx"); !refusal)
        return refusal;
    OpenedFile handle;
    handle.directOn = (flags & O_DIRECT) != 0;
    if (handle.directOn)
        handle.direct = directTransfersOf(opened);
    handle.writeThrough = (flags & O_DSYNC) != 0 && keepsWriteThrough(file.get());
    handle.descriptor = std::move(file);
    return std::unique_ptr<FileHandle>(std::make_unique<LinuxFileHandle>(std::move(handle)));
}

Result<ContentPlace> LinuxFiles::contentPlace(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    // Opening alone already has effects on special files, and a file without content needs no opening.
    struct stat found = {};
    if (::lstat(name.value().constData(), &found) != 0)
        return statusFromErrno(errno, "lstat");
    if (!S_ISDIR(found.st_mode)) {
        if (const Status refusal = refusalOf(found.st_mode, "lstat"); !refusal)
            return refusal;
        if (found.st_size <= 0)
            return ContentPlace{.elsewhere = {}, .bytes = 0};
    }
    const FileDescriptor file = openFile(name.value().constData(), O_RDONLY);
    if (!file.isValid())
        return statusFromErrno(errno, "open");
    struct stat opened = {};
    if (::fstat(file.get(), &opened) != 0)
        return statusFromErrno(errno, "fstat");
    if (!S_ISDIR(opened.st_mode)) {
        if (const Status refusal = refusalOf(opened.st_mode, "fstat"); !refusal)
            return refusal;
    }
    return contentPlaceOf(file.get());
}

Status LinuxFiles::clearReadOnly(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    const char *const bytes = name.value().constData();
    struct stat file = {};
    if (::lstat(bytes, &file) != 0)
        return errno == ENOENT || errno == ENOTDIR ? Status{} : statusFromErrno(errno, "lstat");
    if (S_ISLNK(file.st_mode) || (file.st_mode & S_IWUSR))
        return {};
    if (::fchmodat(AT_FDCWD, bytes, (file.st_mode & ALLPERMS) | S_IWUSR, AT_SYMLINK_NOFOLLOW) != 0)
        return statusFromErrno(errno, "fchmodat");
    return {};
}

Status LinuxFiles::rename(const QString &from, const QString &to)
{
    const Result<QByteArray> source = encodePath(from);
    const Result<QByteArray> target = encodePath(to);
    if (!source || !target)
        return source ? target.status() : source.status();
    if (::rename(source.value().constData(), target.value().constData()) != 0)
        return statusFromErrno(errno, "rename");
    return {};
}

Status LinuxFiles::remove(const QString &path)
{
    const Result<QByteArray> name = encodePath(path);
    if (!name)
        return name.status();
    if (::unlink(name.value().constData()) != 0)
        return statusFromErrno(errno, "unlink");
    return {};
}

} // namespace platform
