#pragma once

#include "platform/windows/windowsheaders.h"

#include <QStringList>

#include <shellapi.h>

namespace platform {

// The paths that a WM_DROPFILES carries, which is left as it is.
QStringList droppedPaths(HDROP drop);

} // namespace platform
