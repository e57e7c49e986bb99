#pragma once

#include "model/diskinfo.h"
#include "model/operationtype.h"
#include "model/wipemethod.h"

#include <QLatin1String>

namespace cli {

/// The fixed names of enumerators in machine output, never translated; "Unknown" for a number without a name.
QLatin1String machineName(OperationType type);
QLatin1String machineName(DiskType type);
QLatin1String machineName(BusType type);
QLatin1String machineName(PatternType type);

} // namespace cli
