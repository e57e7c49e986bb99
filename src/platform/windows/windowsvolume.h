#pragma once

#include "platform/windows/windowsrawdevice.h"

namespace platform {

// A volume opened for raw transfers. The system ends a lock with the handle that took it.
class WindowsVolumeDevice : public WindowsTransfers<VolumeDevice>
{
public:
    using WindowsTransfers<VolumeDevice>::WindowsTransfers;

    Status lock() override;
    Status dismount() override;
    Status allowExtendedIo() override;
    Status unlock() override;

private:
    Status control(DWORD code, const char *operation);
};

} // namespace platform
