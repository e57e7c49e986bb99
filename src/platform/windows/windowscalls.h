#pragma once

// The only way to include the system's headers in this folder: Unicode, nothing superfluous, no min and max.
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <sddl.h>
#include <shellapi.h>
#include <winioctl.h>

namespace platform {

// RevokeDragDrop and SHChangeNotify, whose headers are long, and SHUpdateRecycleBinIcon, which not every
// compiler's headers know.
HRESULT WINAPI revokeDragDrop(HWND window);
void WINAPI changeNotify(LONG event, UINT flags, LPCVOID first, LPCVOID second);
void WINAPI updateRecycleBinIcon();

// The calls through which this backend asks the system, each the system's own function unless a test has put
// another in its place. A replacement fails as the system does: it returns the call's value for failure and
// leaves the error number with SetLastError().
struct Win32Calls
{
    decltype(&::CreateFileW) createFile = &::CreateFileW;
    decltype(&::CloseHandle) closeHandle = &::CloseHandle;
    decltype(&::ReadFile) readFile = &::ReadFile;
    decltype(&::WriteFile) writeFile = &::WriteFile;
    decltype(&::SetFilePointerEx) setFilePointer = &::SetFilePointerEx;
    decltype(&::SetEndOfFile) setEndOfFile = &::SetEndOfFile;
    decltype(&::FlushFileBuffers) flushFileBuffers = &::FlushFileBuffers;
    decltype(&::GetFileInformationByHandle) getFileInformation = &::GetFileInformationByHandle;
    decltype(&::GetFileInformationByHandleEx) getFileInformationEx = &::GetFileInformationByHandleEx;
    decltype(&::GetFinalPathNameByHandleW) getFinalPathName = &::GetFinalPathNameByHandleW;
    decltype(&::GetVolumeInformationByHandleW) getVolumeInformation = &::GetVolumeInformationByHandleW;

    decltype(&::GetFileAttributesW) getFileAttributes = &::GetFileAttributesW;
    decltype(&::GetFileAttributesExW) getFileAttributesEx = &::GetFileAttributesExW;
    decltype(&::SetFileAttributesW) setFileAttributes = &::SetFileAttributesW;
    decltype(&::MoveFileExW) moveFile = &::MoveFileExW;
    decltype(&::DeleteFileW) deleteFile = &::DeleteFileW;
    decltype(&::CreateDirectoryW) createDirectory = &::CreateDirectoryW;
    decltype(&::RemoveDirectoryW) removeDirectory = &::RemoveDirectoryW;
    decltype(&::FindFirstFileExW) findFirstFile = &::FindFirstFileExW;
    decltype(&::FindNextFileW) findNextFile = &::FindNextFileW;
    decltype(&::FindClose) findClose = &::FindClose;
    decltype(&::GetDiskFreeSpaceExW) getDiskFreeSpace = &::GetDiskFreeSpaceExW;
    decltype(&::GetDriveTypeW) getDriveType = &::GetDriveTypeW;
    decltype(&::FindFirstVolumeW) findFirstVolume = &::FindFirstVolumeW;
    decltype(&::FindNextVolumeW) findNextVolume = &::FindNextVolumeW;
    decltype(&::FindVolumeClose) findVolumeClose = &::FindVolumeClose;

    decltype(&::DeviceIoControl) deviceIoControl = &::DeviceIoControl;

    decltype(&::VirtualAlloc) virtualAlloc = &::VirtualAlloc;
    decltype(&::VirtualFree) virtualFree = &::VirtualFree;

    decltype(&::GetWindowsDirectoryW) getWindowsDirectory = &::GetWindowsDirectoryW;
    decltype(&::OpenProcessToken) openProcessToken = &::OpenProcessToken;
    decltype(&::GetTokenInformation) getTokenInformation = &::GetTokenInformation;
    decltype(&::ConvertSidToStringSidW) convertSidToStringSid = &::ConvertSidToStringSidW;
    decltype(&::LocalFree) localFree = &::LocalFree;
    decltype(&::RegGetValueW) regGetValue = &::RegGetValueW;

    decltype(&::SetThreadExecutionState) setThreadExecutionState = &::SetThreadExecutionState;
    decltype(&::ShutdownBlockReasonCreate) shutdownBlockReasonCreate = &::ShutdownBlockReasonCreate;
    decltype(&::ShutdownBlockReasonDestroy) shutdownBlockReasonDestroy = &::ShutdownBlockReasonDestroy;
    decltype(&::ChangeWindowMessageFilterEx) changeWindowMessageFilter = &::ChangeWindowMessageFilterEx;
    decltype(&::DragAcceptFiles) dragAcceptFiles = &::DragAcceptFiles;
    decltype(&platform::revokeDragDrop) revokeDragDrop = &platform::revokeDragDrop;

    decltype(&::GetShellWindow) getShellWindow = &::GetShellWindow;
    decltype(&::GetWindowThreadProcessId) getWindowThreadProcessId = &::GetWindowThreadProcessId;
    decltype(&::OpenProcess) openProcess = &::OpenProcess;
    decltype(&::LookupAccountSidW) lookupAccountSid = &::LookupAccountSidW;
    decltype(&platform::changeNotify) changeNotify = &platform::changeNotify;
    decltype(&platform::updateRecycleBinIcon) updateRecycleBinIcon = &platform::updateRecycleBinIcon;

    decltype(&::SystemParametersInfoW) systemParametersInfo = &::SystemParametersInfoW;
};

// The table in force. Any thread.
const Win32Calls &win32();

// Puts another table in force until destruction. Not to be changed while jobs run; scopes nest.
class ScopedWin32Calls
{
public:
    explicit ScopedWin32Calls(const Win32Calls &calls);
    ~ScopedWin32Calls();
    ScopedWin32Calls(const ScopedWin32Calls &) = delete;
    ScopedWin32Calls &operator=(const ScopedWin32Calls &) = delete;

private:
    const Win32Calls *m_previous;
};

} // namespace platform
