#pragma once

#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// The failure of the latest call; to be read before any other call. A failure without an error number stays
/// a failure.
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
