#pragma once

#include "cli/exitcode.h"

#include <QString>

#include <optional>
#include <utility>

namespace cli {

// Why a command goes no further, in words for the user, and the exit code that says so.
struct Refusal
{
    ExitCode code = Refused;
    QString message;
};

// A value, or why there is none.
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
