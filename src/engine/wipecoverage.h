#pragma once

#include "engine/byteranges.h"
#include "platform/devices.h"

#include <QList>
#include <QtGlobal>

// What of a drive every pass has reached. Places count, not transfers: what is written under two names is
// covered once.
class WipeCoverage
{
public:
    // How a pass went through a volume: from its start without gaps.
    struct Written
    {
        qint64 length = 0;  // of the volume, bytes
        qint64 covered = 0; // of these, from the first on
    };

    void beginPass();
    // A stretch of the drive itself.
    void addStretch(qint64 begin, qint64 length);
    // A volume of the drive, the same index in every pass. The extents say where it lies; of a volume that
    // begins somewhere inside of them (LVM, encryption) only the amount is known.
    void addVolume(qsizetype index, const QList<platform::Extent> &extents, const Written &written);
    void endPass();

    // Bytes that received all of so many passes: none before the last has ended. Places beyond the end of a
    // drive of that size do not count.
    qint64 bytes(int passCount, qint64 driveSize) const;
    // Bytes that were written somewhere beyond the end of a drive of that size.
    qint64 bytesBeyond(qint64 driveSize) const;

private:
    struct Pass
    {
        ByteRanges ranges;
        QList<qint64> unplaced; // by volume
    };

    Pass m_pass;
    Pass m_all; // what all passes so far have in common
    int m_passes = 0;
};
