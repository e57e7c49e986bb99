#pragma once

#include "platform/linux/systemtree.h"
#include "platform/storagereplies.h"

#include <QString>

namespace platform {

// What a whole drive says of itself, from /sys and, where it runs, udev's database; readable by everybody.
// Missing facts stay empty.
DeviceDescriptor describeDrive(const SystemTree &tree, const QString &kernelName);

} // namespace platform
