#include "platform/linux/linuxfileid.h"

#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

#include <cerrno>

namespace platform {

namespace {

// Other file systems have no lasting numbers or are not known well enough. An overlay changes a file's number
// when it copies the file up.
bool hasLastingNumbers(quint32 fileSystem)
{
    switch (fileSystem) {
    case EXT4_SUPER_MAGIC: // ext2 and ext3 as well
    case XFS_SUPER_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case F2FS_SUPER_MAGIC:
    case TMPFS_MAGIC:
    case RAMFS_MAGIC:
        return true;
    default:
        return false;
    }
}

} // namespace

const unsigned int FileIdMask = STATX_INO | STATX_BTIME;

FileId fileIdFrom(const struct statx &file)
{
    constexpr qint64 Second = 1'000'000'000;
    FileId id;
    id.device = ::makedev(file.stx_dev_major, file.stx_dev_minor);
    id.number = file.stx_ino;
    if (file.stx_mask & STATX_BTIME)
        id.born = file.stx_btime.tv_sec * Second + file.stx_btime.tv_nsec;
    return id;
}

Result<FileId> fileIdOf(int file)
{
    struct statfs volume = {};
    if (fileCalls().fstatfs(file, &volume) != 0)
        return statusFromErrno(errno, "fstatfs");
    if (!hasLastingNumbers(static_cast<quint32>(volume.f_type)))
        return Status{NotSupported, 0, "fstatfs"};
    struct statx found = {};
    if (fileCalls().statx(file, "", AT_EMPTY_PATH, FileIdMask, &found) != 0)
        return statusFromErrno(errno, "statx");
    return fileIdFrom(found);
}

} // namespace platform
