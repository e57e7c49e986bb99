#pragma once

#include "cli/records/recordkeeping.h"
#include "jobs/jobend.h"

#include <QString>
#include <QtGlobal>

class WipeTask;

namespace cli {

// Levels of the lines of a job's log.
inline constexpr int WarningLevel = 1;
inline constexpr int ErrorLevel = 2;

struct JobProgress
{
    int percent = 0;
    int pass = 0; // from 1
    int passes = 0;
    qint64 bytes = 0;          // written so far, over all passes
    double bytesPerSecond = 0; // 0 as long as it is unknown
};

struct JobResult
{
    bool wasStarted = false; // else the job was refused, nothing was written
    QString lastError;       // in words for the user
    JobEnd end;              // of a job that was started
};

// Shows a running job to a person or to a program. On the thread that runs the command.
class JobView
{
public:
    JobView() = default;
    virtual ~JobView() = default;
    JobView(const JobView &) = delete;
    JobView &operator=(const JobView &) = delete;

    virtual void started(const WipeTask &task, const QString &target) = 0;
    virtual void passChanged(int pass, int passes) = 0;
    // At most ten times a second.
    virtual void progress(const JobProgress &progress) = 0;
    // A level below WarningLevel is information.
    virtual void log(const QString &message, int level) = 0;
    // What the engine reports as an error; a line of the log tells it too, unless the engine refused the job.
    virtual void engineError(const QString &message) = 0;
    // Something outside the job went wrong.
    virtual void problem(const QString &message) = 0;
    // The last of a job, with where its records went.
    virtual void finished(const JobResult &result, const RecordKeeping::Written &written) = 0;
};

} // namespace cli
