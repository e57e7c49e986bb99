#include "platform/windows/windowsprocesstoken.h"

#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslasterror.h"

namespace platform {

Result<bool> isProcessElevated()
{
    HANDLE opened = nullptr;
    if (!win32().openProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened))
        return statusFromLastError("OpenProcessToken");
    const WinHandle token(opened);
    TOKEN_ELEVATION elevation = {};
    DWORD size = 0;
    if (!win32().getTokenInformation(token.get(), TokenElevation, &elevation, sizeof elevation, &size))
        return statusFromLastError("GetTokenInformation");
    return elevation.TokenIsElevated != 0;
}

} // namespace platform
