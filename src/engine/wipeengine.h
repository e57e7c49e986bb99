#pragma once

#include "model/joboutcome.h"
#include "model/refusal.h"
#include "model/wipetask.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

class BaseWipeWorker;
class QThread;
namespace platform {
class ReleasedVolumes;
struct VolumeRelease;
} // namespace platform

/// Runs one task at a time on its own thread and maintains the task's report. Lives on the interface thread,
/// which needs an event loop; all signals are emitted there. Levels of logMessage: 0 information, 1 warning,
/// 2 error.
class WipeEngine : public QObject
{
    Q_OBJECT

public:
    explicit WipeEngine(QObject *parent = nullptr);
    /// Stops a running job as stop() does, then waits for its thread without a limit, since a transfer cannot
    /// be interrupted.
    ~WipeEngine() override;

    /// The task is not owned. It outlives the job and must not change while the job runs. Refused with
    /// errorOccurred while a job runs.
    void setTask(WipeTask *task);

    /// Deletes a finished task once no worker reads it any more. A stopped worker may still be in a transfer.
    void deleteTask(WipeTask *task);

    /// Prepares the start after the user has confirmed: checks a free-space job for obstacles, calls
    /// releaseVolumes() for a whole-drive job. Without a value the job
    /// may start.
    std::optional<Refusal> makeReady();

    /// Releases the volumes of the drive for a whole-drive job, before start(). The job takes them over and
    /// gives them back when it has written nothing; they are also given back when another task is set, and by
    /// the destructor. Takes as long as the system needs to write out its cache. After a
    /// refusal the drive is unchanged. Nothing is refused for other jobs, which release nothing.
    std::optional<Refusal> releaseVolumes();

    /// Starts the job. A refusal is reported by errorOccurred and changes nothing.
    void start();

    /// Ends the running job: asks the worker to stop, waits at most stopPatience() for it and marks the
    /// report cancelled. completed() still follows for a worker that ends later. Does nothing when no job
    /// runs.
    void stop();

    /// Waits until the job's worker has ended and all its signals were passed on, completed() included.
    /// Returns at once without a worker. There is no limit, since a transfer cannot be interrupted.
    void waitForEnd();

    /// A copy of the task's report; a fresh one without a task. May be called at any time on the interface
    /// thread.
    WipeReport report() const;
    /// The outcome of the task's job, from completed() or stopped() on; failed without a task. A job with
    /// completed(true) and another outcome than complete fell short of something.
    OutcomeRecord outcome() const;
    /// The names of the volumes that the task's job left dismounted, from completed() on.
    QStringList dismountedVolumes() const;
    bool isRunning() const { return m_running; }

    /// The longest wait of stop(), 5000 ms unless set.
    std::chrono::milliseconds stopPatience() const { return m_stopPatience; }
    void setStopPatience(std::chrono::milliseconds patience) { m_stopPatience = patience; }

    /// The probe returns whether the user already wants the job to stop. start() calls it on the interface
    /// thread just before the worker runs, because a stop() after start() may come too late. The job then
    /// ends as cancelled and has touched nothing.
    void setStopProbe(std::function<bool()> isStopWanted) { m_isStopWanted = std::move(isStopWanted); }

    /// The time for the report and the speeds, the system's unless set.
    using Clock = std::function<QDateTime()>;
    void setClock(Clock clock) { m_clock = std::move(clock); }

signals:
    /// Percent of all passes, 0 to 100.
    void progressChanged(int percent);
    /// A pass begins; currentPass counts from 1.
    void passChanged(int currentPass, int totalPasses);
    /// total is always 0.
    void bytesProcessed(qint64 bytes, qint64 total);
    /// At most once a second.
    void speedUpdated(double bytesPerSecond);
    void started();
    void paused();  ///< reserved
    void resumed(); ///< reserved
    /// stop() has marked the job cancelled.
    void stopped();
    /// The job's worker has ended. May follow stopped().
    void completed(bool success);
    void logMessage(const QString &message, int level);
    /// The translated reason of a refusal or of a failing job.
    void errorOccurred(const QString &error);
    void verificationStarted();              ///< reserved
    void verificationProgress(int percent);  ///< reserved
    void verificationCompleted(bool passed); ///< reserved

private slots:
    void onWorkerProgress(double percent);
    void onWorkerPassChanged(int pass, int totalPasses);
    void onWorkerBytesWritten(qint64 bytes);
    void onWorkerFinished(bool success);
    void onWorkerError(const QString &error);
    void onWorkerLogMessage(const QString &message, int level);

private:
    void beginReport();
    BaseWipeWorker *makeWorker();
    BaseWipeWorker *makeDiskWorker();
    bool createWorker();
    static QString releaseProblem(const platform::VolumeRelease &release);
    void connectWorker();
    void cleanUpThread();
    /// Wraps a slot so that it ignores signals of earlier jobs. Signals that the worker of an earlier job
    /// left in the event queue, its "finished" included, would otherwise count for the next job.
    template <typename... Args>
    auto forThisJob(void (WipeEngine::*slot)(Args...))
    {
        return [this, slot, job = m_job](Args... args) {
            if (job == m_job)
                (this->*slot)(args...);
        };
    }

    QPointer<WipeTask> m_task;
    std::unique_ptr<platform::ReleasedVolumes> m_released; ///< until the job's worker has them
    quint64 m_job = 0;                  ///< counts the jobs, and the changes of task between them
    BaseWipeWorker *m_worker = nullptr; ///< deleted when its thread ends
    QThread *m_thread = nullptr;
    bool m_running = false;
    bool m_paused = false;
    bool m_stopRequested = false;
    double m_progress = 0;
    int m_currentPass = 0;
    int m_totalPasses = 0;
    qint64 m_bytesWritten = 0;
    qint64 m_totalBytes = 0;
    QDateTime m_startTime;
    qint64 m_lastSpeedBytes = 0;
    QDateTime m_lastSpeedTime;
    double m_currentSpeed = 0;
    QString m_lastError;
    std::chrono::milliseconds m_stopPatience{5000};
    std::function<bool()> m_isStopWanted;
    Clock m_clock = [] { return QDateTime::currentDateTime(); };
};
