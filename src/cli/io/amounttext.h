#pragma once

#include <QString>
#include <QtGlobal>

namespace cli {

/// "1 pass", "7 passes".
QString passCountText(int count);

/// "1 file", "7 files".
QString fileCountText(int count);

/// "5s", "1m 5s", "1h 0m 5s".
QString durationText(qint64 seconds);

} // namespace cli
