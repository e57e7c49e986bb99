#pragma once

#include "platform/releasedvolumes.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslockedvolumes.h"

#include <utility>

namespace platform {

/// The locked volumes of a drive that goes offline and removes them with it. The volumes of a drive that
/// cannot go offline stay visible, locked and dismounted for the lifetime of this object.
class WindowsReleasedVolumes : public ReleasedVolumes
{
public:
    /// Takes a handle of the drive that allows writing, and all its volumes. Volumes without a letter are
    /// named as by machineVolumes().
    WindowsReleasedVolumes(WinHandle drive, LockedVolumes volumes)
        : m_drive(std::move(drive))
        , m_volumes(std::move(volumes))
    {}
    ~WindowsReleasedVolumes() override;
    WindowsReleasedVolumes(const WindowsReleasedVolumes &) = delete;
    WindowsReleasedVolumes &operator=(const WindowsReleasedVolumes &) = delete;

    /// On failure volume names the volume that stays mounted, if the failure concerns one.
    Status takeAway(QString &volume);

    QStringList names() const override { return m_volumes.names(); }
    bool holds(const QString &name) const override { return m_volumes.holds(name); }
    QStringList restore() override;
    Status keep() override;

private:
    Status bringBack();

    WinHandle m_drive;
    LockedVolumes m_volumes;
    bool m_isOffline = false; ///< through this object
    bool m_isSettled = false;
};

} // namespace platform
