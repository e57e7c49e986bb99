#pragma once

#include "platform/status.h"

#include <QString>

namespace platform {

struct FolderOwner
{
    bool isOwn = false;    // belongs to the user in effect
    bool isSticky = false; // several may put entries in it, and only remove their own
};

// Whose the folder is, where folders belong to numbered users: not on Windows. PathNotFound for a link,
// wherever it leads, and for everything else that is no folder.
Result<FolderOwner> ownerOfFolder(const QString &folder);

} // namespace platform
