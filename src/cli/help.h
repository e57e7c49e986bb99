#pragma once

#include <QString>
#include <QStringList>

namespace cli {

/// The help on a command, on a group of commands with the same first words, or on the program when there are
/// no words.
QString helpText(const QStringList &words);

} // namespace cli
