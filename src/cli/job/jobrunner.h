#pragma once

#include "cli/job/jobview.h"
#include "jobs/jobcontroller.h"

#include <QString>

namespace cli {

class StopRequest;

// Runs the job of the controller's task from start to end, events included, and shows it. A stop request ends
// it; the function returns when the worker is through and has given everything back, however long its last
// transfer takes, and the end is kept.
JobResult runJob(JobController &controller, const QString &target, JobView &view, StopRequest &stop);

} // namespace cli
