#pragma once

#include "platform/files.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <functional>

namespace platform {

// Called with the bytes of a name; false ends the listing, which then counts as success.
using EntryVisitor = std::function<bool(const char *name, FileKind kind)>;

// Every entry of an open folder but "." and "..". An entry whose kind can no longer be asked for, because it
// is gone meanwhile, is left out.
Status readEntries(FileDescriptor folder, const EntryVisitor &visit);

} // namespace platform
