#include "cli/job/wipeplan.h"

#include "cli/commandline.h"
#include "cli/globaloptions.h"
#include "cli/io/amounttext.h"
#include "cli/io/cliio.h"
#include "cli/job/confirmation.h"
#include "cli/job/joblog.h"
#include "cli/job/planrun.h"
#include "cli/records/recordkeeping.h"
#include "cli/texts.h"
#include "engine/foreseeable.h"
#include "jobs/certificatenumber.h"
#include "model/displaytext.h"
#include "services/loopfiles.h"

#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// Fill files are deleted again and never read back.
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
        if (const auto refusal = job.survey.roomProblem())
            return refusal;
    }
    return LoopFiles::problem(plan.doomedPaths);
}

// A report of the plan must not replace a stored report or another report of the plan.
std::optional<Refusal> claimCertificateIds(const WipePlan &plan, const WipeOptions &options)
{
    QStringList taken;
    for (const PlannedJob &job : plan.jobs) {
        if (!options.storeReport)
            break;
        if (const auto refusal = claimCertificateId(*job.task, taken))
            return Refusal{Refused, refusal->message + u' ' + Cli::tr("--no-report does without.")};
        taken.append(job.task->report().certificateId);
    }
    return std::nullopt;
}

// Lines on the parts that the jobs will not erase; the user decides whether the jobs start.
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

QStringList indented(const QStringList &lines)
{
    QStringList below;
    for (const QString &line : lines)
        below.append(u"  "_s + line);
    return below;
}

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
    const auto records = RecordKeeping::prepare(options, context, plan.doomedPaths, commandWords);
    if (!records)
        return records.refusal();
    if (const auto refusal = claimCertificateIds(plan, options))
        return *refusal;
    if (const auto refusal = ask(plan, options, context))
        return *refusal;
    // After a stop request the jobs end at once and have written nothing, so that no check is needed.
    if (plan.lastCheck && !context.io.stopRequest().isRequested()) {
        if (const auto refusal = plan.lastCheck())
            return *refusal;
    }

    PlanRun planRun(plan, options, *records, context);
    for (PlannedJob &job : plan.jobs) {
        if (!planRun.run(job))
            break;
    }
    return planRun.result();
}

} // namespace cli
