#pragma once

#include <QMutex>
#include <QtGlobal>

#include <atomic>
#include <functional>

/// The progress of a file job. The writing threads add to it side by side. It reports when more than 100 ms
/// have passed since its last report, or since its construction.
class FileProgress
{
public:
    /// Bytes over all passes; total is never 0. Called on the thread that adds, one at a time.
    using Report = std::function<void(qint64 done, qint64 total)>;

    /// A monotonic time in ms; called on any thread.
    using Clock = std::function<qint64()>;

    explicit FileProgress(Report report, Clock clock = steadyMilliseconds());

    /// Called between passes, while no thread adds. pass counts from 1.
    void beginPass(int pass, int passCount, qint64 bytesPerPass);
    /// Adds bytes written in the current pass; called on any thread.
    void add(qint64 bytes);

    qint64 bytesOfPass() const { return m_bytesOfPass; }

private:
    static Clock steadyMilliseconds();
    bool isDue() const;

    Report m_report;
    Clock m_clock;
    qint64 m_bytesBefore = 0; ///< bytes of earlier passes
    qint64 m_total = 0;
    std::atomic<qint64> m_bytesOfPass{0};

    std::atomic<qint64> m_lastReport; ///< reading of the clock
    QMutex m_mutex;
};
