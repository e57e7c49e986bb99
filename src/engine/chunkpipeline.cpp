#include "engine/chunkpipeline.h"

#include <QtConcurrent>

#include <cstring>
#include <utility>

ChunkPipeline::ChunkPipeline(Fill fill)
    : m_fill(std::move(fill))
{
    m_pool.setMaxThreadCount(1);
}

ChunkPipeline::~ChunkPipeline()
{
    m_helper.waitForFinished();
}

bool ChunkPipeline::beginPass(const PassPattern &pattern, qint64 chunkLimit)
{
    m_helper.waitForFinished();
    m_pattern = pattern;
    m_filled = 0;
    const auto provide = [chunkLimit](platform::AlignedBuffer &buffer) {
        if (buffer.size() != chunkLimit)
            buffer = platform::AlignedBuffer(chunkLimit);
        return !buffer.isNull();
    };
    return provide(current()) && (!isRandom() || provide(other()));
}

const std::byte *ChunkPipeline::take(qint64 size)
{
    if (isRandom())
        return takeRandom(size);
    Q_ASSERT(size > 0 && size <= current().size());
    if (m_filled < size) {
        m_fill(current().data() + m_filled, size - m_filled, m_pattern);
        m_filled = size;
    }
    return current().data();
}

void ChunkPipeline::prepare(qint64 size)
{
    if (!isRandom() || size <= m_ready)
        return;
    Q_ASSERT(size <= other().size());
    std::byte *from = other().data() + m_ready;
    const qint64 missing = size - m_ready;
    m_ready = size;
    m_helper = QtConcurrent::run(
        &m_pool, [this, from, missing, pattern = m_pattern] { m_fill(from, missing, pattern); });
}

const std::byte *ChunkPipeline::takeRandom(qint64 size)
{
    m_helper.waitForFinished();
    if (m_ready > 0)
        m_current = 1 - m_current;
    Q_ASSERT(size > 0 && size <= current().size());
    const qint64 produced = std::exchange(m_ready, 0);
    if (produced < size) {
        m_fill(current().data() + produced, size - produced, m_pattern);
    } else if (produced > size) {
        // A volume that ended before its known length leaves data over; it comes first in the chunk after
        // this one.
        m_ready = produced - size;
        std::memcpy(other().data(), current().data() + size, static_cast<std::size_t>(m_ready));
    }
    return current().data();
}
