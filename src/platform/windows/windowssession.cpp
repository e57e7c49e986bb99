#include "platform/windows/windowssession.h"

#include "platform/windows/win32calls.h"
#include "platform/windows/windowspaths.h"

#include <array>

namespace platform {

QStringList WindowsSession::systemVolumes()
{
    const QString drive = qEnvironmentVariable("SystemDrive");
    return {drive.isEmpty() ? QStringLiteral("C:") : drive};
}

bool WindowsSession::isSystemRoot(const QString &rootPath)
{
    return rootPath.startsWith(QLatin1String("C:"), Qt::CaseInsensitive);
}

bool WindowsSession::holdsSystemFiles(const QString &rootPath)
{
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = win32().getWindowsDirectory(folder.data(), MAX_PATH);
    // Without an answer the reserve goes where the system is by all other signs.
    const QString drive =
        length >= 2 && length < MAX_PATH ? decodeName({folder.data(), 2}) : systemVolumes().constFirst();
    return rootPath.startsWith(drive, Qt::CaseInsensitive);
}

} // namespace platform
