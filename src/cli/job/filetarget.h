#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QStringList>

namespace cli {

/// The absolute paths of the given files and folders. Refused when a path does not exist or cannot be
/// queried, is a device, pipe or socket, is the root of a volume, or goes back through a link. Never
/// WrongCommandLine.
Outcome<QStringList> findFiles(const QStringList &given);

} // namespace cli
