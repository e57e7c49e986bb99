#pragma once

#include "platform/status.h"

#include <algorithm>
#include <cstdint>

namespace platform {

/// Checks a raw transfer before the system is called. The size must be whole sectors (else InvalidParameter),
/// and the buffer must be aligned (else MisalignedBuffer). The alignment is the largest power of two that
/// divides the sector size (which may be 520 bytes, for example), and at most a page. The operation is a
/// string literal.
inline Status checkTransfer(const void *data, qint64 size, qint32 sectorSize, const char *operation)
{
    constexpr qint32 Page = 4096;
    if (size < 0 || size % sectorSize != 0)
        return {InvalidParameter, 0, operation};
    const qint32 alignment = std::min(sectorSize & -sectorSize, Page);
    if (reinterpret_cast<std::uintptr_t>(data) % static_cast<std::uintptr_t>(alignment) != 0)
        return {MisalignedBuffer, 0, operation};
    return {};
}

} // namespace platform
