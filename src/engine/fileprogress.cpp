#include "engine/fileprogress.h"

#include <QMutexLocker>

#include <utility>

namespace {
constexpr qint64 Interval = 100; // ms
}

FileProgress::FileProgress(Report report)
    : m_report(std::move(report))
{
    m_clock.start();
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
    m_lastReport = m_clock.elapsed();
}

bool FileProgress::isDue() const
{
    return m_clock.elapsed() - m_lastReport > Interval;
}
