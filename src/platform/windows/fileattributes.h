#pragma once

#include "platform/status.h"
#include "platform/windows/win32calls.h"

#include <string>

namespace platform {

// The attributes of what stands under the path itself, a link's own.
Result<DWORD> attributesOf(const std::wstring &path);

// The reparse tag of an entry that has FILE_ATTRIBUTE_REPARSE_POINT.
Result<DWORD> reparseTagOf(const std::wstring &path);

// Takes FILE_ATTRIBUTE_READONLY away from an entry with these attributes, which keeps the others.
Status clearReadOnlyAttribute(const std::wstring &path, DWORD attributes);

} // namespace platform
