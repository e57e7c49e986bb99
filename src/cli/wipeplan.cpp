#include "cli/wipeplan.h"

#include "cli/cliio.h"
#include "cli/commandline.h"
#include "cli/confirmation.h"
#include "cli/globaloptions.h"
#include "cli/joblog.h"
#include "cli/jobrecords.h"
#include "cli/jobrunner.h"
#include "cli/jsonjobview.h"
#include "cli/names.h"
#include "cli/textjobview.h"
#include "cli/translate.h"
#include "model/displaytext.h"

#include <QScopeGuard>
#include <QSet>

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// What fills free space is deleted again and never read back.
bool isReadBack(const WipePlan &plan, const WipeOptions &options)
{
    return options.verify && std::ranges::any_of(plan.jobs, [](const PlannedJob &job) {
               return job.task->operationType() != FreeSpaceWipe;
           });
}

QString methodLine(const WipePlan &plan, const WipeOptions &options)
{
    const QString verification = isReadBack(plan, options) ? Cli::tr("read back") : Cli::tr("not read back");
    return Cli::tr("  with %1, %2, %3")
        .arg(options.method.name, passCountText(options.method.passCount()), verification);
}

std::optional<Refusal> checkTasks(const WipePlan &plan)
{
    for (const PlannedJob &job : plan.jobs) {
        const QString error = job.task->validationError();
        if (!error.isEmpty())
            return Refusal{Refused, error};
    }
    return std::nullopt;
}

// Runs the jobs of a plan and remembers the gravest that happened.
class Session
{
public:
    Session(const WipePlan &plan, const JobRecords &records, const CommandContext &context)
        : m_plan(plan)
        , m_records(records)
        , m_stop(context.io.stopRequest())
    {
        const bool quiet = wantsQuiet(context.options);
        if (wantsJson(context.options))
            m_view = std::make_unique<JsonJobView>(context.io, quiet);
        else
            m_view = std::make_unique<TextJobView>(context.io, quiet);
    }

    // False when the jobs behind this one are not to be run.
    bool run(const PlannedJob &job);
    Outcome<ExitCode> result() const;

private:
    const WipePlan &m_plan;
    const JobRecords &m_records;
    StopRequest &m_stop;
    std::unique_ptr<JobView> m_view;
    QSet<JobResult::End> m_ends;
    QString m_engineRefusal;
    bool m_hasPartialJob = false;
    bool m_hasProblem = false;
};

bool Session::run(const PlannedJob &job)
{
    logJobStart(*job.task, job.target);
    const JobResult result = runJob(*job.task, job.target, *m_view, m_stop);
    logJobEnd(result);
    m_ends.insert(result.end);
    if (result.end == JobResult::End::NotStarted) {
        m_engineRefusal = result.lastError;
        if (m_ends.size() > 1)
            m_view->problem(result.lastError);
        return false;
    }
    const QStringList dismounted = job.task->dismountedVolumes();
    if (result.end == JobResult::End::Failed && !dismounted.isEmpty())
        m_view->problem(Cli::tr("left unmounted: %1").arg(displayText(dismounted.join(QLatin1String(", ")))));
    if (result.isPartial()) {
        m_hasPartialJob = true;
        m_view->problem(
            Cli::tr("only the mounted volumes were erased; unmount them to erase the whole drive"));
    }
    const JobRecords::Written written = m_records.write(result.report, result.isComplete());
    const QStringList problems = written.problems + (m_plan.afterwards ? m_plan.afterwards() : QStringList());
    for (const QString &problem : problems)
        m_view->problem(problem);
    m_hasProblem = m_hasProblem || !problems.isEmpty();
    m_view->finished(result, written);
    return result.end != JobResult::End::Cancelled;
}

Outcome<ExitCode> Session::result() const
{
    if (m_ends == QSet{JobResult::End::NotStarted})
        return Refusal{Refused, m_engineRefusal};
    if (m_ends.contains(JobResult::End::Cancelled))
        return Cancelled;
    if (m_ends.contains(JobResult::End::Failed) || m_ends.contains(JobResult::End::NotStarted) ||
        m_hasPartialJob)
        return JobFailed;
    return m_hasProblem ? SurroundingsFailed : Done;
}

std::optional<Refusal> ask(const WipePlan &plan, const WipeOptions &options, const CommandContext &context)
{
    const ConfirmationOptions how{options.skipQuestion, wantsJson(context.options),
                                  wantsQuiet(context.options)};
    return confirm(plan.summary + QStringList{methodLine(plan, options)}, how, context.io);
}

} // namespace

Outcome<ExitCode> carryOut(WipePlan &plan, const WipeOptions &options, const CommandContext &context,
                           const QStringList &commandWords)
{
    for (const PlannedJob &job : plan.jobs)
        options.applyTo(*job.task);
    if (const auto refusal = checkTasks(plan))
        return *refusal;
    if (const auto refusal = openJobLog(dataFolder(context.options), plan.doomedPaths))
        return *refusal;
    const auto closing = qScopeGuard(closeJobLog);
    const auto records = JobRecords::prepare(options, context, plan.doomedPaths, commandWords);
    if (!records)
        return records.refusal();
    if (const auto refusal = ask(plan, options, context))
        return *refusal;
    if (context.io.stopRequest().isRequested())
        return Refusal{Cancelled, Cli::tr("cancelled, nothing was written")};
    if (plan.lastCheck) {
        if (const auto refusal = plan.lastCheck())
            return *refusal;
    }

    Session session(plan, *records, context);
    for (const PlannedJob &job : plan.jobs) {
        if (!session.run(job))
            break;
    }
    return session.result();
}

} // namespace cli
