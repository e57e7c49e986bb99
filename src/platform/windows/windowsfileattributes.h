#pragma once

#include "platform/status.h"
#include "platform/windows/windowsfilekind.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowsheaders.h"

#include <string>

namespace platform {

// Of what stands under the path itself, a link's own.
Result<EntryAttributes> attributesOf(const std::wstring &path);
// Of what was opened.
Result<EntryAttributes> attributesOf(HANDLE opened);

// The same of an entry whose attributes but for the tag are known.
Result<EntryAttributes> withTag(const std::wstring &path, DWORD bits);
Result<EntryAttributes> withTag(HANDLE opened, DWORD bits);

// Of a listing.
EntryAttributes attributesOf(const WIN32_FIND_DATAW &listed);

/// Opens the entry itself to be asked about, whoever else has it open. Nothing is followed, and nothing
/// brought here from a cloud. flags: FILE_FLAG_BACKUP_SEMANTICS where it may be a folder.
WinHandle openForAttributes(const std::wstring &path, DWORD flags = 0);

// Takes FILE_ATTRIBUTE_READONLY away from an entry with these attributes, which keeps the others.
Status clearReadOnlyAttribute(const std::wstring &path, DWORD attributes);

} // namespace platform
