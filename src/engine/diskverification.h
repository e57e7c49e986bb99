#pragma once

#include "model/wipemethod.h"
#include "platform/alignedbuffer.h"
#include "platform/devices.h"

#include <QCryptographicHash>
#include <QString>
#include <QtGlobal>

#include <cstddef>

// Reads sample sectors back from a device and keeps, over all passes of a job, what its report tells about
// them. One thread at a time.
class DiskVerification
{
public:
    // Sets the sample buffer up for a pass. False when there is no memory for it.
    bool beginPass(qint32 sectorSize);

    // The sector at offset (bytes, whole sectors), valid until the next call; null when it could not be read
    // in full. A device that claims success and delivers nothing leaves bytes that no check of the pattern
    // accepts; for random data, which no check can tell, that is a sector of zeros, and it counts as not
    // read.
    const std::byte *read(platform::RawDevice &device, qint64 offset, const PassPattern &pattern);

    // Sectors read back since construction, and since the last beginPass().
    int samples() const { return m_samples; }
    int samplesOfPass() const { return m_samplesOfPass; }

    // Lower-case hexadecimal SHA-256 over all samples, each preceded by its offset as 8 bytes little-endian.
    // Empty when there were none.
    QString hash() const;

    // Where on a device the sample for an offset of the whole disk is taken, in whole sectors. span is the
    // part of the disk that the device stands for. length is what the device itself offers, 0 when that is
    // unknown: volumes of one disk differ in size, and behind the end of a small one there is nothing to
    // read.
    static qint64 reducedOffset(qint64 offset, qint64 span, qint64 length, qint32 sectorSize);

private:
    bool isZero() const;

    platform::AlignedBuffer m_sector;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    int m_samples = 0;
    int m_samplesOfPass = 0;
};
