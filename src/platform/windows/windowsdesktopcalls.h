#pragma once

#include "platform/calltable.h"
#include "platform/windows/windowsheaders.h"

#include <shellapi.h>

namespace platform {

/// RevokeDragDrop and SHChangeNotify, whose headers are long, and SHUpdateRecycleBinIcon, which the headers
/// of some compilers lack.
HRESULT WINAPI revokeDragDrop(HWND window);
void WINAPI changeNotify(LONG event, UINT flags, LPCVOID first, LPCVOID second);
void WINAPI updateRecycleBinIcon();

/// The calls about windows, the shell and its settings.
struct WindowsDesktopCalls
{
    decltype(&::ShutdownBlockReasonCreate) shutdownBlockReasonCreate = &::ShutdownBlockReasonCreate;
    decltype(&::ShutdownBlockReasonDestroy) shutdownBlockReasonDestroy = &::ShutdownBlockReasonDestroy;
    decltype(&::ChangeWindowMessageFilterEx) changeWindowMessageFilter = &::ChangeWindowMessageFilterEx;
    decltype(&::DragAcceptFiles) dragAcceptFiles = &::DragAcceptFiles;
    decltype(&platform::revokeDragDrop) revokeDragDrop = &platform::revokeDragDrop;
    decltype(&::GetShellWindow) getShellWindow = &::GetShellWindow;
    decltype(&::GetWindowThreadProcessId) getWindowThreadProcessId = &::GetWindowThreadProcessId;
    decltype(&platform::changeNotify) changeNotify = &platform::changeNotify;
    decltype(&platform::updateRecycleBinIcon) updateRecycleBinIcon = &platform::updateRecycleBinIcon;
    decltype(&::SystemParametersInfoW) systemParametersInfo = &::SystemParametersInfoW;
};

/// The table in force. Any thread.
inline const WindowsDesktopCalls &desktopCalls()
{
    return CallTable<WindowsDesktopCalls>::current();
}

} // namespace platform
