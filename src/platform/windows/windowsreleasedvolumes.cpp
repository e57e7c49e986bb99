#include "platform/windows/windowsreleasedvolumes.h"

#include "platform/windows/windowsdiskattributes.h"

namespace platform {

namespace {

// The answers of drivers for removable media such as sticks and cards.
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
    // A drive that another program has taken offline stays offline.
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

// The system always reads the partition table again, because the drive may have been overwritten.
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
