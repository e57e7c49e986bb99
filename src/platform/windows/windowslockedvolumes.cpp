#include "platform/windows/windowslockedvolumes.h"

#include "platform/devicefailure.h"
#include "platform/windows/windowsheaders.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

// A program that lists the volumes of the machine briefly opens each of them.
constexpr int LockAttempts = 10;
constexpr DWORD BetweenAttempts = 50; // ms

Status lockPatiently(VolumeDevice &volume)
{
    for (int attempt = 1;; ++attempt) {
        Status locked = volume.lock();
        // A volume that is still encrypted is not in use, and may refuse a lock like every other request.
        if (locked || isLockedByEncryption(locked.code))
            return {};
        if (locked.code == AccessDenied && attempt < LockAttempts) {
            ::Sleep(BetweenAttempts);
            continue;
        }
        // Opening the volume for writing was allowed, so a denied lock means that it is in use.
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
