#pragma once

#include "platform/windows/windowslockedvolumes.h"
#include "platform/windows/windowsrawdevice.h"

#include <utility>

namespace platform {

/// A drive whose volumes are all locked and dismounted. The system refuses writes through the handle of a
/// drive to sectors of a mounted volume.
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
