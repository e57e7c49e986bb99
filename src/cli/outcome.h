#pragma once

#include "cli/exitcode.h"
#include "model/refusal.h"

#include <QString>

#include <optional>
#include <utility>

namespace cli {

/// The reason why a command stops, in words for the user, and its exit code.
struct Refusal : ::Refusal
{
    ExitCode code = Refused;

    Refusal() = default;
    Refusal(ExitCode exitCode, QString words)
        : ::Refusal{std::move(words)}
        , code(exitCode)
    {}
    Refusal(::Refusal refusal) // NOLINT(google-explicit-constructor): a job that must not start is refused
        : ::Refusal(std::move(refusal))
    {}
};

/// A value, or the refusal in its place.
template <typename T>
class [[nodiscard]] Outcome
{
public:
    Outcome(T value) // NOLINT(google-explicit-constructor): so that `return value;` reads as it is meant
        : m_value(std::move(value))
    {}
    Outcome(Refusal refusal) // NOLINT(google-explicit-constructor)
        : m_refusal(std::move(refusal))
    {}

    explicit operator bool() const { return m_value.has_value(); }
    const T &operator*() const { return *m_value; }
    T &operator*() { return *m_value; }
    const T *operator->() const { return &*m_value; }
    const Refusal &refusal() const { return m_refusal; }

private:
    std::optional<T> m_value;
    Refusal m_refusal;
};

} // namespace cli
