#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QHash>

namespace platform {

using UdevProperties = QHash<QByteArray, QByteArray>;

// What udev has noted of a block device, "8:1"; empty where it does not run.
UdevProperties udevProperties(const SystemTree &tree, const QByteArray &device);

} // namespace platform
