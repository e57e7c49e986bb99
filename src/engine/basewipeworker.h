#pragma once

#include "engine/patterngenerator.h"
#include "engine/runningjob.h"
#include "model/wipemethod.h"

#include <QMutex>
#include <QObject>
#include <QString>
#include <QWaitCondition>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>

class WipeTask;

/// The common part of the three workers: the signals, stopping and pausing, the buffer fill and check of one
/// pass, and the progress figures. A worker is created on the interface thread, moved to its own thread, runs
/// process() once and ends it with exactly one finished().
///
/// Levels of logMessage: 0 information, 1 warning, 2 error.
class BaseWipeWorker : public QObject, protected RunningJob
{
    Q_OBJECT

public:
    /// The task is not owned and outlives the worker. It is not changed while the worker runs, except for its
    /// report through WipeTask::updateReport.
    explicit BaseWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~BaseWipeWorker() override;

    /// Ends the job at its next check. May be called from any thread; wakes a worker that is paused or
    /// waiting.
    void stop();

    /// The clock for the speed figures: the steady clock of the system unless another is set before
    /// process().
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    void setClock(Clock clock);

public slots:
    /// Runs the job on the current thread.
    virtual void process() = 0;

signals:
    /// Percent of all passes, 0 to 100.
    void progressChanged(int percent);
    /// A pass begins; currentPass counts from 1.
    void passChanged(int currentPass, int totalPasses);
    /// The progress in bytes over all passes.
    void bytesWritten(qint64 bytes);
    void speedUpdated(double bytesPerSecond);
    /// The last signal of the worker.
    void finished(bool success);
    /// The translated reason why the job fails.
    void errorOccurred(const QString &error);
    void logMessage(const QString &message, int level);

protected:
    /// The body of process(): run(), then complete() even after a failure, then finished(). A job that runs
    /// out of memory has failed.
    void runJob();
    /// Runs the job; finished() carries the result.
    virtual bool run() = 0;
    /// Releases the resources of the job and writes its results into the task's report.
    virtual void complete() = 0;

    // For the parts of the job. diagnose() is left to each worker, which puts its own name before the line.
    void note(const QString &message, NoteLevel level = Information) override;
    void reportError(const QString &message) override;
    void noteShortfall(const Shortfall &shortfall) override;
    void noteWritten(qint64 bytes) override;
    bool isStopping() const override { return isStopRequested(); }
    bool mayGoOn() override { return checkPauseStop(); }
    bool wait(std::chrono::milliseconds time) override { return waitUnlessStopped(time); }
    void fill(std::byte *data, qint64 size, const PassPattern &pattern) override;
    void fillFrom(PatternGenerator &random, std::byte *data, qint64 size,
                  const PassPattern &pattern) override;
    bool matches(const std::byte *data, qint64 size, const PassPattern &pattern) const override;
    quint32 drawSeed() override { return m_random.generate(); }
    void progress(qint64 done, qint64 total) override { updateProgress(done, total); }

    WipeTask &task() const { return *m_task; }
    bool isStopRequested() const { return m_stopRequested.load(); }

    /// Waits while paused. Returns false when the job has to end.
    bool checkPauseStop();

    /// Waits for the given time or until a stop is requested. Returns false after a stop.
    bool waitUnlessStopped(std::chrono::milliseconds time);

    /// Fills the buffer for one pass; Random data comes from the worker's own generator.
    void fillBuffer(std::byte *buffer, qint64 size, const PassPattern &pattern);
    /// Fills a buffer on a pool thread, which brings its own generator.
    static void fillBuffer(std::byte *buffer, qint64 size, const PassPattern &pattern,
                           PatternGenerator &random);

    /// Whether a buffer read back holds the data of the pass. True for an empty buffer, and for the
    /// unpredictable patterns (Random, Complement).
    static bool verifyBuffer(const std::byte *buffer, qint64 size, const PassPattern &pattern);

    /// Notes in the task when the passes are not read back, or when reading them back proves nothing.
    /// readsBack: the worker reads passes back on request.
    void noteReadBack(bool readsBack);

    /// Reports percent, bytes and speed. Both counts are bytes of the current pass; a total of 0 reports only
    /// 0 percent. One thread at a time.
    void updateProgress(qint64 done, qint64 total);

    int m_currentPass = 0;
    int m_totalPasses = 0;
    qint64 m_bytesBeforePass = 0;
    std::atomic<bool> m_paused{false};

private:
    WipeTask *m_task;
    std::atomic<bool> m_stopRequested{false};
    QMutex m_pauseMutex;
    QWaitCondition m_pauseCondition;
    PatternGenerator m_random;
    Clock m_clock = std::chrono::steady_clock::now;
    std::chrono::steady_clock::time_point m_lastSpeedTime = m_clock();
    qint64 m_lastSpeedBytes = 0;
};
