#pragma once

#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

// Whether the system uses a drive or leaves it alone, with all its volumes.

// NotSupported or the driver's own number where drives of that kind do not tell.
Result<bool> isOffline(HANDLE drive);

// Until it is changed again or the system starts anew; the handle must allow writing.
Status setOffline(HANDLE drive, bool offline);

// The system reads the partition table of the drive again.
void lookAnew(HANDLE drive);

} // namespace platform
