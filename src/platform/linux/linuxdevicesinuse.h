#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QStringList>

namespace platform {

/// The nodes of the block devices that are in use without being mounted. A mapped device or an array is built
/// on them, they carry the signature of a member of one, or they hold the file behind a loop device. Such a
/// file may be in use long after its file system has left the mount table; finding it takes root's rights.
QStringList devicesInUse(const SystemTree &tree);

} // namespace platform
