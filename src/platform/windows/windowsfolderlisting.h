#pragma once

#include "platform/status.h"
#include "platform/windows/windowshandle.h"

#include <functional>
#include <string>

namespace platform {

// A real folder that is held open so that nobody can rename or delete it, and so put a link in its place.
struct HeldFolder
{
    WinHandle handle;
    DWORD attributes = 0;
};

// PathNotFound for a file or link; CannotAccessFile for a folder whose content is elsewhere, FileOffline
// where a part of it is only in a cloud.
Result<HeldFolder> holdFolder(const std::wstring &path);

// Called once per entry except "." and ".."; false ends the listing, which then counts as success.
using EntryVisitor = std::function<bool(const WIN32_FIND_DATAW &entry)>;

// Lists the folder that is held under the path. With the first entry found the listing is bound to it.
class FolderListing
{
public:
    explicit FolderListing(const std::wstring &path);
    ~FolderListing();
    FolderListing(const FolderListing &) = delete;
    FolderListing &operator=(const FolderListing &) = delete;

    // Success means that every entry was seen, or that the visitor ended it.
    Status forEach(const EntryVisitor &visit);

private:
    WIN32_FIND_DATAW m_entry = {}; // before the search, which fills it
    HANDLE m_search;
    Status m_status;
};

} // namespace platform
