#include "cli/command.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/records/reportstore.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "services/reportdatabase.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

Outcome<ExitCode> run(const CommandContext &context)
{
    const QString &id = context.arguments.constFirst();
    const auto store = ReportStore::open(context.options);
    if (!store)
        return store.refusal();
    // A damaged report can be deleted too.
    const auto json = findStoredReport(**store, id);
    if (!json)
        return json.refusal();
    if (!(*store)->database().deleteReport(id))
        return Refusal{SurroundingsFailed, Cli::tr("report %1 could not be deleted").arg(displayText(id))};
    if (!wantsQuiet(context.options))
        context.io.printErrorLine(Cli::tr("Report %1 is deleted.").arg(displayText(id)));
    return Done;
}

} // namespace

Command reportsDeleteCommand()
{
    Command command;
    command.words = QStringList{u"reports"_s, u"delete"_s};
    command.synopsis = u"ID"_s;
    command.summary = Cli::tr("Deletes one report from the database");
    command.example = u"reports delete QVX-2026-0305-4821"_s;
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace cli
