#include "engine/chunkpipeline.h"

#include <QDebug>

#include <cstring>
#include <system_error>
#include <utility>

ChunkPipeline::ChunkPipeline(Fill fill)
    : m_fill(std::move(fill))
{}

ChunkPipeline::~ChunkPipeline()
{
    waitForHelper();
}

bool ChunkPipeline::beginPass(const PassPattern &pattern, qint64 chunkLimit)
{
    waitForHelper();
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
    waitForHelper();
    std::byte *from = other().data() + m_ready;
    const qint64 missing = size - m_ready;
    // Not a pool thread: QThreadPool waits for ever for a thread that the system refuses.
    try {
        m_helper =
            std::thread([this, from, missing, pattern = m_pattern] { m_fill(from, missing, pattern); });
        m_ready = size;
    } catch (const std::system_error &refused) {
        qDebug() << "[ChunkPipeline] no helper thread:" << refused.what(); // take() produces the chunk itself
    }
}

void ChunkPipeline::waitForHelper()
{
    if (m_helper.joinable())
        m_helper.join();
}

const std::byte *ChunkPipeline::takeRandom(qint64 size)
{
    waitForHelper();
    if (m_ready > 0)
        m_current = 1 - m_current;
    Q_ASSERT(size > 0 && size <= current().size());
    const qint64 produced = std::exchange(m_ready, 0);
    if (produced < size) {
        m_fill(current().data() + produced, size - produced, m_pattern);
    } else if (produced > size) {
        // A volume that ended before its expected length leaves bytes over; they start the chunk after this
        // one.
        m_ready = produced - size;
        std::memcpy(other().data(), current().data() + size, static_cast<std::size_t>(m_ready));
    }
    return current().data();
}
