#include "engine/diskverification.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {
std::byte poisonFor(const PassPattern &pattern)
{
    switch (pattern.type) {
    case PatternType::Zeros:
        return std::byte{0xFF};
    case PatternType::Custom:
        return ~std::byte{pattern.value};
    case PatternType::Ones:
    case PatternType::Random:
    case PatternType::Complement:
        break;
    }
    return std::byte{0x00};
}
} // namespace

bool DiskVerification::beginPass(qint32 sectorSize)
{
    m_samplesOfPass = 0;
    m_sector = platform::AlignedBuffer(sectorSize);
    return !m_sector.isNull();
}

const std::byte *DiskVerification::read(platform::RawDevice &device, qint64 offset,
                                        const PassPattern &pattern)
{
    const qint64 size = m_sector.size();
    std::memset(m_sector.data(), std::to_integer<int>(poisonFor(pattern)), static_cast<std::size_t>(size));
    if (!device.seek(offset) || device.read(m_sector.data(), size).valueOr(0) != size)
        return nullptr;
    if (pattern.type == PatternType::Random && isZero())
        return nullptr;
    ++m_samples;
    ++m_samplesOfPass;
    const quint64 position = qToLittleEndian(static_cast<quint64>(offset));
    m_hash.addData(QByteArrayView(reinterpret_cast<const char *>(&position), sizeof(position)));
    m_hash.addData(QByteArrayView(reinterpret_cast<const char *>(m_sector.data()), size));
    return m_sector.data();
}

QString DiskVerification::hash() const
{
    return m_samples > 0 ? QString::fromLatin1(m_hash.result().toHex()) : QString();
}

qint64 DiskVerification::reducedOffset(qint64 offset, qint64 span, qint64 length, qint32 sectorSize)
{
    qint64 reduced = offset % std::max<qint64>(span, sectorSize);
    const qint64 whole = length - length % sectorSize;
    if (whole > 0 && reduced >= whole)
        reduced %= whole;
    return reduced - reduced % sectorSize;
}

bool DiskVerification::isZero() const
{
    return std::all_of(m_sector.data(), m_sector.data() + m_sector.size(),
                       [](std::byte b) { return b == std::byte{0}; });
}
