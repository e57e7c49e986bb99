#pragma once

#include "platform/linux/linuxsystemtree.h"

#include <QByteArray>
#include <QString>

namespace platform {

/// The label of a mounted volume, from udev, otherwise from its file system; empty when neither provides it.
/// device: a number such as "8:1".
QString volumeLabel(const SystemTree &tree, const QByteArray &device, const QString &mountPoint);

} // namespace platform
