#pragma once

#include "platform/linux/linuxmounttable.h"

#include <QByteArray>

namespace platform {

// How a mount that is in the table was made, as mount(2) takes it.
struct MountArguments
{
    unsigned long fileSystemFlags = 0; // of the file system, wherever it is mounted
    QByteArray data;                   // what else its driver was told
    unsigned long mountFlags = 0;      // of this mount alone
    unsigned long propagation = 0;     // shared, private or unbindable
    // Whether the file system itself is mounted, and not a folder of it.
    bool isWhole = true;

    // Pure. The master of a mount that receives from one is not found again: it counts as private.
    static MountArguments of(const MountEntry &entry);
};

} // namespace platform
