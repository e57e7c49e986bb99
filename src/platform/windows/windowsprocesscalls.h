#pragma once

#include "platform/calltable.h"
#include "platform/windows/windowsheaders.h"

#include <sddl.h>

namespace platform {

/// The calls about this process and others: memory, tokens, accounts and the system's configuration.
struct WindowsProcessCalls
{
    decltype(&::VirtualAlloc) virtualAlloc = &::VirtualAlloc;
    decltype(&::VirtualFree) virtualFree = &::VirtualFree;
    decltype(&::GetWindowsDirectoryW) getWindowsDirectory = &::GetWindowsDirectoryW;
    decltype(&::OpenProcessToken) openProcessToken = &::OpenProcessToken;
    decltype(&::GetTokenInformation) getTokenInformation = &::GetTokenInformation;
    decltype(&::ConvertSidToStringSidW) convertSidToStringSid = &::ConvertSidToStringSidW;
    decltype(&::LocalFree) localFree = &::LocalFree;
    decltype(&::RegGetValueW) regGetValue = &::RegGetValueW;
    decltype(&::SetThreadExecutionState) setThreadExecutionState = &::SetThreadExecutionState;
    decltype(&::OpenProcess) openProcess = &::OpenProcess;
    decltype(&::LookupAccountSidW) lookupAccountSid = &::LookupAccountSidW;
};

/// The table in force. Any thread.
inline const WindowsProcessCalls &processCalls()
{
    return CallTable<WindowsProcessCalls>::current();
}

} // namespace platform
