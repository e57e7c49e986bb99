#pragma once

#include "platform/files.h"
#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

#include <QList>

namespace platform {

// Of an open file or folder, the stream without a name left out. Attributes may be all that it was opened
// for.
Result<QList<NamedStream>> namedStreamsOf(HANDLE opened);

} // namespace platform
