#pragma once

#include "platform/windows/windowsheaders.h"

#include <QStringList>

#include <shellapi.h>

namespace platform {

/// The paths in a WM_DROPFILES message. The message is not freed.
QStringList droppedPaths(HDROP drop);

} // namespace platform
