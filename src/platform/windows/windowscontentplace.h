#pragma once

#include "platform/contentplace.h"
#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

// Of an open file, one stream of it, or a folder. Attributes may be all that it was opened for.
Result<ContentPlace> contentPlaceOf(HANDLE file);

} // namespace platform
