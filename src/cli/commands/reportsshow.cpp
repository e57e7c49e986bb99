#include "cli/command.h"
#include "cli/globaloptions.h"
#include "cli/io/cliio.h"
#include "cli/records/recordjson.h"
#include "cli/records/reportstore.h"
#include "cli/records/reporttext.h"
#include "cli/texts.h"
#include "model/jsonwriter.h"
#include "services/reportdatabase.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto store = ReportStore::open(context.options);
    if (!store)
        return store.refusal();
    const auto json = readStoredReport(**store, context.arguments.constFirst());
    if (!json)
        return json.refusal();
    const auto outcome = (*store)->database().outcome(context.arguments.constFirst());
    if (wantsJson(context.options)) {
        JsonWriter writer(JsonWriter::Layout::Compact);
        if (writeStoredReport(writer, *json, outcome))
            context.io.printLine(writer.text());
    } else {
        context.io.print(reportText(WipeReport::fromJson(*json), outcome));
    }
    return Done;
}

} // namespace

Command reportsShowCommand()
{
    Command command;
    command.words = QStringList{u"reports"_s, u"show"_s};
    command.synopsis = u"ID"_s;
    command.summary = Cli::tr("Shows one report");
    command.example = u"reports show QVX-2026-0305-4821"_s;
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace cli
