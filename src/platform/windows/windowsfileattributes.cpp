#include "platform/windows/windowsfileattributes.h"

#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

namespace platform {

Result<EntryAttributes> attributesOf(const std::wstring &path)
{
    const DWORD attributes = fileCalls().getFileAttributes(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return statusFromLastError("GetFileAttributes");
    return withTag(path, attributes);
}

Result<EntryAttributes> attributesOf(HANDLE opened)
{
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!fileCalls().getFileInformation(opened, &found))
        return statusFromLastError("GetFileInformationByHandle");
    return withTag(opened, found.dwFileAttributes);
}

Result<EntryAttributes> withTag(const std::wstring &path, DWORD bits)
{
    if (!(bits & FILE_ATTRIBUTE_REPARSE_POINT))
        return EntryAttributes{bits, 0};
    WIN32_FIND_DATAW entry = {};
    // Folder listings do not contain streams.
    auto *const search = fileCalls().findFirstFile(withoutStream(path).c_str(), FindExInfoBasic, &entry,
                                                   FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE)
        return statusFromLastError("FindFirstFileEx");
    fileCalls().findClose(search);
    // Some systems mark entries that must be fetched from a cloud in listings only.
    const EntryAttributes listed = attributesOf(entry);
    return EntryAttributes{bits | listed.bits, listed.reparseTag};
}

Result<EntryAttributes> withTag(HANDLE opened, DWORD bits)
{
    if (!(bits & FILE_ATTRIBUTE_REPARSE_POINT))
        return EntryAttributes{bits, 0};
    FILE_ATTRIBUTE_TAG_INFO found = {};
    if (!fileCalls().getFileInformationEx(opened, FileAttributeTagInfo, &found, sizeof found))
        return statusFromLastError("GetFileInformationByHandleEx");
    return EntryAttributes{bits | found.FileAttributes, found.ReparseTag};
}

EntryAttributes attributesOf(const WIN32_FIND_DATAW &listed)
{
    const bool hasTag = listed.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT;
    return {listed.dwFileAttributes, hasTag ? listed.dwReserved0 : 0};
}

WinHandle openForAttributes(const std::wstring &path, DWORD flags)
{
    constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    constexpr DWORD AsItIs = FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL;
    return WinHandle(fileCalls().createFile(path.c_str(), FILE_READ_ATTRIBUTES, ShareAll, nullptr,
                                            OPEN_EXISTING, flags | AsItIs, nullptr));
}

Status clearReadOnlyAttribute(const std::wstring &path, DWORD attributes)
{
    if (!(attributes & FILE_ATTRIBUTE_READONLY))
        return {};
    const DWORD others = attributes & ~DWORD(FILE_ATTRIBUTE_READONLY);
    // The value 0 would leave the attributes unchanged.
    return statusOf(fileCalls().setFileAttributes(path.c_str(), others == 0 ? FILE_ATTRIBUTE_NORMAL : others),
                    "SetFileAttributes");
}

} // namespace platform
