#pragma once

#include "platform/files.h"

#include <QString>

#include <functional>

/// Called with the folder, the name in it and the kind.
using EntryVisitor = std::function<void(const QString &folder, const QString &name, platform::FileKind kind)>;

/// Every entry below the folder that is no folder itself, each folder's own entries before those of the
/// folders in it. Links are entries and lead nowhere. A folder that cannot be listed goes to the debug
/// output.
void forEachFileBelow(const QString &folder, const EntryVisitor &visit);

/// Bytes of a file, and of all files below a folder; what does not tell counts as 0.
quint64 sizeOfFile(const QString &path);
quint64 sizeOfTree(const QString &folder);
