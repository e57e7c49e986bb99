#include "platform/windows/windowsfolderlisting.h"

#include "platform/windows/windowsfileattributes.h"
#include "platform/windows/windowsfilecalls.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowslasterror.h"
#include "platform/windows/windowspaths.h"

#include <string_view>

namespace platform {

namespace {

// Listing a folder that is partly in a cloud would fetch the rest.
Status refusalToHold(const EntryAttributes &entry)
{
    constexpr const char *Question = "GetFileInformationByHandle";
    if (fileKindFromAttributes(entry) != FileKind::Folder)
        return {PathNotFound, ERROR_DIRECTORY, Question};
    if (isPartlyElsewhere(entry))
        return {FileOffline, ERROR_FILE_OFFLINE, Question};
    if (!isPlainFolder(entry))
        return {CannotAccessFile, ERROR_CANT_ACCESS_FILE, Question};
    return {};
}

} // namespace

Result<HeldFolder> holdFolder(const std::wstring &path)
{
    // The folder is opened for listing, because a handle for attributes alone would not prevent its
    // deletion.
    HeldFolder folder;
    folder.handle = WinHandle(fileCalls().createFile(
        path.c_str(), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_OPEN_NO_RECALL, nullptr));
    if (!folder.handle.isValid())
        return statusFromLastError("CreateFile");
    const Result<EntryAttributes> opened = attributesOf(folder.handle.get());
    if (!opened)
        return opened.status();
    if (const Status refusal = refusalToHold(opened.value()); !refusal)
        return refusal;
    folder.attributes = opened.value().bits;
    return folder;
}

FolderListing::FolderListing(const std::wstring &path)
    : m_search(fileCalls().findFirstFile(entryPath(path, L"*").c_str(), FindExInfoBasic, &m_entry,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH))
{
    if (m_search == INVALID_HANDLE_VALUE)
        m_status = statusFromLastError("FindFirstFileEx");
}

FolderListing::~FolderListing()
{
    if (m_search != INVALID_HANDLE_VALUE)
        fileCalls().findClose(m_search);
}

Status FolderListing::forEach(const EntryVisitor &visit)
{
    // The root of an empty volume lacks even "." and "..".
    if (m_status.native == ERROR_FILE_NOT_FOUND || m_status.native == ERROR_NO_MORE_FILES)
        return {};
    if (!m_status)
        return m_status;
    do {
        const std::wstring_view name = m_entry.cFileName;
        if (name != L"." && name != L".." && !visit(m_entry))
            return {};
    } while (fileCalls().findNextFile(m_search, &m_entry));
    const Status end = statusFromLastError("FindNextFile");
    return end.native == ERROR_NO_MORE_FILES ? Status{} : end;
}

} // namespace platform
