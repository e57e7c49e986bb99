#include "platform/windows/windowsfileattributes.h"

#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

namespace platform {

Result<EntryAttributes> attributesOf(const std::wstring &path)
{
    const DWORD attributes = win32().getFileAttributes(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return statusFromLastError("GetFileAttributes");
    return withTag(path, attributes);
}

Result<EntryAttributes> attributesOf(HANDLE opened)
{
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!win32().getFileInformation(opened, &found))
        return statusFromLastError("GetFileInformationByHandle");
    return withTag(opened, found.dwFileAttributes);
}

Result<EntryAttributes> withTag(const std::wstring &path, DWORD bits)
{
    if (!(bits & FILE_ATTRIBUTE_REPARSE_POINT))
        return EntryAttributes{bits, 0};
    WIN32_FIND_DATAW entry = {};
    // Listings have no streams.
    auto *const search = win32().findFirstFile(withoutStream(path).c_str(), FindExInfoBasic, &entry,
                                               FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE)
        return statusFromLastError("FindFirstFileEx");
    win32().findClose(search);
    // Whether an entry has to be brought here first some systems tell in listings only.
    const EntryAttributes listed = attributesOf(entry);
    return EntryAttributes{bits | listed.bits, listed.reparseTag};
}

Result<EntryAttributes> withTag(HANDLE opened, DWORD bits)
{
    if (!(bits & FILE_ATTRIBUTE_REPARSE_POINT))
        return EntryAttributes{bits, 0};
    FILE_ATTRIBUTE_TAG_INFO found = {};
    if (!win32().getFileInformationEx(opened, FileAttributeTagInfo, &found, sizeof found))
        return statusFromLastError("GetFileInformationByHandleEx");
    return EntryAttributes{bits | found.FileAttributes, found.ReparseTag};
}

EntryAttributes attributesOf(const WIN32_FIND_DATAW &listed)
{
    const bool hasTag = listed.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT;
    return {listed.dwFileAttributes, hasTag ? listed.dwReserved0 : 0};
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
