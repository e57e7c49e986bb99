#include "support/nthfailure.h"

void NthFailure::plan(int entry, int nth, unsigned error, Repeat repeat)
{
    const std::scoped_lock lock(m_mutex);
    m_entry = entry;
    m_nth = nth;
    m_error = error;
    m_repeat = repeat;
    m_counted = 0;
    m_fired = 0;
}

unsigned NthFailure::enter(int entry, bool isMeant)
{
    const std::scoped_lock lock(m_mutex);
    ++m_seen[static_cast<std::size_t>(entry)];
    if (!isMeant || (m_entry != AnyEntry && m_entry != entry))
        return 0;
    ++m_counted;
    if (m_counted != m_nth && !(m_repeat == FromThenOn && m_counted > m_nth))
        return 0;
    ++m_fired;
    return m_error;
}

int NthFailure::counted() const
{
    const std::scoped_lock lock(m_mutex);
    return m_counted;
}

int NthFailure::fired() const
{
    const std::scoped_lock lock(m_mutex);
    return m_fired;
}

int NthFailure::seen(int entry) const
{
    const std::scoped_lock lock(m_mutex);
    return m_seen[static_cast<std::size_t>(entry)];
}
