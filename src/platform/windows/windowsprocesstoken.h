#pragma once

#include "platform/status.h"

namespace platform {

// Whether this process has rights that the programs of the same user's desktop have not.
Result<bool> isProcessElevated();

} // namespace platform
