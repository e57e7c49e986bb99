#pragma once

#include "model/wipemethod.h"
#include "platform/alignedbuffer.h"
#include "platform/devices.h"

#include <QCryptographicHash>
#include <QString>
#include <QtGlobal>

#include <cstddef>

/// Reads sample sectors back from a device and collects the samples of all passes for the report of the job.
/// One thread at a time.
class DiskVerification
{
public:
    /// Prepares the sample buffer for a pass. Returns false when there is no memory for it.
    bool beginPass(qint32 sectorSize);

    /// The sector at offset (bytes, whole sectors), valid until the next call; null when it could not be read
    /// in full. A device may claim success and deliver nothing. The buffer then holds bytes that fail the
    /// check of every fixed pattern. Random data cannot be checked, so for it a sector of zeros counts as not
    /// read.
    const std::byte *read(platform::RawDevice &device, qint64 offset, const PassPattern &pattern);

    /// Sectors read back since construction, and since the last beginPass().
    int samples() const { return m_samples; }
    int samplesOfPass() const { return m_samplesOfPass; }

    /// Lower-case hexadecimal SHA-256 over all samples, each preceded by its offset as 8 bytes little-endian.
    /// Empty when there were none.
    QString hash() const;

    /// The offset of a sample on a device, in whole sectors, for an offset of the whole disk. span is the
    /// part of the disk that the device stands for. length is the size of the device itself, 0 when unknown.
    /// Volumes of one disk differ in size, so the length keeps samples inside a small one.
    static qint64 reducedOffset(qint64 offset, qint64 span, qint64 length, qint32 sectorSize);

private:
    bool isZero() const;

    platform::AlignedBuffer m_sector;
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    int m_samples = 0;
    int m_samplesOfPass = 0;
};
