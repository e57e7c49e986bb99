#include "platform/windows/windowsfilehandle.h"

#include "platform/windows/windowscontentplace.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfileid.h"
#include "platform/windows/windowslasterror.h"

#include <limits>

namespace platform {

namespace {

// A call takes a 32-bit length; this size is a multiple of every device's sector size.
constexpr qint64 LargestPiece = 1024LL * 1024 * 1024;
// Beyond the largest file of any file system. Some file systems reject larger file pointers.
constexpr qint64 EndOfPositions = std::numeric_limits<qint64>::max() - LargestPiece;

bool isTransferable(qint64 position, qint64 size)
{
    return size >= 0 && size <= EndOfPositions && position <= EndOfPositions - size;
}

DWORD pieceOf(qint64 left)
{
    return static_cast<DWORD>(qMin(left, LargestPiece));
}

// A lack of space does not invalidate the bytes already written. It ends a write as the end of the file ends
// a read.
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
    // No transfer is possible from such a position.
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

// The system may answer from its cache. Files::open() drops the cache before it opens a file for
// verification, and flush() has put earlier writes of this process on the medium.
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
    // The cache may have dropped the bytes that it failed to write. A second flush would then succeed
    // without them.
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
