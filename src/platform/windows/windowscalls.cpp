#include "platform/windows/windowscalls.h"

#include <ole2.h>
#include <shlobj.h>

#include <atomic>

namespace platform {

namespace {

const Win32Calls s_system;
std::atomic<const Win32Calls *> s_inForce{&s_system};

} // namespace

HRESULT WINAPI revokeDragDrop(HWND window)
{
    return ::RevokeDragDrop(window);
}

void WINAPI changeNotify(LONG event, UINT flags, LPCVOID first, LPCVOID second)
{
    ::SHChangeNotify(event, flags, first, second);
}

void WINAPI updateRecycleBinIcon()
{
    using Update = void(WINAPI *)();
    HMODULE const shell = ::GetModuleHandleW(L"shell32.dll");
    FARPROC const found = shell ? ::GetProcAddress(shell, "SHUpdateRecycleBinIcon") : nullptr;
    if (const auto update = reinterpret_cast<Update>(reinterpret_cast<void (*)()>(found)))
        update();
}

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
