#include "engine/wipecoverage.h"

#include <algorithm>
#include <numeric>

namespace {

qint64 totalLength(const QList<platform::Extent> &extents)
{
    return std::accumulate(
        extents.begin(), extents.end(), qint64{0},
        [](qint64 sum, const platform::Extent &extent) { return sum + std::max<qint64>(extent.length, 0); });
}

// Whether the volume consists of its extents, one behind the other, with equal total length. A difference
// below one sector comes from rounding to whole sectors, and the largest sector has 4096 bytes.
bool liesExactlyOn(const QList<platform::Extent> &extents, qint64 length)
{
    const qint64 excess = totalLength(extents) - length;
    return excess >= 0 && excess < 4096;
}

} // namespace

void WipeCoverage::beginPass()
{
    m_pass = {};
}

void WipeCoverage::addStretch(qint64 begin, qint64 length)
{
    m_pass.ranges.add({begin, begin + length});
}

void WipeCoverage::addVolume(qsizetype index, const QList<platform::Extent> &extents, const Written &written)
{
    // Of a file system on several devices only the first is written.
    const bool isFirst = !extents.isEmpty() && liesExactlyOn(extents.first(1), written.length);
    if (!isFirst && !liesExactlyOn(extents, written.length)) {
        m_pass.unplaced.resize(std::max(m_pass.unplaced.size(), index + 1));
        m_pass.unplaced[index] = written.covered;
        return;
    }
    qint64 left = written.covered;
    for (const platform::Extent &extent : extents) {
        const qint64 here = std::min(left, extent.length);
        if (extent.diskNumber == extents.first().diskNumber)
            addStretch(extent.startingOffset, here);
        left -= here;
    }
}

void WipeCoverage::endPass()
{
    if (m_passes++ == 0) {
        m_all = m_pass;
        return;
    }
    m_all.ranges = m_all.ranges.intersected(m_pass.ranges);
    // A pass that did not reach a volume has no amount for it.
    m_all.unplaced.resize(std::min(m_all.unplaced.size(), m_pass.unplaced.size()));
    for (qsizetype i = 0; i < m_all.unplaced.size(); ++i)
        m_all.unplaced[i] = std::min(m_all.unplaced[i], m_pass.unplaced[i]);
}

qint64 WipeCoverage::bytes(int passCount, qint64 driveSize) const
{
    if (m_passes < passCount)
        return 0;
    ByteRanges drive;
    drive.add({0, driveSize});
    const qint64 placed = m_all.ranges.intersected(drive).length();
    const qint64 unplaced = std::accumulate(m_all.unplaced.begin(), m_all.unplaced.end(), qint64{0});
    return std::min(placed + unplaced, driveSize);
}

qint64 WipeCoverage::bytesBeyond(qint64 driveSize) const
{
    ByteRanges drive;
    drive.add({0, driveSize});
    const qint64 placed = m_all.ranges.length();
    const qint64 within = m_all.ranges.intersected(drive).length();
    const qint64 unplaced = std::accumulate(m_all.unplaced.begin(), m_all.unplaced.end(), qint64{0});
    return placed - within + std::max<qint64>(within + unplaced - driveSize, 0);
}
