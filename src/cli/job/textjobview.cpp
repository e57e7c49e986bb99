#include "cli/job/textjobview.h"

#include "cli/io/amounttext.h"
#include "cli/io/cliio.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/wipetask.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString levelMark(int level)
{
    if (level >= ErrorLevel)
        return Cli::tr("[error]");
    return level == WarningLevel ? Cli::tr("[warning]") : Cli::tr("[info]");
}

QString resultText(JobOutcome outcome)
{
    switch (outcome) {
    case JobOutcome::Complete:
        return Cli::tr("DONE");
    case JobOutcome::Partial:
        return Cli::tr("PARTLY DONE");
    case JobOutcome::Cancelled:
        return Cli::tr("CANCELLED");
    case JobOutcome::Failed:
        break;
    }
    return Cli::tr("FAILED");
}

// A file job reports its bytes irregularly, and the last of them not at all; the size of its files is exact.
QString amountText(const WipeReport &report)
{
    if (report.operationType != FileWipe)
        return Cli::tr("%1 written").arg(formatSize(static_cast<qint64>(report.bytesWritten)));
    return Cli::tr("%1 of %2")
        .arg(fileCountText(report.fileCount), formatSize(static_cast<qint64>(report.totalBytes)));
}

} // namespace

TextJobView::TextJobView(CliIo &io, bool quiet)
    : m_io(io)
    , m_quiet(quiet)
    , m_progressLine(io)
{}

void TextJobView::started(const WipeTask &, const QString &target)
{
    m_target = target;
    m_progressLine.start();
}

void TextJobView::progress(const JobProgress &progress)
{
    if (!m_quiet)
        m_progressLine.show(progress);
}

void TextJobView::log(const QString &message, int level)
{
    if (m_quiet && level < ErrorLevel)
        return;
    m_progressLine.clear();
    // An empty message separates the blocks of several volumes.
    m_io.printLine(message.isEmpty() ? QString() : levelMark(level) + u' ' + displayText(message));
    m_progressLine.restore();
}

void TextJobView::problem(const QString &message)
{
    m_progressLine.clear();
    m_io.printErrorLine(u"quorvex-cli: "_s + message);
    m_progressLine.restore();
}

void TextJobView::finished(const JobResult &result, const RecordKeeping::Written &written)
{
    m_progressLine.end();
    const WipeReport &report = result.end.report;
    QString line = Cli::tr("%1: %2, %3, %4 in %5, certificate %6")
                       .arg(resultText(result.end.outcome.outcome()), displayText(m_target),
                            report.method.name, amountText(report), report.duration(), report.certificateId);
    if (!written.report.isEmpty())
        line += Cli::tr(", report %1").arg(displayText(written.report));
    if (!written.certificate.isEmpty())
        line += Cli::tr(", PDF %1").arg(displayText(written.certificate));
    m_io.printLine(line);
    for (const QString &shortfall : result.end.outcome.shortfallLines())
        m_io.printLine(u"  "_s + shortfall);
}

} // namespace cli
