#pragma once

#include <QString>

namespace cli {

// The path as seen from the current folder, without "." and ".." and with forward slashes; on Windows with
// the drive that "/x" leaves out and the folder that "C:x" does. "C:" is the volume. Links stay as they are.
// An empty path stays empty.
QString absolutePath(const QString &path);

// Whether taking ".." out of the path leads somewhere else than following it does, as it is behind a link to
// a folder.
bool leadsBackThroughLink(const QString &path);

// Whether the first absolute path is the second, or lies below it.
bool isSameOrBelow(const QString &path, const QString &folder);

// Whether the absolute path names a device of Windows, which has no entry in any folder.
bool isDeviceName(const QString &path);

// Whether both paths lead to the same existing file or folder, as the system compares names.
bool isSameFile(const QString &one, const QString &other);

} // namespace cli
