// For builds without D-Bus.
#include "platform/linux/linuxsleepinhibitor.h"

namespace platform {

Result<std::unique_ptr<AwakeHold>> inhibitSleep(const QString &)
{
    return Status{NotSupported, 0, "Inhibit"};
}

} // namespace platform
