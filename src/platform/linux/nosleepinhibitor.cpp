// Built without the bus.
#include "platform/linux/sleepinhibitor.h"

namespace platform {

Result<std::unique_ptr<AwakeHold>> inhibitSleep(const QString &)
{
    return Status{NotSupported, 0, "Inhibit"};
}

} // namespace platform
