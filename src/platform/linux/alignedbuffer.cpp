#include "platform/alignedbuffer.h"

#include <sys/mman.h>

namespace platform {

AlignedBuffer::AlignedBuffer(qint64 size)
{
    if (size < 1)
        return;
    void *const memory = ::mmap(nullptr, static_cast<std::size_t>(size), PROT_READ | PROT_WRITE,
                                MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return;
    m_data = static_cast<std::byte *>(memory);
    m_size = size;
}

AlignedBuffer::~AlignedBuffer()
{
    if (m_data)
        ::munmap(m_data, static_cast<std::size_t>(m_size));
}

} // namespace platform
