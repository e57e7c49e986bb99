#pragma once

#include "platform/windows/windowsdesktopcalls.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsprocesscalls.h"
#include "platform/windows/windowsvolumecalls.h"

namespace platform {

/// The tables of all subjects. They call the system unless a test replaces entries.
struct Win32Calls : WindowsFileCalls, WindowsVolumeCalls, WindowsProcessCalls, WindowsDesktopCalls
{
    static Win32Calls inForce() { return {fileCalls(), volumeCalls(), processCalls(), desktopCalls()}; }
};

/// Puts all tables in force until destruction. Not to be changed while jobs run; scopes nest.
class ScopedWin32Calls
{
public:
    explicit ScopedWin32Calls(const Win32Calls &calls)
        : m_files(calls)
        , m_volumes(calls)
        , m_process(calls)
        , m_desktop(calls)
    {}

private:
    ScopedCalls<WindowsFileCalls> m_files;
    ScopedCalls<WindowsVolumeCalls> m_volumes;
    ScopedCalls<WindowsProcessCalls> m_process;
    ScopedCalls<WindowsDesktopCalls> m_desktop;
};

} // namespace platform
