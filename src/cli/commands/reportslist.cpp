#include "cli/commandline.h"
#include "cli/io/cliio.h"
#include "cli/io/listoutput.h"
#include "cli/io/table.h"
#include "cli/records/recordjson.h"
#include "cli/records/reportstore.h"
#include "cli/records/reporttext.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "services/reportdatabase.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

struct StoredReport : ReportDatabase::StoredReport
{
    std::optional<OutcomeRecord> outcome;
};

QStringList words()
{
    return {u"reports"_s, u"list"_s};
}

// A damaged text must not look like a report.
void writeStored(JsonWriter &writer, const StoredReport &stored)
{
    if (!writeStoredReport(writer, stored.json, stored.outcome))
        writer.beginObject()
            .member(u"certificateId", stored.certificateId)
            .member(u"damaged", true)
            .endObject();
}

QStringList rowOf(const StoredReport &stored)
{
    const QString id = displayText(stored.certificateId);
    if (!isReportText(stored.json))
        return {id, Cli::tr("damaged")};
    const WipeReport report = WipeReport::fromJson(stored.json);
    return {id,
            displayTime(report.startTime),
            report.statusName(),
            outcomeText(stored.outcome),
            report.operationTypeName(),
            displayText(report.method.name),
            targetText(report)};
}

QString listText(const QList<StoredReport> &reports)
{
    if (reports.isEmpty())
        return Cli::tr("No reports.") + u'\n';
    Table table;
    table.addRow({Cli::tr("Certificate"), Cli::tr("Started"), Cli::tr("Status"), Cli::tr("Outcome"),
                  Cli::tr("Operation"), Cli::tr("Method"), Cli::tr("Target")});
    for (const StoredReport &stored : reports)
        table.addRow(rowOf(stored));
    return table.text();
}

Outcome<int> numberOf(const CommandContext &context, const QString &name)
{
    bool isNumber = false;
    const QString given = context.options.value(name);
    const int number = given.toInt(&isNumber);
    if (isNumber && number >= 0)
        return number;
    return wrongCommandLine(Cli::tr("--%1 takes a number %2, not '%3'")
                                .arg(name, Cli::tr("%1 or more").arg(0), displayText(given)),
                            words());
}

Outcome<ExitCode> run(const CommandContext &context)
{
    const auto limit = numberOf(context, u"limit"_s);
    if (!limit)
        return limit.refusal();
    const auto offset = numberOf(context, u"offset"_s);
    if (!offset)
        return offset.refusal();
    const auto store = ReportStore::open(context.options);
    if (!store)
        return store.refusal();
    const auto reports = (*store)->database().storedReports(*limit, *offset);
    if (!reports)
        return (*store)->unreadable();
    QList<StoredReport> listed;
    for (const ReportDatabase::StoredReport &report : *reports)
        listed.append({report, (*store)->database().outcome(report.certificateId)});
    return printList(context, listed, writeStored, listText);
}

} // namespace

Command reportsListCommand()
{
    Command command;
    command.words = words();
    command.summary = Cli::tr("Lists the stored reports, latest first");
    command.example = u"reports list --limit 20"_s;
    command.options = {
        {u"limit"_s, Cli::tr("How many to list (100)"), u"N"_s, u"100"_s},
        {u"offset"_s, Cli::tr("How many of the latest to leave out (0)"), u"N"_s, u"0"_s},
    };
    command.run = run;
    return command;
}

} // namespace cli
