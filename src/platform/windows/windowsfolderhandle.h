#pragma once

#include "platform/entrypath.h"
#include "platform/folderhandle.h"

#include <memory>
#include <string>

namespace platform {

/// Opens and holds the folder to which the path leads; links in the path are followed.
Result<std::shared_ptr<FolderHandle>> openHeld(const QString &path);
/// Fails with PathNotFound for an entry that is not itself a folder. The parent stays held as long as the new
/// handle.
Result<std::shared_ptr<FolderHandle>> openHeldIn(const std::shared_ptr<FolderHandle> &parent,
                                                 const QString &name);

/// The path for the system. The path of an entry in a held folder leads through no link. Fails with
/// InvalidParameter for a held folder of another backend and for an invalid name.
Result<std::wstring> encodePath(const EntryPath &entry);

} // namespace platform
