#pragma once

#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// The offline attribute of a drive. The system does not use an offline drive or any of its volumes.

/// Fails with NotSupported or the driver's own number where drives of that kind have no such attribute.
Result<bool> isOffline(HANDLE drive);

/// Holds until it is changed again or the system restarts. The handle must allow writing.
Status setOffline(HANDLE drive, bool offline);

/// Has the system read the partition table of the drive again.
void lookAnew(HANDLE drive);

} // namespace platform
