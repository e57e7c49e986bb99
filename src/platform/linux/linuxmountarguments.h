#pragma once

#include "platform/linux/linuxmounttable.h"

#include <QByteArray>

namespace platform {

/// The arguments of mount(2) that recreate a mount from the mount table.
struct MountArguments
{
    unsigned long fileSystemFlags = 0; ///< of the file system, the same at all its mount points
    QByteArray data;                   ///< the remaining options for the file system driver
    unsigned long mountFlags = 0;      ///< of this mount alone
    unsigned long propagation = 0;     ///< shared, private or unbindable
    /// Whether the whole file system is mounted, and not one of its folders.
    bool isWhole = true;

    /// Pure. A slave mount counts as private, because its master cannot be found again.
    static MountArguments of(const MountEntry &entry);
};

} // namespace platform
