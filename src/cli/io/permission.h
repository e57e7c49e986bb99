#pragma once

#include <QString>

namespace cli {

// The refusal with a word on who is permitted.
QString notPermitted(const QString &refusal);

} // namespace cli
