#include "platform/linux/linuxrawdevice.h"

#include "platform/filenames.h"
#include "platform/linux/linuxdevicecalls.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/transfercheck.h"

#include <QtGlobal>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace platform {

namespace {

// Zero and the three codes for the end of a device end a volume without a failure. Inside the device none of
// them may be returned, so EINVAL must not become InvalidParameter.
Status writeFailure(int error)
{
    Status status = statusFromErrno(error, "pwrite");
    if (status.code == InvalidParameter)
        status.code = IoDevice;
    return status;
}

} // namespace

Result<FileDescriptor> openBlockDevice(const QString &node, const QByteArray &device, DriveAccess access)
{
    int flags = O_DIRECT | O_CLOEXEC | O_NONBLOCK;
    flags |= access == DriveAccess::ReadOnly ? O_RDONLY : O_RDWR | O_DSYNC;
    if (access == DriveAccess::Alone)
        flags |= O_EXCL;
    FileDescriptor fd(fileCalls().openat(AT_FDCWD, encodeName(node).constData(), flags, 0));
    if (!fd.isValid())
        return statusFromErrno(errno, "open");
    struct stat info = {};
    if (fileCalls().fstat(fd.get(), &info) != 0)
        return statusFromErrno(errno, "fstat");
    const QByteArray opened =
        QByteArray::number(major(info.st_rdev)) + ':' + QByteArray::number(minor(info.st_rdev));
    if (!S_ISBLK(info.st_mode) || opened != device)
        return Status{NotReady, 0, "identity check"};
    return fd;
}

Result<BlockTransfers> BlockTransfers::on(FileDescriptor fd)
{
    quint64 size = 0;
    int sector = 0;
    if (deviceCalls().ioctl(fd.get(), BLKGETSIZE64, &size) != 0)
        return statusFromErrno(errno, "BLKGETSIZE64");
    if (deviceCalls().ioctl(fd.get(), BLKSSZGET, &sector) != 0)
        return statusFromErrno(errno, "BLKSSZGET");
    if (sector <= 0)
        return Status{NotReady, 0, "BLKSSZGET"};
    const auto whole = static_cast<qint64>(size) / sector * sector;
    return BlockTransfers(std::move(fd), Geometry{whole, sector}, static_cast<qint64>(size));
}

Status BlockTransfers::seek(qint64 position)
{
    if (position < 0 || position % m_geometry.bytesPerSector != 0)
        return {InvalidParameter, 0, "seek"};
    m_position = position;
    return {};
}

Result<qint64> BlockTransfers::read(void *data, qint64 size)
{
    if (const Status refusal = checkTransfer(data, size, m_geometry.bytesPerSector, "read"); !refusal)
        return refusal;
    qint64 done = 0;
    while (done < size) {
        const ssize_t count = fileCalls().pread(m_fd.get(), static_cast<char *>(data) + done,
                                                static_cast<size_t>(size - done), m_position);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return statusFromErrno(errno, "pread");
        if (count == 0)
            break;
        done += count;
        m_position += count;
    }
    return done;
}

Result<qint64> BlockTransfers::write(const void *data, qint64 size)
{
    if (const Status refusal = checkTransfer(data, size, m_geometry.bytesPerSector, "write"); !refusal)
        return refusal;
    const qint64 room = std::max<qint64>(m_geometry.sizeBytes - m_position, 0);
    if (size > 0 && room == 0)
        return Status{SectorNotFound, 0, "write"};
    const qint64 wanted = std::min(size, room);
    qint64 done = 0;
    while (done < wanted) {
        const ssize_t count = fileCalls().pwrite(m_fd.get(), static_cast<const char *>(data) + done,
                                                 static_cast<size_t>(wanted - done), m_position);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return writeFailure(errno);
        if (count == 0) // a device never does that within its length, and repeating the call would never end
            return writeFailure(EIO);
        done += count;
        m_position += count;
    }
    return done;
}

Status BlockTransfers::flush()
{
    if (fileCalls().fdatasync(m_fd.get()) != 0)
        return statusFromErrno(errno, "fdatasync");
    return {};
}

} // namespace platform
