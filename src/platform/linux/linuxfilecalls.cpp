#include "platform/linux/linuxfilecalls.h"

namespace platform {

int openAt(int folder, const char *name, int flags, mode_t mode)
{
    return ::openat(folder, name, flags, mode);
}

int fileControl(int file, int command, int argument)
{
    return ::fcntl(file, command, argument);
}

} // namespace platform
