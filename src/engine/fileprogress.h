#pragma once

#include <QElapsedTimer>
#include <QMutex>
#include <QtGlobal>

#include <atomic>
#include <functional>

// How far a file job has come. Threads that write side by side add to it; it reports ten times a second at
// most.
class FileProgress
{
public:
    // Bytes over all passes; total is never 0. From the thread that adds, one at a time.
    using Report = std::function<void(qint64 done, qint64 total)>;

    explicit FileProgress(Report report);

    // Between passes, while nobody adds. pass counts from 1.
    void beginPass(int pass, int passCount, qint64 bytesPerPass);
    void add(qint64 bytes);

    qint64 bytesOfPass() const { return m_bytesOfPass; }

private:
    bool isDue() const;

    Report m_report;
    qint64 m_bytesBefore = 0; // in earlier passes
    qint64 m_total = 0;
    std::atomic<qint64> m_bytesOfPass{0};

    QElapsedTimer m_clock;               // only read after construction
    std::atomic<qint64> m_lastReport{0}; // reading of that clock, in ms
    QMutex m_mutex;
};
