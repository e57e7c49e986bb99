#include "platform/windows/processtoken.h"

#include "platform/windows/winhandle.h"

namespace platform {

bool isProcessElevated()
{
    HANDLE opened = nullptr;
    if (!win32().openProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened))
        return false;
    const WinHandle token(opened);
    TOKEN_ELEVATION elevation = {};
    DWORD size = 0;
    return win32().getTokenInformation(token.get(), TokenElevation, &elevation, sizeof elevation, &size) &&
           elevation.TokenIsElevated != 0;
}

} // namespace platform
