#pragma once

#include "model/wipemethod.h"
#include "platform/alignedbuffer.h"

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <functional>
#include <thread>

// The data of a job's passes, chunk by chunk, in page-aligned memory. What is constant over a pass is put
// into memory once. Random data for the next chunk is produced on a helper thread while the caller writes the
// current one, so that a random pass takes the time of the slower of the two; its bytes are those of filling
// every chunk just before its write. At most two buffers are held.
//
// A Complement pass consists of the complement of what the pass before left in the buffer.
//
// Used by one thread. From prepare() until the next take() the fill function may run on the helper thread,
// and whatever generator it draws from belongs to it.
class ChunkPipeline
{
public:
    using Fill = std::function<void(std::byte *data, qint64 size, const PassPattern &pattern)>;

    explicit ChunkPipeline(Fill fill);
    // Waits for the helper.
    ~ChunkPipeline();
    ChunkPipeline(const ChunkPipeline &) = delete;
    ChunkPipeline &operator=(const ChunkPipeline &) = delete;

    // Begins a pass whose chunks have at most chunkLimit bytes. False when there is no memory for it.
    bool beginPass(const PassPattern &pattern, qint64 chunkLimit);

    // The next size bytes of the pass (1 to chunkLimit), valid until the following take() or beginPass().
    const std::byte *take(qint64 size);

    // Begins to produce the chunk that follows the one taken, expected to have so many bytes (0 to
    // chunkLimit; 0 does nothing). The next take() may ask for fewer or more.
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
    qint64 m_filled = 0;  // of the current buffer, in a pass that is not random
    qint64 m_ready = 0;   // of the other buffer, produced or being produced ahead
    std::thread m_helper; // joinable while it may run
};
