#pragma once

#include <QString>

namespace cli {

/// The path in the form in which the system compares names: two paths name the same entry when these forms
/// are equal.
QString folded(const QString &path);

} // namespace cli
