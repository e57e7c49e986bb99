#include "platform/windows/windowsreleasedvolumes.h"

#include "platform/windows/windowsdiskattributes.h"

namespace platform {

namespace {

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

Status WindowsReleasedVolumes::takeAway(QString &volume)
{
    // One that somebody else has taken offline stays so.
    if (isOffline(m_drive.get()).valueOr(false))
        return {};
    const Status offline = setOffline(m_drive.get(), true);
    m_isOffline = offline.ok();
    if (m_isOffline) {
        m_volumes.letGo();
        return {};
    }
    return cannotGoOffline(offline) ? m_volumes.dismount(volume) : offline;
}

// The system looks at the partition table again, whatever has become of it.
Status WindowsReleasedVolumes::bringBack()
{
    m_isSettled = true;
    m_volumes.unlock();
    const Status online = m_isOffline ? setOffline(m_drive.get(), false) : Status{};
    lookAnew(m_drive.get());
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
