#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QStringList>

#include <optional>

class WipeTask;

namespace cli {

struct DataFolder;
struct JobResult;

/// Opens the program's log file in the folder. SurroundingsFailed when a given folder cannot be created or
/// the file in it cannot be written; refused when the file lies within the absolute paths, which will be
/// erased.
std::optional<Refusal> openJobLog(const DataFolder &folder, const QStringList &doomedPaths);
void closeJobLog();

void logJobStart(const WipeTask &task, const QString &target);
void logJobEnd(const JobResult &result);

} // namespace cli
