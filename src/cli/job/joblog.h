#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QStringList>

#include <optional>

class WipeTask;

namespace cli {

struct DataFolder;
struct JobResult;

// Points the program's log file into the folder. SurroundingsFailed when one that was asked for cannot be
// made, or the file in it not written; refused when the file would be destroyed with the absolute paths.
std::optional<Refusal> openJobLog(const DataFolder &folder, const QStringList &doomedPaths);
void closeJobLog();

void logJobStart(const WipeTask &task, const QString &target);
void logJobEnd(const JobResult &result);

} // namespace cli
