#pragma once

#include "platform/status.h"
#include "platform/windows/windowshandle.h"

#include <functional>
#include <string>

namespace platform {

/// A real folder that is held open, so that it cannot be renamed, deleted or replaced by a link.
struct HeldFolder
{
    WinHandle handle;
    DWORD attributes = 0;
};

/// Fails with PathNotFound for a file or link, with CannotAccessFile for a folder whose content is elsewhere,
/// and with FileOffline where a part of it is only in a cloud.
Result<HeldFolder> holdFolder(const std::wstring &path);

/// Called once per entry except "." and "..". Returning false ends the listing, which then counts as success.
using EntryVisitor = std::function<bool(const WIN32_FIND_DATAW &entry)>;

/// Lists the held folder at the path. The first entry found binds the listing to that folder.
class FolderListing
{
public:
    explicit FolderListing(const std::wstring &path);
    ~FolderListing();
    FolderListing(const FolderListing &) = delete;
    FolderListing &operator=(const FolderListing &) = delete;

    /// Success means that every entry was visited, or that the visitor ended the listing.
    Status forEach(const EntryVisitor &visit);

private:
    WIN32_FIND_DATAW m_entry = {}; ///< declared before the search handle, whose opening fills it
    HANDLE m_search;
    Status m_status;
};

} // namespace platform
