#pragma once

#include <QtGlobal>

#include <cstddef>
#include <utility>

namespace platform {

/// Memory for unbuffered device transfers. It begins on a page boundary. The size is kept in bytes as
/// requested; the allocation itself is whole pages. The contents are zero after allocation.
///
/// Windows: VirtualAlloc(MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE) and VirtualFree(MEM_RELEASE). Linux: an
/// anonymous private mapping, aligned_alloc for small buffers. Movable, not copyable; released on
/// destruction. One thread at a time.
class AlignedBuffer
{
public:
    AlignedBuffer() = default;
    /// On failure the buffer is null; nothing is thrown. A size below 1 gives a null buffer.
    explicit AlignedBuffer(qint64 size);
    ~AlignedBuffer();
    AlignedBuffer(AlignedBuffer &&other) noexcept
        : m_data(std::exchange(other.m_data, nullptr))
        , m_size(std::exchange(other.m_size, 0))
    {}
    AlignedBuffer &operator=(AlignedBuffer &&other) noexcept
    {
        std::swap(m_data, other.m_data);
        std::swap(m_size, other.m_size);
        return *this;
    }
    AlignedBuffer(const AlignedBuffer &) = delete;
    AlignedBuffer &operator=(const AlignedBuffer &) = delete;

    bool isNull() const { return m_data == nullptr; }
    std::byte *data() { return m_data; }
    const std::byte *data() const { return m_data; }
    qint64 size() const { return m_size; }

private:
    std::byte *m_data = nullptr;
    qint64 m_size = 0;
};

} // namespace platform
