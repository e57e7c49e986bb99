#pragma once

#include "platform/windows/windowsrawdevice.h"

#include <functional>
#include <utility>

namespace platform {

/// A volume opened for raw transfers. The system releases a lock with the handle that took it.
class WindowsVolumeDevice : public WindowsTransfers<VolumeDevice>
{
public:
    /// Opens the single drive that holds the volume.
    using DriveOpener = std::function<Result<WinHandle>()>;

    explicit WindowsVolumeDevice(WinHandle volume, DriveOpener openDrive)
        : WindowsTransfers<VolumeDevice>(std::move(volume))
        , m_openDrive(std::move(openDrive))
    {}

    Status flush() override;
    Status lock() override;
    Status dismount() override;
    Status allowExtendedIo() override;
    Status unlock() override;

private:
    Status control(DWORD code, const char *operation);
    Status flushDrive() const;

    DriveOpener m_openDrive;
    bool m_isDismounted = false; ///< through this object
};

} // namespace platform
