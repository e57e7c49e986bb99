#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QString>

namespace platform {

// The label of a mounted volume: what udev read from it, otherwise what its file system answers; empty when
// neither knows. The device is a number such as "8:1".
QString volumeLabel(const SystemTree &tree, const QByteArray &device, const QString &mountPoint);

} // namespace platform
