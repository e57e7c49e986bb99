#include "platform/windows/windowsvolume.h"

#include "platform/windows/lasterror.h"

namespace platform {

Status WindowsVolumeDevice::lock()
{
    return control(FSCTL_LOCK_VOLUME, "FSCTL_LOCK_VOLUME");
}

Status WindowsVolumeDevice::dismount()
{
    return control(FSCTL_DISMOUNT_VOLUME, "FSCTL_DISMOUNT_VOLUME");
}

Status WindowsVolumeDevice::allowExtendedIo()
{
    return control(FSCTL_ALLOW_EXTENDED_DASD_IO, "FSCTL_ALLOW_EXTENDED_DASD_IO");
}

Status WindowsVolumeDevice::unlock()
{
    return control(FSCTL_UNLOCK_VOLUME, "FSCTL_UNLOCK_VOLUME");
}

Status WindowsVolumeDevice::control(DWORD code, const char *operation)
{
    DWORD returned = 0;
    return statusOf(win32().deviceIoControl(handle(), code, nullptr, 0, nullptr, 0, &returned, nullptr),
                    operation);
}

} // namespace platform
