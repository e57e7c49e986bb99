#pragma once

#include "cli/job/jobview.h"
#include "jobs/jobcontroller.h"

#include <QString>

namespace cli {

class StopRequest;

/// Runs the job of the controller's task to its end, processes events meanwhile, and shows it in the view. A
/// stop request stops the job. Returns after the worker has finished and released its devices, even if its
/// last transfer takes long, and after the end has been stored.
JobResult runJob(JobController &controller, const QString &target, JobView &view, StopRequest &stop);

} // namespace cli
