#pragma once

#include "platform/folders.h"

namespace platform {

/// Space on the volume of an open file or folder.
Result<SpaceInfo> spaceOf(int file);

} // namespace platform
