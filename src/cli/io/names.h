#pragma once

#include "model/diskinfo.h"
#include "model/operationtype.h"
#include "model/wipemethod.h"

#include <QLatin1String>
#include <QString>

namespace cli {

// The fixed names of numbers in machine output, never translated; "Unknown" for a number without a name.
QLatin1String machineName(OperationType type);
QLatin1String machineName(DiskType type);
QLatin1String machineName(BusType type);
QLatin1String machineName(PatternType type);

// "1 pass", "7 passes".
QString passCountText(int count);

// "5s", "1m 5s", "1h 0m 5s".
QString durationText(qint64 seconds);

} // namespace cli
