#pragma once

#include <QStringList>

#include <functional>

namespace cli {

// The beginning of a list that may be long, indented, a line each, and how many more there are. lineOf is
// asked for those lines only.
QStringList beginningOfList(qsizetype count, const std::function<QString(qsizetype index)> &lineOf);

} // namespace cli
