#include "platform/windows/windowssession.h"

#include "platform/windows/processtoken.h"
#include "platform/windows/win32calls.h"
#include "platform/windows/windowsaccount.h"
#include "platform/windows/windowsawakehold.h"
#include "platform/windows/windowspaths.h"

#include <shlobj.h>

#include <array>
#include <memory>

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

QString WindowsSession::userId()
{
    return accountOf(::GetCurrentProcess());
}

QString WindowsSession::foreignAccount()
{
    return isDesktopOfAnother() ? accountNameOf(::GetCurrentProcess()) : QString();
}

void WindowsSession::tellBinChanged()
{
    win32().updateRecycleBinIcon();
    // Windows that show the bin.
    PIDLIST_ABSOLUTE bin = nullptr;
    if (FAILED(::SHGetSpecialFolderLocation(nullptr, CSIDL_BITBUCKET, &bin)))
        return;
    win32().changeNotify(SHCNE_UPDATEDIR, SHCNF_IDLIST | SHCNF_FLUSHNOWAIT, bin, nullptr);
    ::CoTaskMemFree(bin);
}

Result<bool> WindowsSession::isAdministrator()
{
    return isProcessElevated();
}

Result<std::unique_ptr<AwakeHold>> WindowsSession::keepAwake(const AwakeRequest &request)
{
    return WindowsAwakeHold::begin(request);
}

} // namespace platform
