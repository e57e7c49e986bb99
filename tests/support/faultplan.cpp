#include "support/faultplan.h"

bool FaultPlan::fires(Kind kind)
{
    if (!(m_kinds & kind))
        return false;
    const int call = ++m_seen;
    if (call != m_call && !(m_repeat == FromThenOn && call > m_call))
        return false;
    ++m_fired;
    return true;
}

platform::Status FaultPlan::status() const
{
    return {m_error, 0, "planned fault"};
}
