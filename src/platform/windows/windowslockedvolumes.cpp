#include "platform/windows/windowslockedvolumes.h"

#include "platform/devicefailure.h"
#include "platform/windows/windowsheaders.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

// Whoever lists the volumes of the machine has each of them open for a moment.
constexpr int LockAttempts = 10;
constexpr DWORD BetweenAttempts = 50; // ms

Status lockPatiently(VolumeDevice &volume)
{
    for (int attempt = 1;; ++attempt) {
        Status locked = volume.lock();
        // One that nobody has unlocked is in nobody's use, and may refuse a lock as it refuses everything
        // else.
        if (locked || isLockedByEncryption(locked.code))
            return {};
        if (locked.code == AccessDenied && attempt < LockAttempts) {
            ::Sleep(BetweenAttempts);
            continue;
        }
        // To open the volume for writing was allowed: it is in use.
        if (locked.code == AccessDenied)
            locked.code = SharingViolation;
        return locked;
    }
}

} // namespace

Status LockedVolumes::lock(Volume volume)
{
    const Status locked = lockPatiently(*volume.device);
    if (locked)
        m_volumes.push_back(std::move(volume));
    return locked;
}

Status LockedVolumes::dismount(QString &volume)
{
    for (const Volume &held : m_volumes) {
        const Status dismounted = held.device->dismount();
        if (!dismounted && !isLockedByEncryption(dismounted.code)) {
            volume = held.name;
            return dismounted;
        }
    }
    return {};
}

void LockedVolumes::letGo()
{
    for (Volume &volume : m_volumes)
        volume.device.reset();
}

void LockedVolumes::unlock()
{
    for (const Volume &volume : m_volumes) {
        if (volume.device)
            static_cast<void>(volume.device->unlock());
    }
    letGo();
}

QStringList LockedVolumes::names() const
{
    QStringList names;
    for (const Volume &volume : m_volumes)
        names.append(volume.name);
    return names;
}

bool LockedVolumes::holds(const QString &name) const
{
    return std::ranges::any_of(
        m_volumes, [&name](const Volume &volume) { return volume.name == name && volume.device; });
}

bool LockedVolumes::has(const QList<Extent> &extents) const
{
    return std::ranges::any_of(m_volumes,
                               [&extents](const Volume &volume) { return volume.extents == extents; });
}

} // namespace platform
