#pragma once

#include <atomic>

namespace platform {

/// The system calls that a backend uses for one subject. Calls is a struct of function pointers, each the
/// system's own function unless a test has replaced it. A replacement reports failures as the system does: it
/// returns the call's value for failure and sets the error number.
template <typename Calls>
class CallTable
{
public:
    /// The table in force. Any thread.
    static const Calls &current() { return *s_inForce.load(std::memory_order_acquire); }

    /// Puts another table in force and returns the previous one. Not while jobs run.
    static const Calls *exchange(const Calls *calls) { return s_inForce.exchange(calls); }

private:
    inline static const Calls s_system{};
    inline static std::atomic<const Calls *> s_inForce{&s_system};
};

/// Puts another table in force until destruction. The table must not change while jobs run; scopes nest.
template <typename Calls>
class ScopedCalls
{
public:
    explicit ScopedCalls(const Calls &calls)
        : m_previous(CallTable<Calls>::exchange(&calls))
    {}
    ~ScopedCalls() { CallTable<Calls>::exchange(m_previous); }
    ScopedCalls(const ScopedCalls &) = delete;
    ScopedCalls &operator=(const ScopedCalls &) = delete;

private:
    const Calls *m_previous;
};

} // namespace platform
