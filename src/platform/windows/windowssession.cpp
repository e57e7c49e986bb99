#include "platform/windows/windowssession.h"

#include "platform/windows/lasterror.h"
#include "platform/windows/win32calls.h"
#include "platform/windows/windowsawakehold.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/winhandle.h"

#include <array>
#include <memory>

namespace platform {

namespace {

WinHandle ownToken()
{
    HANDLE opened = nullptr;
    if (!win32().openProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened))
        return {};
    return WinHandle(opened);
}

} // namespace

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

QString WindowsSession::userId()
{
    const WinHandle token = ownToken();
    if (!token.isValid())
        return {};
    // The first question only tells how much room the answer takes.
    DWORD size = 0;
    win32().getTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    if (size < sizeof(TOKEN_USER))
        return {};
    const auto reply = std::make_unique<std::byte[]>(size);
    if (!win32().getTokenInformation(token.get(), TokenUser, reply.get(), size, &size))
        return {};
    LPWSTR text = nullptr;
    if (!win32().convertSidToStringSid(reinterpret_cast<const TOKEN_USER *>(reply.get())->User.Sid, &text))
        return {};
    QString id = decodeName(text);
    win32().localFree(text);
    return id;
}

Result<bool> WindowsSession::isAdministrator()
{
    const WinHandle token = ownToken();
    if (!token.isValid())
        return statusFromLastError("OpenProcessToken");
    TOKEN_ELEVATION elevation = {};
    DWORD size = sizeof(elevation);
    if (!win32().getTokenInformation(token.get(), TokenElevation, &elevation, size, &size))
        return statusFromLastError("GetTokenInformation");
    return elevation.TokenIsElevated != 0;
}

Result<std::unique_ptr<AwakeHold>> WindowsSession::keepAwake(const AwakeRequest &request)
{
    return WindowsAwakeHold::begin(request);
}

} // namespace platform
