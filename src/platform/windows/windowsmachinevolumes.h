#pragma once

#include "platform/status.h"

#include <QStringList>

namespace platform {

// Every volume of the machine, with a letter or without, as the path that opens it: "\\?\Volume{...}".
Result<QStringList> machineVolumes();

// Whether the name has the form of these paths, or of a volume's path as the kernel names it:
// "\\?\GLOBALROOT\Device\HarddiskVolume1".
bool isMachineVolume(const QString &name);

} // namespace platform
