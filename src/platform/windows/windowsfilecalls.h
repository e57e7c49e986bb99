#pragma once

#include "platform/calltable.h"
#include "platform/windows/windowsheaders.h"

namespace platform {

/// The calls that find, open, write and remove files and folders, and those on open handles.
struct WindowsFileCalls
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
};

/// The table in force. Any thread.
inline const WindowsFileCalls &fileCalls()
{
    return CallTable<WindowsFileCalls>::current();
}

} // namespace platform
