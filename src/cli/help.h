#pragma once

#include <QString>
#include <QStringList>

namespace cli {

// The help on a command, on a group of commands that begin with the same words, or with no words on the
// program.
QString helpText(const QStringList &words);

} // namespace cli
