#pragma once

#include "model/joboutcome.h"
#include "model/wipetask.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

class BaseWipeWorker;
class QThread;
namespace platform {
class ReleasedVolumes;
struct VolumeRelease;
} // namespace platform

// Runs one task at a time on a thread of its own and keeps the task's report. Lives on the interface thread,
// which needs an event loop: all signals are emitted there. Levels of logMessage: 0 information, 1 warning, 2
// error.
class WipeEngine : public QObject
{
    Q_OBJECT

public:
    explicit WipeEngine(QObject *parent = nullptr);
    // Stops a running job as stop() does and waits for its thread, however long its last transfer takes.
    ~WipeEngine() override;

    // The task is not owned; it outlives the job and is not changed while the job runs. Refused with
    // errorOccurred while a job runs.
    void setTask(WipeTask *task);

    // Deletes a task that is done with, as soon as no worker reads it any more: one that was told to stop may
    // still be in a transfer.
    void deleteTask(WipeTask *task);

    // What has to be settled between the question and start(): a free-space job is asked whether anything is
    // in its way, for a job on a whole drive releaseVolumes(). Answers as that.
    QString makeReady();

    // Takes the volumes off the drive of a job on all of it, before start(), which leaves them to the job: it
    // gives them back when it ends without having written anything. Given back as well when another task is
    // set and with the engine. Takes as long as the system needs to write out what it holds back. Returns
    // what is in the way, in words for the user; nothing is started then and the drive is as it was. Empty
    // after success, and for other jobs, of which nothing is released.
    QString releaseVolumes();

    // Starts the job; a refusal is told by errorOccurred and leaves everything as it was.
    void start();

    // Ends the running job: asks the worker to stop, waits at most stopPatience() for it and marks the report
    // cancelled. A worker that ends only after that is still reported by completed(). Nothing happens when no
    // job runs.
    void stop();

    // Returns when the job's worker has ended and everything it has sent was passed on, completed() included;
    // at once without one. However long its last transfer takes.
    void waitForEnd();

    // A copy of the task's report; without a task a fresh one. Any time on the interface thread.
    WipeReport report() const;
    // How the task's job went, from completed() or stopped() on; failed without a task. Completed and yet not
    // complete is a job that fell short of something.
    OutcomeRecord outcome() const;
    // What the task's job has left dismounted, by name, from completed() on.
    QStringList dismountedVolumes() const;
    bool isRunning() const { return m_running; }

    // The longest wait of stop(), 5000 ms unless set.
    std::chrono::milliseconds stopPatience() const { return m_stopPatience; }
    void setStopPatience(std::chrono::milliseconds patience) { m_stopPatience = patience; }

    // Asked by start() just before the worker runs, on the interface thread: whether the user already wants
    // the job to stop. Then the job ends as cancelled and has touched nothing; stop(), which can only be
    // called behind start(), may come too late for that.
    void setStopProbe(std::function<bool()> isStopWanted) { m_isStopWanted = std::move(isStopWanted); }

    // The time of the report and of the speeds, the system's unless set.
    using Clock = std::function<QDateTime()>;
    void setClock(Clock clock) { m_clock = std::move(clock); }

signals:
    void progressChanged(int percent);
    void passChanged(int currentPass, int totalPasses);
    // The second figure is always 0.
    void bytesProcessed(qint64 bytes, qint64 total);
    // At most once a second.
    void speedUpdated(double bytesPerSecond);
    void started();
    void paused();  // reserved
    void resumed(); // reserved
    void stopped();
    // The job's worker has ended. May follow stopped().
    void completed(bool success);
    void logMessage(const QString &message, int level);
    void errorOccurred(const QString &error);
    void verificationStarted();              // reserved
    void verificationProgress(int percent);  // reserved
    void verificationCompleted(bool passed); // reserved

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
    // A slot that hears only the job that is current when the connection is made. What the worker of an
    // earlier job left in the event queue would otherwise be taken for the next job's, its "finished"
    // included.
    template <typename... Args>
    auto forThisJob(void (WipeEngine::*slot)(Args...))
    {
        return [this, slot, job = m_job](Args... args) {
            if (job == m_job)
                (this->*slot)(args...);
        };
    }

    QPointer<WipeTask> m_task;
    std::unique_ptr<platform::ReleasedVolumes> m_released; // until the job's worker has them
    quint64 m_job = 0;                  // counts the jobs, and the changes of task between them
    BaseWipeWorker *m_worker = nullptr; // deleted by the end of its thread
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
