#include "platform/linux/linuxdevicecalls.h"

#include <sys/ioctl.h>

namespace platform {

int deviceControl(int file, unsigned long request, void *argument)
{
    return ::ioctl(file, request, argument);
}

} // namespace platform
