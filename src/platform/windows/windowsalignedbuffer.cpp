#include "platform/alignedbuffer.h"

#include "platform/windows/windowsprocesscalls.h"

namespace platform {

AlignedBuffer::AlignedBuffer(qint64 size)
{
    if (size < 1)
        return;
    void *const memory = processCalls().virtualAlloc(nullptr, static_cast<SIZE_T>(size),
                                                     MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (memory == nullptr)
        return;
    m_data = static_cast<std::byte *>(memory);
    m_size = size;
}

AlignedBuffer::~AlignedBuffer()
{
    if (m_data)
        processCalls().virtualFree(m_data, 0, MEM_RELEASE);
}

} // namespace platform
