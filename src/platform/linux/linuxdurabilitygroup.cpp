#include "platform/linux/linuxdurabilitygroup.h"

#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"

#include <QString>
#include <QVersionNumber>

#include <fcntl.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

namespace platform {

namespace {

bool kernelTellsLostWrites()
{
    struct utsname kernel = {};
    return ::uname(&kernel) == 0 && tellsLostWrites(kernel.release);
}

// False where the kernel does not report mounts.
bool isOnMount([[maybe_unused]] const struct statx &found, [[maybe_unused]] quint64 mount)
{
#ifdef STATX_MNT_ID
    return (found.stx_mask & STATX_MNT_ID) && found.stx_mnt_id == mount;
#else
    return false;
#endif
}

// XFS stores the bytes of some files on a separate device, whose cache the flush of another file does not
// empty.
bool isOnRealtimeDevice(int file)
{
    struct fsxattr attributes = {};
    return deviceCalls().ioctl(file, FS_IOC_FSGETXATTR, &attributes) == 0 &&
           (attributes.fsx_xflags & FS_XFLAG_REALTIME) != 0;
}

} // namespace

bool isKnownToFlush(int file)
{
    struct statfs volume = {};
    if (fileCalls().fstatfs(file, &volume) != 0)
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

bool tellsLostWrites(const char *release)
{
    return QVersionNumber::fromString(QString::fromLatin1(release)) >= QVersionNumber(5, 8);
}

Result<std::shared_ptr<DurabilityGroup>> LinuxDurabilityGroup::begin(const LinuxFolderHandle &folder)
{
    if (!kernelTellsLostWrites())
        return Status{NotSupported, 0, "uname"};
    FileDescriptor opened(uninterrupted([&] {
        return fileCalls().openat(folder.descriptor(), ".", O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC,
                                  0);
    }));
    if (!opened.isValid())
        return statusFromErrno(errno, "openat");
    if (!isKnownToFlush(opened.get()))
        return Status{NotSupported, 0, "fstatfs"};
#ifdef STATX_MNT_ID
    struct statx found = {};
    if (fileCalls().statx(opened.get(), "", AT_EMPTY_PATH, MountMask, &found) != 0)
        return statusFromErrno(errno, "statx");
    if (found.stx_mask & STATX_MNT_ID) {
        return std::shared_ptr<DurabilityGroup>(
            std::make_shared<LinuxDurabilityGroup>(std::move(opened), found.stx_mnt_id));
    }
#endif
    return Status{NotSupported, 0, "statx"};
}

bool LinuxDurabilityGroup::covers(const FolderHandle &folder) const
{
    const auto *const held = dynamic_cast<const LinuxFolderHandle *>(&folder);
    return held && contains(held->found());
}

bool LinuxDurabilityGroup::contains(const struct statx &found) const
{
    return isOnMount(found, m_mount);
}

bool LinuxDurabilityGroup::admits(int file, const struct statx &found) const
{
    return contains(found) && !isOnRealtimeDevice(file);
}

bool LinuxDurabilityGroup::take(int file, bool isWritten)
{
    const std::lock_guard locker(m_mutex);
    if (m_isClosed)
        return false;
    if (isWritten && !m_written.isValid())
        m_written = FileDescriptor(fileCalls().fcntl(file, F_DUPFD_CLOEXEC, 0));
    return !isWritten || m_written.isValid();
}

Status LinuxDurabilityGroup::close()
{
    const std::lock_guard locker(m_mutex);
    if (std::exchange(m_isClosed, true))
        return {InvalidParameter, 0, "closeGroup"};
    Status status;
    if (uninterrupted([&] { return fileCalls().syncfs(m_folder.get()); }) != 0)
        status = statusFromErrno(errno, "syncfs");
    // Data that was written past the page cache leaves syncfs nothing to write, and may still be in the
    // drive's cache.
    const FileDescriptor &last = m_written.isValid() ? m_written : m_folder;
    if (uninterrupted([&] { return fileCalls().fdatasync(last.get()); }) != 0 && status)
        status = statusFromErrno(errno, "fdatasync");
    m_written = {};
    m_folder = {};
    return status;
}

} // namespace platform
