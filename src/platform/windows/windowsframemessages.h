#pragma once

#include "platform/windowframe.h"
#include "platform/windows/windowsheaders.h"

#include <QPoint>
#include <QSize>

namespace platform {

// The system's number for a part of a frame.
LRESULT hitTestOf(FramePart part);

// The place that a mouse message tells, on the screen: left of and above the primary one its numbers are
// negative.
QPoint placeOf(LPARAM position);

// Where a window is maximised to: the part of its screen that no taskbar has.
void limitToWorkArea(MINMAXINFO &info, const MONITORINFO &screen, const QSize &smallest);

// The same for a maximised window that is being placed. The system adds to the size asked for with the limits
// what the screen has more than the primary one.
void placeInWorkArea(WINDOWPOS &place, const MONITORINFO &screen);

} // namespace platform
