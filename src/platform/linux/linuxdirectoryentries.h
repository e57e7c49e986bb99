#pragma once

#include "platform/files.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <functional>

namespace platform {

/// Called with the bytes of a name. The result false ends the listing, which then succeeds.
using EntryVisitor = std::function<bool(const char *name, FileKind kind)>;

/// Visits every entry of an open folder except "." and "..". An entry that disappears before its kind is
/// queried is left out.
Status readEntries(FileDescriptor folder, const EntryVisitor &visit);

} // namespace platform
