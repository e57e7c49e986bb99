#include "cli/commandline.h"
#include "cli/io/cliio.h"
#include "cli/io/stoprequest.h"
#include "cli/job/filetarget.h"
#include "cli/job/wipeplan.h"
#include "cli/texts.h"
#include "engine/filesurvey.h"
#include "engine/filetargets.h"
#include "model/displaytext.h"
#include "model/targettext.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList words()
{
    return {u"wipe"_s, u"files"_s};
}

QString targetName(const QStringList &paths)
{
    const QString &first = paths.constFirst();
    return paths.size() == 1 ? first
                             : Cli::tr("%1 and %2 more").arg(first, QString::number(paths.size() - 1));
}

QStringList summaryOf(const QStringList &paths, const FileSurvey &count)
{
    const QStringList names =
        TargetText::beginningOf(paths.size(), [&paths](qsizetype i) { return displayText(paths.at(i)); });
    return indented(names + QStringList{TargetText::amount(count.files, count.bytes, count.isComplete)});
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto options = readWipeOptions(context, words());
    if (!options)
        return options.refusal();
    // An empty argument is often an unset variable and would name the current folder.
    if (context.arguments.contains(QString()))
        return wrongCommandLine(Cli::tr("a path is empty"), words());
    const auto paths = findFiles(context.arguments);
    if (!paths)
        return paths.refusal();

    auto task = std::make_unique<WipeTask>();
    task->setOperationType(FileWipe);
    task->addFiles(*paths);
    rememberTargets(*task);
    const QStringList targets = task->files();
    const StopRequest &stop = context.io.stopRequest();
    const FileSurvey survey = surveyFiles(*task, [&stop] { return stop.isRequested(); });
    WipePlan plan;
    plan.summary = summaryOf(targets, survey);
    plan.jobs.push_back({std::move(task), targetName(targets), survey});
    plan.doomedPaths = targets;
    return carryOut(plan, *options, context, words());
}

} // namespace

Command wipeFilesCommand()
{
    Command command;
    command.words = words();
    command.synopsis = u"PATH..."_s;
    command.summary = Cli::tr("Erases files, and folders with all that is in them");
    command.details = Cli::tr("A link is removed itself; what it leads to is not touched. Put -- before a "
                              "path that begins with a dash.");
    command.example = u"wipe files secret.txt old-projects --method 2"_s;
    command.options = wipeOptions();
    command.minimumArguments = 1;
    command.maximumArguments = -1;
    command.printsEvents = true;
    command.run = run;
    return command;
}

} // namespace cli
