#pragma once

#include "platform/files.h"
#include "platform/status.h"
#include "platform/windows/windowsheaders.h"

#include <QList>

namespace platform {

/// The named streams of an open file or folder. A handle opened for attributes is enough.
Result<QList<NamedStream>> namedStreamsOf(HANDLE opened);

} // namespace platform
