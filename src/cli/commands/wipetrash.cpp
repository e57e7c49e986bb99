#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/io/stoprequest.h"
#include "cli/job/trashtarget.h"
#include "cli/job/wipeplan.h"
#include "cli/texts.h"
#include "engine/filesurvey.h"
#include "engine/filetargets.h"
#include "model/joboutcome.h"
#include "model/jsonwriter.h"
#include "model/targettext.h"
#include "services/trash/binrecords.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"wipe"_s, u"trash"_s};
}

QStringList summaryOf(const RecycleBinInfo &found)
{
    const QStringList items = TargetText::beginningOf(
        found.items.size(), [&found](qsizetype i) { return describeItem(found.items.at(i)); });
    return indented(items + accountLines(found) + amountLines(found) + unrecordedLines(found) +
                    unscannedLines(found));
}

ExitCode tellEmpty(const CommandContext &context, const RecycleBinInfo &found)
{
    // Names the account, because another account may have items in its bin.
    const QString message =
        (QStringList{Cli::tr("The Recycle Bin is empty.")} + accountLines(found)).join(u' ');
    if (wantsJson(context.options)) {
        JsonWriter event(JsonWriter::Layout::Compact);
        event.beginObject().member(u"event", u"log").member(u"level", 0).member(u"message", message);
        context.io.printLine(event.endObject().text());
        // There is no report without a job.
        JsonWriter end(JsonWriter::Layout::Compact);
        end.beginObject().member(u"event", u"finished").member(u"success", true).member(u"cancelled", false);
        end.member(u"certificateId", QString()).key(u"report").beginObject().endObject();
        OutcomeRecord(JobOutcome::Complete).writeMembers(end, true);
        context.io.printLine(end.endObject().text());
    } else {
        context.io.printLine(message);
    }
    return Done;
}

// The bins' own records still name the erased items.
QStringList tidyUp(const RecycleBinInfo &found)
{
    const platform::Status tidied = updateBinRecords(found);
    if (tidied)
        return {};
    return {
        Cli::tr("the bin's own list of its folders still names what was erased, error %1").arg(tidied.code)};
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto options = readWipeOptions(context, words());
    if (!options)
        return options.refusal();
    const auto found = findTrash(context, words());
    if (!found)
        return found.refusal();
    const QStringList doomed = found->doomedPaths();
    if (doomed.isEmpty() && !found->unscanned.isEmpty()) {
        return Refusal{Refused, Cli::tr("nothing to erase was found, but not every bin was looked into: %1")
                                    .arg(unscannedLines(*found).join(u"; "_s))};
    }
    if (doomed.isEmpty())
        return tellEmpty(context, *found);

    auto task = std::make_unique<WipeTask>();
    task->setOperationType(FileWipe);
    task->addFiles(doomed);
    rememberTargets(*task);
    task->setTargetsAreNamed(false);
    task->setOmissions(found->omissions());
    const StopRequest &stop = context.io.stopRequest();
    const FileSurvey survey = surveyFiles(*task, [&stop] { return stop.isRequested(); });
    WipePlan plan;
    plan.summary = summaryOf(*found);
    plan.doomedPaths = task->files();
    plan.jobs.push_back({std::move(task), Cli::tr("the Recycle Bin"), survey});
    plan.afterwards = [&found] { return tidyUp(*found); };
    return carryOut(plan, *options, context, words());
}

} // namespace

Command wipeTrashCommand()
{
    Command command;
    command.words = words();
    command.summary = Cli::tr("Erases everything in the current user's Recycle Bin");
    command.details = Cli::tr("That is the Recycle Bin of Windows, and the Trash of other desktops.");
    command.example = u"wipe trash --method 2"_s;
    command.options = trashOptions() + wipeOptions();
    command.printsEvents = true;
    command.run = run;
    return command;
}

} // namespace cli
