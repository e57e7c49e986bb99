#pragma once

#include "platform/calltable.h"

#include <poll.h>
#include <unistd.h>

namespace platform {

/// The calls on the standard streams of the process. The signal handler does not use this table, because it
/// runs at any moment, also while a table is exchanged.
struct LinuxProcessCalls
{
    ssize_t (*write)(int, const void *, size_t) = &::write;
    int (*poll)(pollfd *, nfds_t, int) = &::poll;
};

/// The table in force. Any thread.
inline const LinuxProcessCalls &processCalls()
{
    return CallTable<LinuxProcessCalls>::current();
}

} // namespace platform
