#include "platform/windows/windowsdiskattributes.h"

#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsquery.h"
#include "platform/windows/windowsvolumecalls.h"

#include <winioctl.h>

#include <cstring>

namespace platform {

namespace {

// From winioctl.h; the headers of some compilers lack them.
constexpr DWORD SetDiskAttributes = 0x0007C0F4; // IOCTL_DISK_SET_DISK_ATTRIBUTES
constexpr DWORD GetDiskAttributes = 0x000700F0; // IOCTL_DISK_GET_DISK_ATTRIBUTES
constexpr DWORDLONG Offline = 1;                // DISK_ATTRIBUTE_OFFLINE

struct AttributesToSet
{
    DWORD version = sizeof(AttributesToSet);
    BYTE persist = FALSE;
    BYTE reserved1[3] = {};
    DWORDLONG attributes = 0;
    DWORDLONG mask = 0;
    DWORD reserved2[4] = {};
};
static_assert(sizeof(AttributesToSet) == 40);

struct AttributesFound
{
    DWORD version = 0;
    DWORD reserved = 0;
    DWORDLONG attributes = 0;
};
static_assert(sizeof(AttributesFound) == 16);

} // namespace

Result<bool> isOffline(HANDLE drive)
{
    AttributesFound found;
    const Result<QByteArray> reply = deviceReply(drive, GetDiskAttributes, {sizeof(found), sizeof(found)},
                                                 "IOCTL_DISK_GET_DISK_ATTRIBUTES");
    if (!reply)
        return reply.status();
    std::memcpy(&found, reply.value().constData(), sizeof(found));
    return (found.attributes & Offline) != 0;
}

Status setOffline(HANDLE drive, bool offline)
{
    AttributesToSet wanted;
    wanted.attributes = offline ? Offline : 0;
    wanted.mask = Offline;
    DWORD returned = 0;
    return statusOf(volumeCalls().deviceIoControl(drive, SetDiskAttributes, &wanted, sizeof(wanted), nullptr,
                                                  0, &returned, nullptr),
                    "IOCTL_DISK_SET_DISK_ATTRIBUTES");
}

void lookAnew(HANDLE drive)
{
    DWORD returned = 0;
    volumeCalls().deviceIoControl(drive, IOCTL_DISK_UPDATE_PROPERTIES, nullptr, 0, nullptr, 0, &returned,
                                  nullptr);
}

} // namespace platform
