#include "platform/windows/windowsfilehandle.h"

#include "platform/windows/windowscontentplace.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfileid.h"
#include "platform/windows/windowslasterror.h"

#include <limits>

namespace platform {

namespace {

// A call takes at most 32 bits of length; this much is a whole number of any device's units.
constexpr qint64 LargestPiece = 1024LL * 1024 * 1024;
// Beyond what any file system keeps; not all of them take a file pointer of any value.
constexpr qint64 EndOfPositions = std::numeric_limits<qint64>::max() - LargestPiece;

bool isTransferable(qint64 position, qint64 size)
{
    return size >= 0 && size <= EndOfPositions && position <= EndOfPositions - size;
}

DWORD pieceOf(qint64 left)
{
    return static_cast<DWORD>(qMin(left, LargestPiece));
}

// No room is not a fault of what was already written: it ends a write as the end of the file ends a read.
bool isOutOfRoom(int error)
{
    return error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL || error == int(DiskQuotaExceeded) ||
           error == ERROR_FILE_TOO_LARGE;
}

} // namespace

Status WindowsFileHandle::seek(qint64 position)
{
    if (position < 0)
        return {InvalidParameter, ERROR_NEGATIVE_SEEK, "SetFilePointerEx"};
    // Nothing can be transferred from there anyway.
    if (position > EndOfPositions) {
        m_position = position;
        m_pointerIsThere = false;
        return {};
    }
    LARGE_INTEGER distance;
    distance.QuadPart = position;
    if (!fileCalls().setFilePointer(m_file.get(), distance, nullptr, FILE_BEGIN))
        return statusFromLastError("SetFilePointerEx");
    m_position = position;
    m_pointerIsThere = true;
    return {};
}

Status WindowsFileHandle::provideFilePointer()
{
    return m_pointerIsThere ? Status{} : seek(m_position);
}

// The system may answer from its cache. Files::open() has it dropped before it opens a file for verification;
// what a writer of this process left behind is on the medium since its flush().
Result<qint64> WindowsFileHandle::read(void *data, qint64 size)
{
    if (!isTransferable(m_position, size))
        return Status{InvalidParameter, ERROR_INVALID_PARAMETER, "ReadFile"};
    if (const Status there = provideFilePointer(); !there)
        return there;
    const Result<qint64> count = readPieces(static_cast<std::byte *>(data), size);
    m_pointerIsThere = count.ok();
    m_position += count.valueOr(0);
    return count;
}

Result<qint64> WindowsFileHandle::readPieces(std::byte *data, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        DWORD count = 0;
        if (!fileCalls().readFile(m_file.get(), data + done, pieceOf(size - done), &count, nullptr)) {
            const Status status = statusFromLastError("ReadFile");
            if (status.native != ERROR_HANDLE_EOF)
                return status;
            break;
        }
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

Result<qint64> WindowsFileHandle::write(const void *data, qint64 size)
{
    if (!isTransferable(m_position, size))
        return Status{InvalidParameter, ERROR_INVALID_PARAMETER, "WriteFile"};
    if (const Status there = provideFilePointer(); !there)
        return there;
    const Result<qint64> count = writePieces(static_cast<const std::byte *>(data), size);
    m_pointerIsThere = count.ok() && count.value() == size;
    m_position += count.valueOr(0);
    return count;
}

Result<qint64> WindowsFileHandle::writePieces(const std::byte *data, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        DWORD count = 0;
        if (!fileCalls().writeFile(m_file.get(), data + done, pieceOf(size - done), &count, nullptr)) {
            const Status status = statusFromLastError("WriteFile");
            if (done == 0 || !isOutOfRoom(status.native))
                return status;
            break;
        }
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

Status WindowsFileHandle::setEnd()
{
    if (!isTransferable(m_position, 0))
        return {InvalidParameter, ERROR_INVALID_PARAMETER, "SetEndOfFile"};
    if (const Status there = provideFilePointer(); !there)
        return there;
    return statusOf(fileCalls().setEndOfFile(m_file.get()), "SetEndOfFile");
}

Status WindowsFileHandle::flush()
{
    // What the cache failed to write it may have dropped: a second attempt would succeed over data that is
    // not there.
    if (m_flushFailure)
        m_flushFailure = statusOf(fileCalls().flushFileBuffers(m_file.get()), "FlushFileBuffers");
    return m_flushFailure;
}

Result<FileId> WindowsFileHandle::id()
{
    BY_HANDLE_FILE_INFORMATION opened = {};
    if (!fileCalls().getFileInformation(m_file.get(), &opened))
        return statusFromLastError("GetFileInformationByHandle");
    const FileId id = fileIdFrom(opened);
    if (id.number == 0)
        return Status{NotSupported, ERROR_NOT_SUPPORTED, "GetFileInformationByHandle"};
    return id;
}

Result<ContentPlace> WindowsFileHandle::contentPlace()
{
    return contentPlaceOf(m_file.get());
}

} // namespace platform
