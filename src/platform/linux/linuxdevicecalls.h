#pragma once

#include "platform/calltable.h"

#include <sys/mount.h>

#include <cstdlib>

namespace platform {

/// ioctl() with a fixed argument list, because a call table cannot hold variadic functions.
int deviceControl(int file, unsigned long request, void *argument);

/// The calls that query open files and devices, and those that mount and unmount volumes.
struct LinuxDeviceCalls
{
    int (*ioctl)(int, unsigned long, void *) = &platform::deviceControl;
    int (*mount)(const char *, const char *, const char *, unsigned long, const void *) = &::mount;
    int (*umount2)(const char *, int) = &::umount2;
    char *(*mkdtemp)(char *) = &::mkdtemp;
};

/// The table in force. Any thread.
inline const LinuxDeviceCalls &deviceCalls()
{
    return CallTable<LinuxDeviceCalls>::current();
}

} // namespace platform
