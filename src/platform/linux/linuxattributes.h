#pragma once

#include "platform/files.h"
#include "platform/status.h"

#include <QList>

namespace platform {

/// The extended attributes that users have given to an open file or folder, as streams that cannot be opened:
/// their names contain a slash, so that no file is ever taken for one. None where the file system has no
/// attributes.
Result<QList<NamedStream>> attributesOf(int file);

} // namespace platform
