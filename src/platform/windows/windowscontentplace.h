#pragma once

#include "platform/contentplace.h"
#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// Where the content of an open file, one of its streams or a folder lies. A handle opened for attributes is
/// enough.
Result<ContentPlace> contentPlaceOf(HANDLE file);

} // namespace platform
