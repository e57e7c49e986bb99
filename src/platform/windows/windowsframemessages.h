#pragma once

#include "platform/windowframe.h"
#include "platform/windows/windowsheaders.h"

#include <QPoint>
#include <QSize>

namespace platform {

/// The hit-test value of the system for a part of a frame.
LRESULT hitTestOf(FramePart part);

/// The screen position in a mouse message. Its coordinates are negative to the left of and above the primary
/// screen.
QPoint placeOf(LPARAM position);

/// Limits a maximised window to the part of its screen that no taskbar covers.
void limitToWorkArea(MINMAXINFO &info, const MONITORINFO &screen, const QSize &smallest);

/// Places a maximised window in the same area. The limits are not enough, because the system adds to their
/// size the difference between this screen and the primary one.
void placeInWorkArea(WINDOWPOS &place, const MONITORINFO &screen);

} // namespace platform
