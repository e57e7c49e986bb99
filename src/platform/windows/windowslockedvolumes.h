#pragma once

#include "platform/devices.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace platform {

/// Volumes of one drive, each locked through its own handle. Destruction unlocks them.
class LockedVolumes
{
public:
    struct Volume
    {
        QString name;
        QList<Extent> extents;
        std::unique_ptr<VolumeDevice> device; ///< null after letGo()
    };

    LockedVolumes() = default;
    ~LockedVolumes() { unlock(); }
    LockedVolumes(LockedVolumes &&other) noexcept = default;
    LockedVolumes &operator=(LockedVolumes &&other) = delete;
    LockedVolumes(const LockedVolumes &) = delete;
    LockedVolumes &operator=(const LockedVolumes &) = delete;

    /// Fails with SharingViolation while a program uses the volume, which is then not added.
    Status lock(Volume volume);
    /// Dismounts all volumes. On failure volume names the one that stays mounted.
    Status dismount(QString &volume);
    /// Closes the handles of volumes that went offline with their drive.
    void letGo();
    void unlock();

    /// The names under which the volumes were locked.
    QStringList names() const;
    /// Whether the volume of that name is still locked.
    bool holds(const QString &name) const;
    /// Whether the volume with these extents is among them. One volume may have several names.
    bool has(const QList<Extent> &extents) const;

private:
    std::vector<Volume> m_volumes;
};

} // namespace platform
