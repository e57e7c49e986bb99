#pragma once

#include "platform/status.h"
#include "platform/windows/windowshandle.h"

namespace platform {

/// The token of a process, to be asked; GetLastError() tells why there is none.
WinHandle openToken(HANDLE process);

// Whether this process has rights that the programs of the same user's desktop have not.
Result<bool> isProcessElevated();

} // namespace platform
