#pragma once

#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

// The failure of the call just made; to be asked for before anything else is called. A failure without a
// number is still one.
inline Status statusFromLastError(const char *operation)
{
    const DWORD error = ::GetLastError();
    return {error == ERROR_SUCCESS ? quint32(GeneralFailure) : quint32(error), int(error), operation};
}

inline Status statusOf(BOOL succeeded, const char *operation)
{
    return succeeded ? Status{} : statusFromLastError(operation);
}

} // namespace platform
