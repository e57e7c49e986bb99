#pragma once

#include "platform/releasedvolumes.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslockedvolumes.h"

#include <utility>

namespace platform {

// Volumes that were locked, and their drive, which then went offline and took them along. A drive that cannot
// go offline keeps them in sight: they stay locked and dismounted as long as this lives.
class WindowsReleasedVolumes : public ReleasedVolumes
{
public:
    // A handle of the drive that allows writing, and all its volumes; those without a letter have the names
    // of machineVolumes().
    WindowsReleasedVolumes(WinHandle drive, LockedVolumes volumes)
        : m_drive(std::move(drive))
        , m_volumes(std::move(volumes))
    {}
    ~WindowsReleasedVolumes() override;
    WindowsReleasedVolumes(const WindowsReleasedVolumes &) = delete;
    WindowsReleasedVolumes &operator=(const WindowsReleasedVolumes &) = delete;

    // Failure names the volume that stays mounted, if it was one.
    Status takeAway(QString &volume);

    QStringList names() const override { return m_volumes.names(); }
    bool holds(const QString &name) const override { return m_volumes.holds(name); }
    QStringList restore() override;
    Status keep() override;

private:
    Status bringBack();

    WinHandle m_drive;
    LockedVolumes m_volumes;
    bool m_isOffline = false; // by this
    bool m_isSettled = false;
};

} // namespace platform
