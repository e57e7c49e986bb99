#pragma once

#include "platform/files.h"

#include <QString>

#include <functional>

/// Called with the folder, the name of the entry and its kind.
using EntryVisitor = std::function<void(const QString &folder, const QString &name, platform::FileKind kind)>;

/// Visits every entry below the folder that is not a folder itself, the entries of a folder before those of
/// its subfolders. Links are visited and not followed. A folder that cannot be listed is traced to the debug
/// output.
void forEachFileBelow(const QString &folder, const EntryVisitor &visit);

/// The bytes of a file, and of all files below a folder; a file that cannot be queried counts as 0.
quint64 sizeOfFile(const QString &path);
quint64 sizeOfTree(const QString &folder);
