#pragma once

#include "platform/status.h"
#include "platform/windows/windowscalls.h"
#include "platform/windows/windowsfilekind.h"

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

// Takes FILE_ATTRIBUTE_READONLY away from an entry with these attributes, which keeps the others.
Status clearReadOnlyAttribute(const std::wstring &path, DWORD attributes);

} // namespace platform
