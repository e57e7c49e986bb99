#include "platform/windows/windowsrawdevice.h"

#include "platform/alignedbuffer.h"
#include "platform/transfercheck.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowslasterror.h"

#include <winioctl.h>

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

// The driver determines which of these codes a device returns beyond its last sector.
bool isEndOfDevice(quint32 code)
{
    return code == SectorNotFound || code == WriteFault || code == InvalidParameter;
}

} // namespace

Result<WinHandle> openForTransfers(const QString &devicePath, DriveAccess access)
{
    const std::wstring path = devicePath.toStdWString();
    const DWORD rights = access == DriveAccess::ReadOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    WinHandle device(fileCalls().createFile(path.c_str(), rights, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, FILE_FLAG_WRITE_THROUGH | FILE_FLAG_NO_BUFFERING,
                                            nullptr));
    if (!device.isValid())
        return statusFromLastError("CreateFile");
    return device;
}

DeviceTransfers::DeviceTransfers(WinHandle device)
    : m_device(std::move(device))
{
    m_sector = bytesPerSector().valueOr(qint32(m_sector));
    const Result<qint64> bytes = length();
    if (bytes)
        m_end = bytes.value() / m_sector * m_sector;
}

Result<qint32> DeviceTransfers::bytesPerSector() const
{
    constexpr const char *Operation = "IOCTL_DISK_GET_DRIVE_GEOMETRY";
    DISK_GEOMETRY geometry = {};
    const Result<QByteArray> reply =
        deviceReply(handle(), IOCTL_DISK_GET_DRIVE_GEOMETRY, {sizeof(geometry), sizeof(geometry)}, Operation);
    if (!reply)
        return reply.status();
    std::memcpy(&geometry, reply.value().constData(), sizeof(geometry));
    const auto sector = qint32(geometry.BytesPerSector);
    if (sector <= 0)
        return Status{NotReady, 0, Operation};
    return sector;
}

Result<qint64> DeviceTransfers::length() const
{
    constexpr const char *Operation = "IOCTL_DISK_GET_LENGTH_INFO";
    GET_LENGTH_INFORMATION information = {};
    const Result<QByteArray> reply = deviceReply(handle(), IOCTL_DISK_GET_LENGTH_INFO,
                                                 {sizeof(information), sizeof(information)}, Operation);
    if (!reply)
        return reply.status();
    std::memcpy(&information, reply.value().constData(), sizeof(information));
    if (information.Length.QuadPart < 0)
        return Status{NotReady, 0, Operation};
    return qint64(information.Length.QuadPart);
}

// A device refuses a transfer across its end completely. Without this limit its last sectors would be
// unreachable.
qint64 DeviceTransfers::withinDevice(qint64 size) const
{
    return m_end < 0 ? size : std::clamp<qint64>(m_end - m_position, 0, size);
}

// A device may also refuse a write beyond its end with "disk full". If it only lacks space, its content at
// that position can still be read.
bool DeviceTransfers::isAtUntoldEnd()
{
    AlignedBuffer sector(m_sector);
    if (m_end >= 0 || sector.isNull() || !seek(m_position))
        return false;
    DWORD count = 0;
    const BOOL answered =
        fileCalls().readFile(handle(), sector.data(), DWORD(sector.size()), &count, nullptr);
    return seek(m_position) && answered && count == 0;
}

Status DeviceTransfers::seek(qint64 position)
{
    if (position < 0 || position % m_sector != 0)
        return {InvalidParameter, 0, "seek"};
    LARGE_INTEGER distance = {};
    distance.QuadPart = position;
    if (!fileCalls().setFilePointer(handle(), distance, nullptr, FILE_BEGIN))
        return statusFromLastError("SetFilePointerEx");
    m_position = position;
    return {};
}

Result<qint64> DeviceTransfers::read(void *data, qint64 size)
{
    if (const Status refusal = checkTransfer(data, size, m_sector, "read"); !refusal)
        return refusal;
    const qint64 wanted = withinDevice(size);
    qint64 done = 0;
    while (done < wanted) {
        const auto piece = DWORD(std::min(wanted - done, CallLimit));
        DWORD count = 0;
        if (!fileCalls().readFile(handle(), static_cast<char *>(data) + done, piece, &count, nullptr)) {
            const Status failure = statusFromLastError("ReadFile");
            if (failure.code == ERROR_HANDLE_EOF)
                break;
            return failure;
        }
        if (count == 0)
            break;
        done += count;
        m_position += count;
    }
    return done;
}

Result<qint64> DeviceTransfers::write(const void *data, qint64 size)
{
    if (const Status refusal = checkTransfer(data, size, m_sector, "write"); !refusal)
        return refusal;
    const qint64 wanted = withinDevice(size);
    if (size > 0 && wanted == 0)
        return Status{SectorNotFound, 0, "write"};
    qint64 done = 0;
    while (done < wanted) {
        const auto piece = DWORD(std::min(wanted - done, CallLimit));
        DWORD count = 0;
        if (!fileCalls().writeFile(handle(), static_cast<const char *>(data) + done, piece, &count,
                                   nullptr)) {
            const Status failure = statusFromLastError("WriteFile");
            // The bytes written before the end count; the next write meets the end again.
            if (done > 0 && isEndOfDevice(failure.code))
                break;
            if (failure.code == DiskFull && isAtUntoldEnd())
                break;
            return failure;
        }
        if (count == 0)
            break;
        done += count;
        m_position += count;
    }
    return done;
}

Status DeviceTransfers::flush()
{
    return statusOf(fileCalls().flushFileBuffers(handle()), "FlushFileBuffers");
}

} // namespace platform
