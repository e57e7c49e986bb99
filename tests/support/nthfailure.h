#pragma once

#include <mutex>
#include <vector>

/// Decides which call of a table of system calls fails: call number N of one entry, or of any entry. Counts
/// the calls on the way. Thread-safe.
class NthFailure
{
public:
    enum Repeat { Once, FromThenOn };

    static constexpr int NoEntry = -1;
    static constexpr int AnyEntry = -2;

    /// For a table with entries 0 to @p entryCount - 1. Nothing fails yet.
    explicit NthFailure(int entryCount)
        : m_seen(static_cast<std::size_t>(entryCount))
    {}

    /// Call number @p nth (from 1) of that entry fails with @p error. Counting begins anew.
    void plan(int entry, int nth, unsigned error, Repeat repeat);

    /// To be called once for each call. Returns the error to fail with, 0 to let the call through. A call
    /// with
    /// @p isMeant false neither counts nor fails.
    unsigned enter(int entry, bool isMeant = true);

    /// The calls since plan() that counted, and those that failed.
    int counted() const;
    int fired() const;
    /// Calls of an entry since construction.
    int seen(int entry) const;

private:
    mutable std::mutex m_mutex;
    int m_entry = NoEntry;
    int m_nth = 0;
    unsigned m_error = 0;
    Repeat m_repeat = Once;
    int m_counted = 0;
    int m_fired = 0;
    std::vector<int> m_seen;
};
