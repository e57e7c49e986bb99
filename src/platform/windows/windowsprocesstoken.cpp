#include "platform/windows/windowsprocesstoken.h"

#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowsprocesscalls.h"

namespace platform {

WinHandle openToken(HANDLE process)
{
    HANDLE opened = nullptr;
    if (!processCalls().openProcessToken(process, TOKEN_QUERY, &opened))
        return {};
    return WinHandle(opened);
}

Result<bool> isProcessElevated()
{
    const WinHandle token = openToken(::GetCurrentProcess());
    if (!token.isValid())
        return statusFromLastError("OpenProcessToken");
    TOKEN_ELEVATION elevation = {};
    DWORD size = 0;
    if (!processCalls().getTokenInformation(token.get(), TokenElevation, &elevation, sizeof elevation, &size))
        return statusFromLastError("GetTokenInformation");
    return elevation.TokenIsElevated != 0;
}

} // namespace platform
