#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QStringList>

namespace platform {

// The nodes of the block devices that something stands on without being mounted: a mapped device or an array
// is built on them, they carry the signature of a member of one, or hold the file behind a loop device, which
// may be in use long after its file system has left the mount table. Finding the latter takes root's rights.
QStringList devicesInUse(const SystemTree &tree);

} // namespace platform
