#pragma once

#include "platform/status.h"
#include "platform/windows/windowshandle.h"

namespace platform {

/// The token of a process, opened for queries. GetLastError() tells the failure.
WinHandle openToken(HANDLE process);

/// Whether this process has rights that other programs on the same user's desktop lack.
Result<bool> isProcessElevated();

} // namespace platform
