#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QHash>

namespace platform {

using UdevProperties = QHash<QByteArray, QByteArray>;

/// udev's properties of a block device, "8:1"; empty where udev does not run.
UdevProperties udevProperties(const SystemTree &tree, const QByteArray &device);

} // namespace platform
