#pragma once

#include "platform/devices.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace platform {

// Volumes of one drive, each locked through a handle of its own. They are unlocked on destruction.
class LockedVolumes
{
public:
    struct Volume
    {
        QString name;
        QList<Extent> extents;
        std::unique_ptr<VolumeDevice> device; // null once it was let go of
    };

    LockedVolumes() = default;
    ~LockedVolumes() { unlock(); }
    LockedVolumes(LockedVolumes &&other) noexcept = default;
    LockedVolumes &operator=(LockedVolumes &&other) = delete;
    LockedVolumes(const LockedVolumes &) = delete;
    LockedVolumes &operator=(const LockedVolumes &) = delete;

    // SharingViolation while somebody uses the volume; it is not among them then.
    Status lock(Volume volume);
    // All of them. Failure names the one that stays mounted.
    Status dismount(QString &volume);
    // Closes the volumes, whose drive has taken them along.
    void letGo();
    void unlock();

    // As they were named when they were locked.
    QStringList names() const;
    // Whether it is still held.
    bool holds(const QString &name) const;
    // Whether the volume of that place is among them. One volume may have several names.
    bool has(const QList<Extent> &extents) const;

private:
    std::vector<Volume> m_volumes;
};

} // namespace platform
