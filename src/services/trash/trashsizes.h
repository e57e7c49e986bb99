#pragma once

#include "platform/status.h"
#include "services/trash/recyclebininfo.h"

#include <QString>
#include <QStringList>

/// The Trash folders of the items of the scan, each once.
QStringList trashFoldersOf(const RecycleBinInfo &info);

/// Removes deleted names from "directorysizes", in which the desktop records the sizes of deleted folders.
/// The new contents replace the old ones atomically, and the old ones are overwritten, because they name
/// erased folders. Success when the file does not exist or needs no change.
platform::Status pruneDirectorySizes(const QString &trashFolder);
