#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>

namespace cli {

// The absolute paths of the files and folders that were named. Refused when one does not exist, is a device,
// pipe or socket, is the root of a mounted file system, or cannot be told apart from another;
// WrongCommandLine never.
Outcome<QStringList> findFiles(const QStringList &given);

// What lies under the paths.
struct FileCount
{
    quint64 files = 0; // everything that is no folder
    quint64 bytes = 0;
    bool isComplete = true; // false when something could not be looked into
};

// Goes through all folders, links excepted, until shallStop says so. Paths below others are counted once.
FileCount countFiles(const QStringList &paths, const std::function<bool()> &shallStop);

} // namespace cli
