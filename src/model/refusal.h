#pragma once

#include <QString>

/// The reason why a job must not start, in words for the user. Nothing was changed. A function that may
/// refuse returns std::optional<Refusal>, without a value when nothing is in the way.
struct Refusal
{
    QString message;

    bool operator==(const Refusal &) const = default;
};
