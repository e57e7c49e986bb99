#pragma once

#include "platform/status.h"

#include <algorithm>
#include <cstdint>

namespace platform {

/// What every raw transfer has to fulfil before the system is asked: whole sectors, InvalidParameter else, in
/// a buffer that begins where a sector may, MisalignedBuffer else. For sectors that are no power of two (520
/// bytes, say) that is the power of two in their size, and a page at most. The operation is a string literal.
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
