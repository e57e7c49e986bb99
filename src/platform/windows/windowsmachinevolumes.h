#pragma once

#include "platform/status.h"

#include <QStringList>

namespace platform {

/// The path that opens each volume of the machine, with or without a letter: "\\?\Volume{...}".
Result<QStringList> machineVolumes();

/// Whether the name is such a path, or the kernel's path of a volume:
/// "\\?\GLOBALROOT\Device\HarddiskVolume1".
bool isMachineVolume(const QString &name);

} // namespace platform
