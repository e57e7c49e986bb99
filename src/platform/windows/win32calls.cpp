#include "platform/windows/win32calls.h"

#include <atomic>

namespace platform {

namespace {

const Win32Calls s_system;
std::atomic<const Win32Calls *> s_inForce{&s_system};

} // namespace

const Win32Calls &win32()
{
    return *s_inForce.load(std::memory_order_acquire);
}

ScopedWin32Calls::ScopedWin32Calls(const Win32Calls &calls)
    : m_previous(s_inForce.exchange(&calls))
{}

ScopedWin32Calls::~ScopedWin32Calls()
{
    s_inForce.store(m_previous);
}

} // namespace platform
