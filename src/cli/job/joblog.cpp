#include "cli/job/joblog.h"

#include "cli/globaloptions.h"
#include "cli/io/machinenames.h"
#include "cli/io/outputfile.h"
#include "cli/job/jobview.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "services/applog.h"

#include <QDir>
#include <QFileInfo>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString endName(const JobResult &result)
{
    const JobOutcome outcome = result.end.outcome.outcome();
    return outcome == JobOutcome::Complete ? u"succeeded"_s : machineName(outcome);
}

} // namespace

std::optional<Refusal> openJobLog(const DataFolder &folder, const QStringList &doomedPaths)
{
    const bool exists = QDir().mkpath(folder.path);
    const QString path = folder.log();
    if (const auto file = OutputFile::at(path, {}); file && file->liesWithin(doomedPaths)) {
        return Refusal{Refused, Cli::tr("the program's log in %1 lies in what is to be erased; --data-dir "
                                        "takes another folder")
                                    .arg(displayText(folder.path))};
    }
    AppLog::setFirstLogFile(path);
    AppLog &log = AppLog::instance();
    log.setEchoToConsole(false);
    log.setLogFile(path);
    // The program works without its default folder, but not without a folder that the user has given.
    if (folder.isGiven && (!exists || !QFileInfo(path).isWritable())) {
        closeJobLog();
        return Refusal{SurroundingsFailed,
                       Cli::tr("the data folder %1 cannot be used").arg(displayText(folder.path))};
    }
    return std::nullopt;
}

void closeJobLog()
{
    AppLog::instance().closeLogFile();
}

void logJobStart(const WipeTask &task, const QString &target)
{
    AppLog::instance().info(u"Job %1 started: %2, %3, %4"_s.arg(task.id(), machineName(task.operationType()),
                                                                displayText(target), task.method().name));
}

void logJobEnd(const JobResult &result)
{
    if (!result.wasStarted) {
        AppLog::instance().info(u"Job not started %1"_s.arg(displayText(result.lastError)));
        return;
    }
    const WipeReport &report = result.end.report;
    AppLog::instance().info(u"Job %1, certificate %2, %3 bytes written %4"_s.arg(
        endName(result), report.certificateId, QString::number(report.bytesWritten),
        displayText(report.errorMessage)));
    for (const QString &line : result.end.outcome.shortfallLines())
        AppLog::instance().warning(line);
}

} // namespace cli
