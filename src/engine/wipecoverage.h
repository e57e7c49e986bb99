#pragma once

#include <QList>
#include <QtGlobal>

#include <algorithm>

// How much of a job's targets (a drive, or volumes) every pass has reached. A pass goes through a target from
// its start without gaps, so that one byte count says what it covered.
class WipeCoverage
{
public:
    // One entry per target, the same targets for every pass. A target that the pass did not reach has 0.
    void addPass(const QList<qint64> &bytesPerTarget)
    {
        if (m_passes++ == 0) {
            m_bytes = bytesPerTarget;
            return;
        }
        Q_ASSERT(bytesPerTarget.size() == m_bytes.size());
        for (qsizetype i = 0; i < m_bytes.size(); ++i)
            m_bytes[i] = std::min(m_bytes[i], bytesPerTarget[i]);
    }

    // The 512-byte units that received all of so many passes: none before the last has begun.
    quint64 sectors(int passCount) const
    {
        quint64 sum = 0;
        for (const qint64 bytes : m_bytes)
            sum += static_cast<quint64>(bytes) >> 9;
        return m_passes >= passCount ? sum : 0;
    }

private:
    QList<qint64> m_bytes;
    int m_passes = 0;
};
