#pragma once

#include "platform/status.h"
#include "services/trash/recyclebininfo.h"

#include <QString>
#include <QStringList>

/// The Trash folders that items of the scan lie in, each once.
QStringList trashFoldersOf(const RecycleBinInfo &info);

/// Takes out of the folder's "directorysizes", the desktop's record of how large deleted folders are, the
/// names of those that are no longer there. The new contents take the place of the old in one step, and the
/// old are overwritten, since they name what was erased. Success when there is no such file or nothing to
/// take out.
platform::Status pruneDirectorySizes(const QString &trashFolder);
