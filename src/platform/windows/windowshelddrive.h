#pragma once

#include "platform/windows/windowslockedvolumes.h"
#include "platform/windows/windowsrawdevice.h"

#include <utility>

namespace platform {

// A drive with all its volumes, locked and dismounted: the system lets nobody write through the handle of a
// drive into a volume that is mounted.
class WindowsHeldDrive : public WindowsRawDevice
{
public:
    WindowsHeldDrive(WinHandle drive, LockedVolumes volumes)
        : WindowsRawDevice(std::move(drive))
        , m_volumes(std::move(volumes))
    {}
    ~WindowsHeldDrive() override;
    WindowsHeldDrive(const WindowsHeldDrive &) = delete;
    WindowsHeldDrive &operator=(const WindowsHeldDrive &) = delete;

private:
    LockedVolumes m_volumes;
};

} // namespace platform
