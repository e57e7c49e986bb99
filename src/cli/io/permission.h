#pragma once

#include <QString>

namespace cli {

/// Adds a hint on the missing rights to the refusal.
QString notPermitted(const QString &refusal);

} // namespace cli
