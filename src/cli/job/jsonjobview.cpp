#include "cli/job/jsonjobview.h"

#include "cli/io/cliio.h"
#include "cli/io/machinenames.h"
#include "model/jsonwriter.h"
#include "model/wipetask.h"

#include <cmath>

namespace cli {

namespace {

JsonWriter beginEvent(const char *name)
{
    JsonWriter writer(JsonWriter::Layout::Compact);
    writer.beginObject().member(u"event", QLatin1String(name));
    return writer;
}

} // namespace

JsonJobView::JsonJobView(CliIo &io, bool quiet)
    : m_io(io)
    , m_quiet(quiet)
{}

void JsonJobView::started(const WipeTask &task, const QString &target)
{
    if (m_quiet)
        return;
    JsonWriter event = beginEvent("started");
    event.member(u"taskId", task.id())
        .member(u"operation", machineName(task.operationType()))
        .member(u"target", target)
        .member(u"method", task.method().name)
        .member(u"passes", task.method().passCount())
        .endObject();
    print(event);
}

void JsonJobView::passChanged(int pass, int passes)
{
    if (m_quiet)
        return;
    JsonWriter event = beginEvent("pass");
    event.member(u"pass", pass).member(u"passes", passes).endObject();
    print(event);
}

void JsonJobView::progress(const JobProgress &progress)
{
    if (m_quiet)
        return;
    JsonWriter event = beginEvent("progress");
    event.member(u"percent", progress.percent)
        .member(u"pass", progress.pass)
        .decimalMember(u"bytes", progress.bytes)
        .decimalMember(u"bytesPerSecond", std::llround(progress.bytesPerSecond))
        .endObject();
    print(event);
}

void JsonJobView::log(const QString &message, int level)
{
    if (m_quiet && level < ErrorLevel)
        return;
    JsonWriter event = beginEvent("log");
    event.member(u"level", level).member(u"message", message).endObject();
    print(event);
}

void JsonJobView::problem(const QString &message)
{
    JsonWriter event = beginEvent("error");
    event.member(u"message", message).endObject();
    print(event);
}

void JsonJobView::finished(const JobResult &result, const RecordKeeping::Written &)
{
    JsonWriter event = beginEvent("finished");
    const JobOutcome outcome = result.end.outcome.outcome();
    event.member(u"success", outcome == JobOutcome::Complete)
        .member(u"cancelled", outcome == JobOutcome::Cancelled)
        .member(u"certificateId", result.end.report.certificateId)
        .key(u"report");
    result.end.report.writeJson(event);
    result.end.outcome.writeMembers(event, true);
    event.endObject();
    print(event);
}

void JsonJobView::print(const JsonWriter &writer)
{
    m_io.printLine(writer.text());
}

} // namespace cli
