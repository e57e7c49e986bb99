#include "platform/windows/fileattributes.h"

#include "platform/windows/lasterror.h"

namespace platform {

Result<DWORD> attributesOf(const std::wstring &path)
{
    const DWORD attributes = win32().getFileAttributes(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return statusFromLastError("GetFileAttributes");
    return attributes;
}

Result<DWORD> reparseTagOf(const std::wstring &path)
{
    WIN32_FIND_DATAW entry = {};
    auto *const search =
        win32().findFirstFile(path.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE)
        return statusFromLastError("FindFirstFileEx");
    win32().findClose(search);
    return entry.dwReserved0;
}

Status clearReadOnlyAttribute(const std::wstring &path, DWORD attributes)
{
    if (!(attributes & FILE_ATTRIBUTE_READONLY))
        return {};
    const DWORD others = attributes & ~DWORD(FILE_ATTRIBUTE_READONLY);
    // No attribute at all would mean to leave them as they are.
    return statusOf(win32().setFileAttributes(path.c_str(), others == 0 ? FILE_ATTRIBUTE_NORMAL : others),
                    "SetFileAttributes");
}

} // namespace platform
