#pragma once

#include "platform/status.h"

// Whether the answer to a question about a path says that nothing stands there. Every other failure leaves
// that open: what could not be looked at must never count as gone.
inline bool isAbsent(const platform::Status &status)
{
    return status.code == platform::FileNotFound || status.code == platform::PathNotFound;
}
