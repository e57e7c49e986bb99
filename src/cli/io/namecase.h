#pragma once

#include <QString>

namespace cli {

// The path with the differences taken out that the system makes none of: two paths name the same entry when
// their folded forms are equal.
QString folded(const QString &path);

} // namespace cli
