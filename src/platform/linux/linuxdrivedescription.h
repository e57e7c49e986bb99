#pragma once

#include "platform/linux/linuxsystemtree.h"
#include "platform/storagereplies.h"

#include <QString>

namespace platform {

// What a whole drive says of itself, from /sys and, where it runs, udev's database; readable by everybody.
// Missing facts stay empty.
DeviceDescriptor describeDrive(const SystemTree &tree, const QString &kernelName);

// Tells one attachment of a drive from the next, counted by the kernel since it was started; empty where it
// does not (before Linux 5.15).
QString attachmentOf(const SystemTree &tree, const QString &kernelName);

// "naa.5000c500a1b2c3d4", also with "eui." or "uuid." before it. The forms that put together what the maker
// wrote ("t10.", "nvme.") are left out: such names are not unique in the world. A drive
// without a serial number has its attachment for a name, "attachment.17". Empty when there is none.
QString worldWideName(const SystemTree &tree, const QString &kernelName);

} // namespace platform
