#include "platform/windows/windowsreleasedvolumes.h"

#include "platform/windows/diskattributes.h"
#include "platform/windows/lasterror.h"

#include <algorithm>

namespace platform {

namespace {

// Whoever lists the volumes of the machine has each of them open for a moment.
constexpr int LockAttempts = 10;
constexpr DWORD BetweenAttempts = 50; // ms

Status lockPatiently(VolumeDevice &volume)
{
    for (int attempt = 1;; ++attempt) {
        Status locked = volume.lock();
        if (locked)
            return locked;
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

// What drivers say of media that come and go, as sticks and cards do.
bool cannotGoOffline(const Status &failure)
{
    return failure.code == ERROR_NOT_SUPPORTED || failure.code == ERROR_INVALID_FUNCTION;
}

} // namespace

WindowsReleasedVolumes::~WindowsReleasedVolumes()
{
    if (!m_isSettled)
        static_cast<void>(bringBack());
}

Status WindowsReleasedVolumes::lock(const QString &name, std::unique_ptr<VolumeDevice> volume)
{
    const Status locked = lockPatiently(*volume);
    if (locked)
        m_volumes.push_back({name, std::move(volume)});
    return locked;
}

Status WindowsReleasedVolumes::takeAway(QString &volume)
{
    // One that somebody else has taken offline stays so.
    if (isOffline(m_drive.get()).valueOr(false))
        return {};
    const Status offline = setOffline(m_drive.get(), true);
    m_isOffline = offline.ok();
    if (!offline && !cannotGoOffline(offline))
        return offline;
    for (Volume &held : m_volumes) {
        if (m_isOffline) {
            held.device.reset();
        } else if (const Status dismounted = held.device->dismount(); !dismounted) {
            volume = held.name;
            return dismounted;
        }
    }
    return {};
}

QStringList WindowsReleasedVolumes::names() const
{
    QStringList names;
    for (const Volume &volume : m_volumes)
        names.append(volume.name);
    return names;
}

bool WindowsReleasedVolumes::holds(const QString &name) const
{
    return std::ranges::any_of(
        m_volumes, [&name](const Volume &volume) { return volume.name == name && volume.device; });
}

// The system looks at the partition table again, whatever has become of it.
Status WindowsReleasedVolumes::bringBack()
{
    m_isSettled = true;
    for (Volume &volume : m_volumes) {
        if (volume.device)
            static_cast<void>(volume.device->unlock());
        volume.device.reset();
    }
    const Status online = m_isOffline ? setOffline(m_drive.get(), false) : Status{};
    DWORD returned = 0;
    win32().deviceIoControl(m_drive.get(), IOCTL_DISK_UPDATE_PROPERTIES, nullptr, 0, nullptr, 0, &returned,
                            nullptr);
    m_drive = {};
    return online;
}

QStringList WindowsReleasedVolumes::restore()
{
    return bringBack() ? QStringList() : names();
}

Status WindowsReleasedVolumes::keep()
{
    return bringBack();
}

} // namespace platform
