#pragma once

#include "model/refusal.h"

#include <QString>

#include <optional>

// The text of a refusal; empty without one.
inline QString reasonOf(const std::optional<Refusal> &refusal)
{
    return refusal ? refusal->message : QString();
}
