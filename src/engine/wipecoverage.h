#pragma once

#include "engine/byteranges.h"
#include "platform/devices.h"

#include <QList>
#include <QtGlobal>

/// The bytes of a drive that every pass has reached. Places are counted, not transfers, so that bytes written
/// through two volume names count once.
class WipeCoverage
{
public:
    /// The extent of a pass in one volume, from its start without gaps.
    struct Written
    {
        qint64 length = 0;  ///< of the volume, bytes
        qint64 covered = 0; ///< bytes from the start that were written
    };

    void beginPass();
    /// Adds a range of the drive itself.
    void addStretch(qint64 begin, qint64 length);
    /// Adds a volume of the drive; its index is the same in every pass. The extents are its place on the
    /// drives. A volume that begins somewhere inside its extents (LVM, encryption) counts by amount only.
    void addVolume(qsizetype index, const QList<platform::Extent> &extents, const Written &written);
    void endPass();

    /// Bytes that received all passCount passes; 0 before the last one has ended. Places beyond driveSize do
    /// not count.
    qint64 bytes(int passCount, qint64 driveSize) const;
    /// Bytes written beyond driveSize.
    qint64 bytesBeyond(qint64 driveSize) const;

private:
    struct Pass
    {
        ByteRanges ranges;
        QList<qint64> unplaced; ///< by volume
    };

    Pass m_pass;
    Pass m_all; ///< intersection of all passes so far
    int m_passes = 0;
};
