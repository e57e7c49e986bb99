#pragma once

#include "platform/devices.h"
#include "platform/releasedvolumes.h"
#include "platform/windows/winhandle.h"

#include <memory>
#include <utility>
#include <vector>

namespace platform {

// Volumes that were locked, and their drive, which then went offline and took them along. A drive that cannot
// go offline keeps them in sight: they stay locked and dismounted as long as this lives.
class WindowsReleasedVolumes : public ReleasedVolumes
{
public:
    // A handle of the drive that allows writing.
    explicit WindowsReleasedVolumes(WinHandle drive)
        : m_drive(std::move(drive))
    {}
    ~WindowsReleasedVolumes() override;

    // Locks a volume of the drive; the name is that of volumeNames().
    Status lock(const QString &name, std::unique_ptr<VolumeDevice> volume);
    // When all of them are locked. Failure names the volume that stays mounted, if it was one.
    Status takeAway(QString &volume);

    QStringList names() const override;
    bool holds(const QString &name) const override;
    QStringList restore() override;
    Status keep() override;

private:
    struct Volume
    {
        QString name;
        std::unique_ptr<VolumeDevice> device; // null once the drive is offline
    };

    Status bringBack();

    WinHandle m_drive;
    std::vector<Volume> m_volumes;
    bool m_isOffline = false; // by this
    bool m_isSettled = false;
};

} // namespace platform
