#pragma once

#include "cli/records/recordkeeping.h"
#include "jobs/jobend.h"

#include <QString>
#include <QtGlobal>

class WipeTask;

namespace cli {

/// The levels of log lines; a lower level is information.
inline constexpr int WarningLevel = 1;
inline constexpr int ErrorLevel = 2;

struct JobProgress
{
    int percent = 0;
    int pass = 0; ///< from 1
    int passes = 0;
    qint64 bytes = 0;          ///< bytes written in all passes so far
    double bytesPerSecond = 0; ///< 0 while unknown
};

struct JobResult
{
    bool wasStarted = false; ///< false: the job was refused and nothing was written
    QString lastError;       ///< in words for the user
    JobEnd end;              ///< only valid for a job that was started
};

/// Shows a running job to a person or a program. Called on the thread of the command.
class JobView
{
public:
    JobView() = default;
    virtual ~JobView() = default;
    JobView(const JobView &) = delete;
    JobView &operator=(const JobView &) = delete;

    virtual void started(const WipeTask &task, const QString &target) = 0;
    virtual void passChanged(int pass, int passes) = 0;
    /// Called at most ten times a second.
    virtual void progress(const JobProgress &progress) = 0;
    /// A line of the job's log.
    virtual void log(const QString &message, int level) = 0;
    /// An error of the engine. The log has a line about it too, unless the engine refused the job.
    virtual void engineError(const QString &message) = 0;
    /// A failure outside the job.
    virtual void problem(const QString &message) = 0;
    /// The last call for a job, with the places of its records.
    virtual void finished(const JobResult &result, const RecordKeeping::Written &written) = 0;
};

} // namespace cli
