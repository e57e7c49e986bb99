#pragma once

#include <QString>

namespace cli {

/// The absolute, normalised path with forward slashes, relative to the current folder. On Windows a missing
/// drive ("/x") or folder ("C:x") is added; "C:" is the volume. Links are not resolved. An empty path stays
/// empty.
QString absolutePath(const QString &path);

/// Whether removing ".." from the path changes its target, which happens after a link to a folder.
bool leadsBackThroughLink(const QString &path);

/// Whether the absolute path is the folder or lies below it.
bool isSameOrBelow(const QString &path, const QString &folder);

/// Whether the absolute path names a device of Windows, which is not an entry of a folder.
bool isDeviceName(const QString &path);

/// Whether both paths name the same existing file or folder, by the system's comparison of names.
bool isSameFile(const QString &one, const QString &other);

} // namespace cli
