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

// What the three workers share: the signals, stopping and pausing, the fill and the check of one pass, and
// the progress figures. A worker is made on the interface thread, moved to a thread of its own, runs
// process() once and ends it with exactly one finished().
//
// Levels of logMessage: 0 information, 1 warning, 2 error.
class BaseWipeWorker : public QObject, protected RunningJob
{
    Q_OBJECT

public:
    // The task is not owned and outlives the worker; nobody changes it while the worker runs, except its
    // report through WipeTask::updateReport.
    explicit BaseWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~BaseWipeWorker() override;

    // Ends the job at its next check. Any thread; wakes a worker that is paused or waiting.
    void stop();

    // What speeds are measured by, the system's steady clock unless set before process().
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    void setClock(Clock clock);

public slots:
    virtual void process() = 0;

signals:
    void progressChanged(int percent);
    void passChanged(int currentPass, int totalPasses);
    void bytesWritten(qint64 bytes);
    void speedUpdated(double bytesPerSecond);
    void finished(bool success);
    void errorOccurred(const QString &error);
    void logMessage(const QString &message, int level);

protected:
    // What process() does: run(), then complete() whichever way that ended, then finished(). A job that ends
    // for want of memory has failed.
    void runJob();
    // The job; its result is what finished() carries.
    virtual bool run() = 0;
    // Lets go of what the job held, and writes what it did into the task's report.
    virtual void complete() = 0;

    // What the parts of the job call. Each worker labels its own diagnostics.
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

    // Waits while paused. True to go on, false to give up.
    bool checkPauseStop();

    // Waits for the time given or until a stop, whichever comes first. False when a stop is requested.
    bool waitUnlessStopped(std::chrono::milliseconds time);

    // Fills the buffer for one pass; Random data comes from the worker's own generator.
    void fillBuffer(std::byte *buffer, qint64 size, const PassPattern &pattern);
    // The same for a pool thread, which brings a generator of its own.
    static void fillBuffer(std::byte *buffer, qint64 size, const PassPattern &pattern,
                           PatternGenerator &random);

    // Whether a buffer read back is what the pass wrote. An empty buffer passes, and so does everything whose
    // content cannot be predicted (Random, Complement).
    static bool verifyBuffer(const std::byte *buffer, qint64 size, const PassPattern &pattern);

    // Tells the task that what the method writes is read back by nobody, or to no use. readsBack: the worker
    // reads passes back when it is asked to.
    void noteReadBack(bool readsBack);

    // Reports percent, bytes and speed. Both counts are bytes of the current pass; total 0 reports 0 percent
    // alone. One thread at a time.
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
