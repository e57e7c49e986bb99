#pragma once

#include "platform/session.h"

namespace platform {

// A lock of logind against sleep, shutdown and what follows when nobody touches the computer. The system's
// bus is where DBUS_SYSTEM_BUS_ADDRESS says, or in its usual place.
Result<std::unique_ptr<AwakeHold>> inhibitSleep(const QString &reason);

} // namespace platform
