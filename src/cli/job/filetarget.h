#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QStringList>

namespace cli {

// The absolute paths of the files and folders that were named. Refused when one does not exist, is a device,
// pipe or socket, is the root of a mounted file system, or cannot be told apart from another;
// WrongCommandLine never.
Outcome<QStringList> findFiles(const QStringList &given);

} // namespace cli
