#pragma once

#include <QStringList>

namespace cli {

// The lines as they stand below another.
QStringList indented(const QStringList &lines);

} // namespace cli
