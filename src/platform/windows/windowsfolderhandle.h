#pragma once

#include "platform/entrypath.h"
#include "platform/folderhandle.h"

#include <memory>
#include <string>

namespace platform {

// Opened under the path, wherever links in it lead.
Result<std::shared_ptr<FolderHandle>> openHeld(const QString &path);
// PathNotFound for what is no folder itself. The parent is held as long as this is.
Result<std::shared_ptr<FolderHandle>> openHeldIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name);

// The path for the system; of an entry in a held folder one without a link on its way. A held folder of
// another system's fails with InvalidParameter, and so does a name that is none.
Result<std::wstring> encodePath(const EntryPath &entry);

} // namespace platform
