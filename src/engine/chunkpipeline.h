#pragma once

#include "model/wipemethod.h"
#include "platform/alignedbuffer.h"

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <functional>
#include <thread>

/// Produces the data of a job's passes, chunk by chunk, in page-aligned memory. The data of a constant pass
/// is put into memory once. A helper thread produces the random data of the next chunk while the caller
/// writes the current one, so that a random pass takes the time of the slower of the two. The random bytes
/// are the same as without the helper. At most two buffers are held.
///
/// A Complement pass writes the complement of the data that the pass before left in the buffer.
///
/// Used by one thread. From prepare() until the next take() the fill function may run on the helper thread
/// and has its generator to itself.
class ChunkPipeline
{
public:
    /// Fills size bytes of data with the pattern.
    using Fill = std::function<void(std::byte *data, qint64 size, const PassPattern &pattern)>;

    explicit ChunkPipeline(Fill fill);
    /// Waits for the helper thread.
    ~ChunkPipeline();
    ChunkPipeline(const ChunkPipeline &) = delete;
    ChunkPipeline &operator=(const ChunkPipeline &) = delete;

    /// Begins a pass whose chunks have at most chunkLimit bytes. Returns false when there is no memory for
    /// it.
    bool beginPass(const PassPattern &pattern, qint64 chunkLimit);

    /// The next size bytes of the pass (1 to chunkLimit), valid until the following take() or beginPass().
    const std::byte *take(qint64 size);

    /// Begins to produce the next chunk with the expected size (0 to chunkLimit bytes; 0 does nothing). The
    /// next take() may ask for fewer or more bytes.
    void prepare(qint64 size);

private:
    bool isRandom() const { return m_pattern.type == PatternType::Random; }
    platform::AlignedBuffer &current() { return m_buffers[m_current]; }
    platform::AlignedBuffer &other() { return m_buffers[1 - m_current]; }
    const std::byte *takeRandom(qint64 size);
    void waitForHelper();

    Fill m_fill;
    PassPattern m_pattern;
    std::array<platform::AlignedBuffer, 2> m_buffers;
    std::size_t m_current = 0;
    qint64 m_filled = 0;  ///< bytes of the current buffer, in a pass that is not random
    qint64 m_ready = 0;   ///< bytes of the other buffer that are produced ahead, or being produced
    std::thread m_helper; ///< joinable while it may run
};
