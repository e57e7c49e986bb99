#pragma once

#include "cli/jobview.h"

#include <QString>

class WipeTask;

namespace cli {

class StopRequest;

// Runs a job from start to end, events included, and shows it. A stop request ends it; the function returns
// when the worker is through and has given everything back, however long its last transfer takes.
JobResult runJob(WipeTask &task, const QString &target, JobView &view, StopRequest &stop);

} // namespace cli
