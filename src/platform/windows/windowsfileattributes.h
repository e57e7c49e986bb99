#pragma once

#include "platform/status.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowsheaders.h"

#include <string>

namespace platform {

/// The attributes of the entry at the path; of a link, its own.
Result<EntryAttributes> attributesOf(const std::wstring &path);
/// The attributes of an open file or folder.
Result<EntryAttributes> attributesOf(HANDLE opened);

/// Adds the reparse tag to the known attributes of an entry.
Result<EntryAttributes> withTag(const std::wstring &path, DWORD bits);
Result<EntryAttributes> withTag(HANDLE opened, DWORD bits);

/// The attributes in an entry of a folder listing.
EntryAttributes attributesOf(const WIN32_FIND_DATAW &listed);

/// Opens the entry itself to query it, also while other programs have it open. Links are not followed and no
/// content is fetched from a cloud. flags: FILE_FLAG_BACKUP_SEMANTICS where the entry may be a folder.
WinHandle openForAttributes(const std::wstring &path, DWORD flags = 0);

/// Removes FILE_ATTRIBUTE_READONLY from an entry that has these attributes. The others stay.
Status clearReadOnlyAttribute(const std::wstring &path, DWORD attributes);

} // namespace platform
