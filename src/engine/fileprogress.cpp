#include "engine/fileprogress.h"

#include <QElapsedTimer>
#include <QMutexLocker>

#include <utility>

namespace {
constexpr qint64 Interval = 100; // ms
}

FileProgress::FileProgress(Report report, Clock clock)
    : m_report(std::move(report))
    , m_clock(std::move(clock))
    , m_lastReport(m_clock())
{}

FileProgress::Clock FileProgress::steadyMilliseconds()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

void FileProgress::beginPass(int pass, int passCount, qint64 bytesPerPass)
{
    m_bytesBefore = (pass - 1) * bytesPerPass;
    m_total = passCount * bytesPerPass;
    m_bytesOfPass = 0;
}

void FileProgress::add(qint64 bytes)
{
    m_bytesOfPass += bytes;
    if (!isDue())
        return;
    const QMutexLocker locker(&m_mutex);
    if (!isDue())
        return;
    m_report(m_bytesBefore + m_bytesOfPass, m_total == 0 ? 1 : m_total);
    m_lastReport = m_clock();
}

bool FileProgress::isDue() const
{
    return m_clock() - m_lastReport > Interval;
}
