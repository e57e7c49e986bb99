#pragma once

#include "platform/status.h"

#include <cstdint>

namespace platform {

// What every raw transfer has to fulfil before the system is asked: whole sectors, InvalidParameter else, in
// a buffer that begins on a sector boundary of memory, MisalignedBuffer else. The operation is a string
// literal.
inline Status checkTransfer(const void *data, qint64 size, qint32 sectorSize, const char *operation)
{
    if (size < 0 || size % sectorSize != 0)
        return {InvalidParameter, 0, operation};
    const qint32 alignment = sectorSize & -sectorSize;
    if (reinterpret_cast<std::uintptr_t>(data) % static_cast<std::uintptr_t>(alignment) != 0)
        return {MisalignedBuffer, 0, operation};
    return {};
}

} // namespace platform
