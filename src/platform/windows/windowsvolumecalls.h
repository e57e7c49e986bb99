#pragma once

#include "platform/calltable.h"
#include "platform/windows/windowsheaders.h"

#include <winioctl.h>

namespace platform {

/// The calls that find, query and change volumes and drives.
struct WindowsVolumeCalls
{
    decltype(&::GetDiskFreeSpaceExW) getDiskFreeSpace = &::GetDiskFreeSpaceExW;
    decltype(&::GetDriveTypeW) getDriveType = &::GetDriveTypeW;
    decltype(&::FindFirstVolumeW) findFirstVolume = &::FindFirstVolumeW;
    decltype(&::FindNextVolumeW) findNextVolume = &::FindNextVolumeW;
    decltype(&::FindVolumeClose) findVolumeClose = &::FindVolumeClose;
    decltype(&::DeviceIoControl) deviceIoControl = &::DeviceIoControl;
};

/// The table in force. Any thread.
inline const WindowsVolumeCalls &volumeCalls()
{
    return CallTable<WindowsVolumeCalls>::current();
}

} // namespace platform
