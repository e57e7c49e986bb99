#pragma once

#include "platform/session.h"

namespace platform {

/// A lock of logind against sleep, shutdown and idle actions. The system bus is at DBUS_SYSTEM_BUS_ADDRESS,
/// or at its default address.
Result<std::unique_ptr<AwakeHold>> inhibitSleep(const QString &reason);

} // namespace platform
