#include "platform/alignedbuffer.h"

#include <sys/mman.h>

#include <cstdlib>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t Page = 4096;
// Unmapping interrupts every other processor that runs the program, which takes longer than filling a small
// buffer.
constexpr qint64 LargestFromHeap = 64LL * 1024;

std::size_t wholePages(qint64 size)
{
    return (static_cast<std::size_t>(size) + Page - 1) / Page * Page;
}

} // namespace

AlignedBuffer::AlignedBuffer(qint64 size)
{
    if (size < 1)
        return;
    if (size <= LargestFromHeap) {
        m_data = static_cast<std::byte *>(std::aligned_alloc(Page, wholePages(size)));
        if (!m_data)
            return;
        std::memset(m_data, 0, static_cast<std::size_t>(size));
        m_size = size;
        return;
    }
    void *const memory = ::mmap(nullptr, static_cast<std::size_t>(size), PROT_READ | PROT_WRITE,
                                MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return;
    m_data = static_cast<std::byte *>(memory);
    m_size = size;
}

AlignedBuffer::~AlignedBuffer()
{
    if (m_size <= LargestFromHeap)
        std::free(m_data);
    else
        ::munmap(m_data, static_cast<std::size_t>(m_size));
}

} // namespace platform
