#include "platform/windows/windowssession.h"

#include "platform/windows/windowsaccount.h"
#include "platform/windows/windowsawakehold.h"
#include "platform/windows/windowsdesktopcalls.h"
#include "platform/windows/windowsmachinevolumes.h"
#include "platform/windows/windowspaths.h"
#include "platform/windows/windowsprocesscalls.h"
#include "platform/windows/windowsprocesstoken.h"

#include <shlobj.h>

#include <array>
#include <memory>

namespace platform {

namespace {

QString systemDrive()
{
    const QString drive = qEnvironmentVariable("SystemDrive");
    return drive.isEmpty() ? QStringLiteral("C:") : drive;
}

// The partition from which the firmware boots (EFI or active), which has no letter. Empty when the system
// does not tell.
QString bootPartition()
{
    std::array<wchar_t, MAX_PATH> name{};
    auto size = DWORD(sizeof name);
    if (processCalls().regGetValue(HKEY_LOCAL_MACHINE, LR"(SYSTEM\Setup)", L"SystemPartition", RRF_RT_REG_SZ,
                                   nullptr, name.data(), &size) != ERROR_SUCCESS)
        return {};
    const QString path = QStringLiteral(R"(\\?\GLOBALROOT)") + QString::fromWCharArray(name.data());
    return isMachineVolume(path) ? path : QString();
}

} // namespace

QStringList WindowsSession::systemVolumes()
{
    QStringList volumes{systemDrive()};
    if (const QString boot = bootPartition(); !boot.isEmpty())
        volumes.append(boot);
    return volumes;
}

bool WindowsSession::isSystemRoot(const QString &rootPath)
{
    return rootPath.startsWith(QLatin1String("C:"), Qt::CaseInsensitive);
}

bool WindowsSession::holdsSystemFiles(const QString &rootPath)
{
    std::array<wchar_t, MAX_PATH> folder{};
    const UINT length = processCalls().getWindowsDirectory(folder.data(), MAX_PATH);
    // Without an answer the system drive of the environment counts.
    const QString drive = length >= 2 && length < MAX_PATH ? decodeName({folder.data(), 2}) : systemDrive();
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
    desktopCalls().updateRecycleBinIcon();
    // Updates the windows that show the bin.
    PIDLIST_ABSOLUTE bin = nullptr;
    if (FAILED(::SHGetSpecialFolderLocation(nullptr, CSIDL_BITBUCKET, &bin)))
        return;
    desktopCalls().changeNotify(SHCNE_UPDATEDIR, SHCNF_IDLIST | SHCNF_FLUSHNOWAIT, bin, nullptr);
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
