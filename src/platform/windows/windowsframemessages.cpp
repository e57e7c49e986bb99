#include "platform/windows/windowsframemessages.h"

#include <windowsx.h>

namespace platform {

LRESULT hitTestOf(FramePart part)
{
    switch (part) {
    case FramePart::Content:
        return HTCLIENT;
    case FramePart::Caption:
        return HTCAPTION;
    case FramePart::MaximizeButton:
        return HTMAXBUTTON;
    case FramePart::Left:
        return HTLEFT;
    case FramePart::Right:
        return HTRIGHT;
    case FramePart::Top:
        return HTTOP;
    case FramePart::Bottom:
        return HTBOTTOM;
    case FramePart::TopLeft:
        return HTTOPLEFT;
    case FramePart::TopRight:
        return HTTOPRIGHT;
    case FramePart::BottomLeft:
        return HTBOTTOMLEFT;
    case FramePart::BottomRight:
        return HTBOTTOMRIGHT;
    }
    return HTCLIENT;
}

QPoint placeOf(LPARAM position)
{
    return {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
}

void limitToWorkArea(MINMAXINFO &info, const MONITORINFO &screen, const QSize &smallest)
{
    const RECT &work = screen.rcWork;
    info.ptMaxPosition = {work.left - screen.rcMonitor.left, work.top - screen.rcMonitor.top};
    info.ptMaxSize = {work.right - work.left, work.bottom - work.top};
    info.ptMinTrackSize = {smallest.width(), smallest.height()};
}

void placeInWorkArea(WINDOWPOS &place, const MONITORINFO &screen)
{
    if ((place.flags & SWP_NOSIZE) != 0)
        return;
    const RECT &work = screen.rcWork;
    place.x = work.left;
    place.y = work.top;
    place.cx = work.right - work.left;
    place.cy = work.bottom - work.top;
}

} // namespace platform
