#include "cli/job/wipeplan.h"

#include "cli/commandline.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/io/names.h"
#include "cli/io/translate.h"
#include "cli/job/confirmation.h"
#include "cli/job/joblog.h"
#include "cli/job/jobrunner.h"
#include "cli/job/jsonjobview.h"
#include "cli/job/textjobview.h"
#include "cli/records/jobrecords.h"
#include "engine/foreseeable.h"
#include "jobs/certificatenumber.h"
#include "jobs/jobcontroller.h"
#include "model/displaytext.h"
#include "services/loopfiles.h"

#include <QScopeGuard>

#include <algorithm>
#include <utility>

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
        if (const QString problem = job.survey.roomProblem(); !problem.isEmpty())
            return Refusal{Refused, problem};
    }
    if (const QString problem = LoopFiles::problem(plan.doomedPaths); !problem.isEmpty())
        return Refusal{Refused, problem};
    return std::nullopt;
}

// None of the plan's reports may take the place of a stored one, nor of each other.
std::optional<Refusal> claimCertificateIds(const WipePlan &plan, const WipeOptions &options)
{
    QStringList taken;
    for (const PlannedJob &job : plan.jobs) {
        if (!options.storeReport)
            break;
        if (const QString problem = claimCertificateId(*job.task, taken); !problem.isEmpty())
            return Refusal{Refused, problem + u' ' + Cli::tr("--no-report does without.")};
        taken.append(job.task->report().certificateId);
    }
    return std::nullopt;
}

// Runs the jobs of a plan and remembers the gravest that happened.
class Session
{
public:
    Session(WipePlan &plan, const WipeOptions &options, const JobRecords &records,
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

    // False when the jobs behind this one are not to be run.
    bool run(PlannedJob &job);
    Outcome<ExitCode> result() const;

private:
    WipePlan &m_plan;
    const WipeOptions &m_options;
    const JobRecords &m_records;
    StopRequest &m_stop;
    std::unique_ptr<JobView> m_view;
    JobRecords::Written m_written; // of the job that ended last
    int m_started = 0;
    std::optional<QString> m_engineRefusal;
    bool m_isCancelled = false;
    bool m_hasFailed = false; // or fell short
    bool m_hasProblem = false;
};

bool Session::run(PlannedJob &job)
{
    logJobStart(*job.task, job.target);
    // One for each job: it goes when the job's thread is over, before the next one begins.
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

Outcome<ExitCode> Session::result() const
{
    if (m_engineRefusal && m_started == 0)
        return Refusal{Refused, *m_engineRefusal};
    if (m_isCancelled)
        return Cancelled;
    if (m_hasFailed || m_engineRefusal)
        return JobFailed;
    return m_hasProblem ? SurroundingsFailed : Done;
}

// What the jobs will fall short of, and what they keep, in lines; the user decides whether they are started
// all the same.
QStringList foreseenLines(const WipePlan &plan)
{
    OutcomeRecord foreseen;
    for (const PlannedJob &job : plan.jobs) {
        const OutcomeRecord record = foreseeableShortfalls(*job.task, job.survey);
        for (const Shortfall &shortfall : record.shortfalls() + record.notes())
            foreseen.note(shortfall);
    }
    QStringList lines;
    for (const QString &line : foreseen.shortfallLines())
        lines.append(u"    "_s + line);
    if (!lines.isEmpty())
        lines.prepend(Cli::tr("  not everything will be erased:"));
    QStringList notes = foreseen.noteLines();
    for (const PlannedJob &job : plan.jobs) {
        if (const QString others = job.survey.otherNamesText(); !others.isEmpty())
            notes.append(others);
    }
    for (const QString &line : std::as_const(notes))
        lines.append(u"  "_s + line);
    return lines;
}

std::optional<Refusal> ask(const WipePlan &plan, const WipeOptions &options, const CommandContext &context)
{
    const ConfirmationOptions how{options.skipQuestion, wantsJson(context.options),
                                  wantsQuiet(context.options)};
    return confirm(plan.summary + QStringList{methodLine(plan, options)} + foreseenLines(plan), how,
                   context.io);
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
    if (const auto refusal = claimCertificateIds(plan, options))
        return *refusal;
    if (const auto refusal = ask(plan, options, context))
        return *refusal;
    // Whoever stops now gets the end of a job that has touched nothing.
    if (plan.lastCheck && !context.io.stopRequest().isRequested()) {
        if (const auto refusal = plan.lastCheck())
            return *refusal;
    }

    Session session(plan, options, *records, context);
    for (PlannedJob &job : plan.jobs) {
        if (!session.run(job))
            break;
    }
    return session.result();
}

} // namespace cli
