#include "cli/joblog.h"

#include "cli/jobview.h"
#include "cli/names.h"
#include "cli/outputfile.h"
#include "cli/translate.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "services/applog.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString endName(const JobResult &result)
{
    if (!result.wasStarted)
        return u"not started"_s;
    const JobOutcome outcome = result.outcome.outcome();
    return outcome == JobOutcome::Complete ? u"succeeded"_s : machineName(outcome);
}

} // namespace

std::optional<Refusal> openJobLog(const QString &folder, const QStringList &doomedPaths)
{
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString used = folder.isEmpty() ? usual : folder;
    const bool exists = QDir().mkpath(used);
    const QString path = used + u"/quorvex.log"_s;
    if (const auto file = OutputFile::at(path, {}); file && file->liesWithin(doomedPaths)) {
        return Refusal{Refused, Cli::tr("the program's log in %1 lies in what is to be erased; --data-dir "
                                        "takes another folder")
                                    .arg(displayText(used))};
    }
    AppLog::setFirstLogFile(path);
    AppLog &log = AppLog::instance();
    log.setEchoToConsole(false);
    log.setLogFile(path);
    // Without its usual folder the program works as well; a folder that was asked for is another matter.
    if (!folder.isEmpty() && (!exists || !QFileInfo(path).isWritable())) {
        closeJobLog();
        return Refusal{SurroundingsFailed,
                       Cli::tr("the data folder %1 cannot be used").arg(displayText(folder))};
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
    const WipeReport &report = result.report;
    AppLog::instance().info(u"Job %1, certificate %2, %3 bytes written %4"_s.arg(
        endName(result), report.certificateId, QString::number(report.bytesWritten),
        displayText(report.errorMessage)));
    for (const QString &line : result.outcome.shortfallLines())
        AppLog::instance().warning(line);
}

} // namespace cli
