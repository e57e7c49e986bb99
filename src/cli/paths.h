#pragma once

#include <QString>

namespace cli {

// The path as seen from the current folder, without "." and ".." and with forward slashes. Links stay as they
// are. An empty path stays empty.
QString absolutePath(const QString &path);

// Whether taking ".." out of the path leads somewhere else than following it does, as it is behind a link to
// a folder.
bool leadsBackThroughLink(const QString &path);

// Whether the first absolute path is the second, or lies below it.
bool isSameOrBelow(const QString &path, const QString &folder);

} // namespace cli
