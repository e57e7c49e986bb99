#include "platform/linux/linuxfilehandle.h"

#include "platform/linux/linuxcontentplace.h"
#include "platform/linux/linuxdurabilitygroup.h"
#include "platform/linux/linuxerrnotable.h"
#include "platform/linux/linuxfilecalls.h"
#include "platform/linux/linuxfileid.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

namespace platform {

namespace {

// Large enough for a verification sample at any position, and small compared to a worker's own buffers.
constexpr qint64 LargestBounce = qint64(1024) * 1024;
// Writing the incomplete last unit separately would flush the device a second time, which dominates the time
// for a small file. So an unaligned write up to this size goes through the cache as a whole. Every write of a
// group's member up to this size does so too, because it does not wait and the device gets many at a time.
constexpr qint64 LargestCachedWrite = 256LL * 1024;
constexpr qint64 LargestFileUnit = 65536;
constexpr qint64 LargestMemoryUnit = 4096; // the alignment of every AlignedBuffer
// Larger than any file, and small enough that rounding up to whole units cannot overflow.
constexpr qint64 EndOfPositions = std::numeric_limits<qint64>::max() - LargestBounce;

bool isTransferable(qint64 position, qint64 size)
{
    return size >= 0 && size <= EndOfPositions && position <= EndOfPositions - size;
}

qint64 roundedDown(qint64 value, qint64 unit)
{
    return value - value % unit;
}

qint64 roundedUp(qint64 value, qint64 unit)
{
    return roundedDown(value + unit - 1, unit);
}

// A full disk does not affect the data already written, so it ends a write as the end of the file ends a
// read.
bool isOutOfRoom(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

[[maybe_unused]] bool isUnit(quint32 value, qint64 largest)
{
    return std::has_single_bit(value) && value <= largest;
}

} // namespace

#ifdef STATX_DIOALIGN
const unsigned int DirectTransfersMask = STATX_DIOALIGN;
#else
const unsigned int DirectTransfersMask = 0;
#endif

DirectTransfers directTransfersOf([[maybe_unused]] const struct statx &file)
{
    DirectTransfers direct;
    direct.possible = true;
#ifdef STATX_DIOALIGN
    if (file.stx_mask & STATX_DIOALIGN) {
        // The values are zero where the file system accepts O_DIRECT but uses the page cache.
        direct.possible = isUnit(file.stx_dio_offset_align, LargestFileUnit) &&
                          isUnit(file.stx_dio_mem_align, LargestMemoryUnit);
        if (direct.possible) {
            direct.fileUnit = file.stx_dio_offset_align;
            direct.memoryUnit = file.stx_dio_mem_align;
        }
    }
#endif
    return direct;
}

LinuxFileHandle::LinuxFileHandle(OpenedFile file)
    : m_file(std::move(file.descriptor))
    , m_group(std::move(file.group))
    , m_direct(file.direct)
    , m_writeThrough(file.writeThrough)
    , m_directOn(file.directOn)
{}

Status LinuxFileHandle::seek(qint64 position)
{
    if (position < 0)
        return {InvalidParameter, 0, "seek"};
    m_position = position;
    return {};
}

Result<qint64> LinuxFileHandle::read(void *data, qint64 size)
{
    if (!isTransferable(m_position, size))
        return Status{InvalidParameter, 0, "pread"};
    // Also with direct transfers, because file systems silently serve some of them from the cache: ext4 for
    // files with data journalling, btrfs for compressed extents.
    dropCached();
    qint64 done = 0;
    while (done < size) {
        const Result<qint64> count =
            readSome(m_position + done, static_cast<std::byte *>(data) + done, size - done);
        if (!count)
            return count;
        if (count.value() == 0)
            break;
        done += count.value();
    }
    m_position += done;
    return done;
}

Result<qint64> LinuxFileHandle::readSome(qint64 position, std::byte *data, qint64 size)
{
    if (m_direct.possible) {
        if (const Status switched = switchDirect(true); !switched)
            return switched;
    }
    if (m_direct.possible) {
        const Result<qint64> count = readDirect(position, data, size);
        if (count || count.status().native != EINVAL)
            return count;
        m_direct.possible = false;
    }
    return readCached(position, data, size);
}

Result<qint64> LinuxFileHandle::readDirect(qint64 position, std::byte *data, qint64 size)
{
    const qint64 unit = m_direct.fileUnit;
    if (position % unit == 0 && size >= unit && fitsMemory(data)) {
        const auto length = static_cast<std::size_t>(roundedDown(size, unit));
        const ssize_t count =
            uninterrupted([&] { return fileCalls().pread(m_file.get(), data, length, position); });
        if (count < 0)
            return statusFromErrno(errno, "pread");
        return count;
    }
    const qint64 from = roundedDown(position, unit);
    const qint64 wanted = roundedUp(position + size, unit) - from;
    if (!provideBounce(wanted))
        return Status{NotEnoughMemory, ENOMEM, "mmap"};
    const auto length = static_cast<std::size_t>(qMin(wanted, m_bounce.size()));
    const ssize_t count =
        uninterrupted([&] { return fileCalls().pread(m_file.get(), m_bounce.data(), length, from); });
    if (count < 0)
        return statusFromErrno(errno, "pread");
    const qint64 usable = qBound(qint64(0), count - (position - from), size);
    std::memcpy(data, m_bounce.data() + (position - from), static_cast<std::size_t>(usable));
    return usable;
}

Result<qint64> LinuxFileHandle::readCached(qint64 position, std::byte *data, qint64 size)
{
    if (const Status switched = switchDirect(false); !switched)
        return switched;
    if (!m_writtenOut) {
        // Dirty pages cannot be dropped. EINVAL: this file system has nothing to write out.
        if (uninterrupted([&] { return fileCalls().fdatasync(m_file.get()); }) != 0 && errno != EINVAL)
            return statusFromErrno(errno, "fdatasync");
        m_writtenOut = true;
        // Turns off read-ahead, because the next read would be served from the pages that it loads.
        ::posix_fadvise(m_file.get(), 0, 0, POSIX_FADV_RANDOM);
        dropCached();
    }
    const auto length = static_cast<std::size_t>(size);
    const ssize_t count =
        uninterrupted([&] { return fileCalls().pread(m_file.get(), data, length, position); });
    if (count < 0)
        return statusFromErrno(errno, "pread");
    return count;
}

Result<qint64> LinuxFileHandle::write(const void *data, qint64 size)
{
    if (!isTransferable(m_position, size))
        return Status{InvalidParameter, 0, "pwrite"};
    m_writtenOut = false;
    m_written = true;
    const Result<qint64> count = writePieces(static_cast<const std::byte *>(data), size);
    if (count)
        m_position += count.value();
    else
        m_writeFailed = true;
    return count;
}

Result<qint64> LinuxFileHandle::writePieces(const std::byte *data, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        const Result<qint64> count = writeSome(m_position + done, data + done, size - done);
        if (!count && !(done > 0 && isOutOfRoom(count.status().native)))
            return count;
        if (!count || count.value() == 0)
            break;
        done += count.value();
    }
    return done;
}

Result<qint64> LinuxFileHandle::writeSome(qint64 position, const std::byte *data, qint64 size)
{
    if (m_direct.possible && !(m_group && size <= LargestCachedWrite)) {
        const qint64 unit = m_direct.fileUnit;
        const qint64 beyond = position % unit;
        const bool isWhole = beyond == 0 && size % unit == 0;
        if (beyond == 0 && size >= unit && (isWhole || size > LargestCachedWrite)) {
            const Result<qint64> count = writeDirect(position, data, roundedDown(size, unit));
            if (count || count.status().native != EINVAL)
                return count;
            m_direct.possible = false;
        } else if (size > LargestCachedWrite) {
            size = unit - beyond;
        }
    }
    if (const Status switched = switchDirect(false); !switched)
        return switched;
    const Result<qint64> count = transferOut(position, data, size);
    // Starts writing now, because a stop would otherwise have to wait for all data at the group's end.
    // closeGroup() reports a failure.
    if (count && m_group)
        fileCalls().syncFileRange(m_file.get(), position, count.value(), SYNC_FILE_RANGE_WRITE);
    return count;
}

Result<qint64> LinuxFileHandle::writeDirect(qint64 position, const std::byte *data, qint64 size)
{
    if (const Status switched = switchDirect(true); !switched)
        return switched;
    if (fitsMemory(data))
        return transferOut(position, data, size);
    if (!provideBounce(size))
        return Status{NotEnoughMemory, ENOMEM, "mmap"};
    const qint64 length = qMin(size, m_bounce.size());
    std::memcpy(m_bounce.data(), data, static_cast<std::size_t>(length));
    return transferOut(position, m_bounce.data(), length);
}

Result<qint64> LinuxFileHandle::transferOut(qint64 position, const std::byte *data, qint64 size)
{
    const auto length = static_cast<std::size_t>(size);
    const ssize_t count =
        uninterrupted([&] { return fileCalls().pwrite(m_file.get(), data, length, position); });
    if (count < 0)
        return statusFromErrno(errno, "pwrite");
    return count;
}

Status LinuxFileHandle::setEnd()
{
    if (uninterrupted([&] { return fileCalls().ftruncate(m_file.get(), m_position); }) != 0)
        return statusFromErrno(errno, "ftruncate");
    m_endMoved = true;
    m_writtenOut = false;
    return {};
}

Status LinuxFileHandle::flush()
{
    // The kernel reports lost data only once, so a second attempt would succeed although the data is missing.
    if (!m_flushFailure)
        return m_flushFailure;
    // Each write has already waited for the device. Another flush of the device's cache
    // would take a third of the time for small files.
    if (m_writeThrough && !m_endMoved && !m_writeFailed)
        return {};
    if (m_group && !m_writeFailed && m_group->take(m_file.get(), m_written))
        return {};
    const int answer = uninterrupted(
        [&] { return m_endMoved ? fileCalls().fsync(m_file.get()) : fileCalls().fdatasync(m_file.get()); });
    if (answer != 0) {
        m_flushFailure = statusFromErrno(errno, m_endMoved ? "fsync" : "fdatasync");
        return m_flushFailure;
    }
    m_endMoved = false;
    m_writeFailed = false;
    return {};
}

Result<FileId> LinuxFileHandle::id()
{
    return fileIdOf(m_file.get());
}

Result<ContentPlace> LinuxFileHandle::contentPlace()
{
    return contentPlaceOf(m_file.get());
}

bool LinuxFileHandle::fitsMemory(const std::byte *data) const
{
    return reinterpret_cast<std::uintptr_t>(data) % static_cast<std::uintptr_t>(m_direct.memoryUnit) == 0;
}

// At least one unit, at most LargestBounce; larger transfers go through it in pieces.
bool LinuxFileHandle::provideBounce(qint64 size)
{
    const qint64 needed = roundedUp(qMin(size, LargestBounce), m_direct.fileUnit);
    if (m_bounce.size() < needed)
        m_bounce = AlignedBuffer(needed);
    return !m_bounce.isNull();
}

// F_SETFL can change only O_DIRECT and O_NONBLOCK here, and O_NONBLOCK has no effect on regular files.
Status LinuxFileHandle::switchDirect(bool on)
{
    if (m_directOn == on)
        return {};
    if (fileCalls().fcntl(m_file.get(), F_SETFL, on ? O_DIRECT : 0) != 0)
        return statusFromErrno(errno, "fcntl");
    m_directOn = on;
    return {};
}

// Drops the whole file, because the kernel keeps files in folios of up to some megabytes and skips a folio
// that reaches beyond a given range. This is only a hint, and dirty or mapped pages stay.
void LinuxFileHandle::dropCached()
{
    ::posix_fadvise(m_file.get(), 0, 0, POSIX_FADV_DONTNEED);
}

} // namespace platform
