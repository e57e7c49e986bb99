#include "cli/job/planrun.h"

#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/job/joblog.h"
#include "cli/job/jobrunner.h"
#include "cli/job/jsonjobview.h"
#include "cli/job/textjobview.h"
#include "cli/texts.h"
#include "jobs/jobcontroller.h"
#include "model/displaytext.h"

#include <utility>

namespace cli {

PlanRun::PlanRun(WipePlan &plan, const WipeOptions &options, const RecordKeeping &records,
                 const CommandContext &context)
    : m_plan(plan)
    , m_options(options)
    , m_records(records)
    , m_stop(context.io.stopRequest())
{
    const bool quiet = wantsQuiet(context.options);
    if (wantsJson(context.options))
        m_view = std::make_unique<JsonJobView>(context.io, quiet);
    else
        m_view = std::make_unique<TextJobView>(context.io, quiet);
}

bool PlanRun::run(PlannedJob &job)
{
    logJobStart(*job.task, job.target);
    // Each job has a controller of its own, which is destroyed with the job's thread before the next job
    // starts.
    JobController controller;
    controller.takeTask(std::move(job.task));
    controller.setKeep(
        [this](JobEnd &end) { m_written = m_records.write(end, m_options.accepts(end.outcome)); });
    const JobResult result = runJob(controller, job.target, *m_view, m_stop);
    logJobEnd(result);
    if (!result.wasStarted) {
        m_engineRefusal = result.lastError;
        if (m_started > 0)
            m_view->problem(result.lastError);
        return false;
    }
    ++m_started;
    const JobEnd &end = result.end;
    const JobOutcome outcome = end.outcome.outcome();
    const bool isCancelled = outcome == JobOutcome::Cancelled;
    m_isCancelled = m_isCancelled || isCancelled;
    m_hasFailed = m_hasFailed || !m_options.accepts(end.outcome);
    const bool isFailed = isCancelled || outcome == JobOutcome::Failed;
    if (isFailed && !end.leftUnmounted.isEmpty())
        m_view->problem(
            Cli::tr("left unmounted: %1").arg(displayText(end.leftUnmounted.join(QLatin1String(", ")))));
    const QStringList problems =
        m_written.problems + (m_plan.afterwards ? m_plan.afterwards() : QStringList());
    for (const QString &problem : problems)
        m_view->problem(problem);
    m_hasProblem = m_hasProblem || !problems.isEmpty();
    m_view->finished(result, m_written);
    return !isCancelled;
}

Outcome<ExitCode> PlanRun::result() const
{
    if (m_engineRefusal && m_started == 0)
        return Refusal{Refused, *m_engineRefusal};
    if (m_isCancelled)
        return Cancelled;
    if (m_hasFailed || m_engineRefusal)
        return JobFailed;
    return m_hasProblem ? SurroundingsFailed : Done;
}

} // namespace cli
