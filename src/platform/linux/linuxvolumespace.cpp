#include "platform/linux/linuxvolumespace.h"

#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <sys/statvfs.h>
#include <unistd.h>

#include <limits>

namespace platform {

namespace {

// On some network file systems the size in bytes exceeds 63 bits.
qint64 bytesIn(quint64 blocks, quint64 blockSize)
{
    constexpr auto Most = static_cast<quint64>(std::numeric_limits<qint64>::max());
    if (blockSize != 0 && blocks > Most / blockSize)
        return std::numeric_limits<qint64>::max();
    return static_cast<qint64>(blocks * blockSize);
}

} // namespace

Result<SpaceInfo> spaceOf(int file)
{
    struct statvfs volume = {};
    if (uninterrupted([&] { return fileCalls().fstatvfs(file, &volume); }) != 0)
        return statusFromErrno(errno, "fstatvfs");
    const auto available = ::geteuid() == 0 ? volume.f_bfree : volume.f_bavail;
    return SpaceInfo{.totalBytes = bytesIn(volume.f_blocks, volume.f_frsize),
                     .freeBytes = bytesIn(volume.f_bfree, volume.f_frsize),
                     .availableBytes = bytesIn(available, volume.f_frsize)};
}

} // namespace platform
