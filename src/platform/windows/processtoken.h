#pragma once

#include "platform/windows/win32calls.h"

#include <QString>

namespace platform {

// Whether this process has rights that the programs of the same user's desktop have not. False when the
// system does not tell.
bool isProcessElevated();

} // namespace platform
