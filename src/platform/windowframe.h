#pragma once

#include <QPoint>
#include <QSize>
#include <QtGlobal>

#include <memory>

namespace platform {

/// The function of a point in a window that draws its own frame.
enum class FramePart {
    Content,
    Caption,
    MaximizeButton,
    Left,
    Right,
    Top,
    Bottom,
    TopLeft,
    TopRight,
    BottomLeft,
    BottomRight,
};

/// Gives a window that draws its own frame the system's behaviour of ordinary windows: a maximised window
/// leaves the taskbar of every screen free, edges and caption can be dragged and snap, the maximise button
/// offers layouts. Used by the thread of the window and of the QCoreApplication only.
///
/// Windows: WS_THICKFRAME without its looks (WM_NCCALCSIZE), because windows snap only with this style;
/// WM_GETMINMAXINFO and WM_WINDOWPOSCHANGING; WM_NCHITTEST and the messages of the maximise button that
/// follow its answer. Linux: nothing, the window system is asked at each press.
class WindowFrame
{
public:
    class Owner
    {
    public:
        Owner() = default;
        virtual ~Owner() = default;
        Owner(const Owner &) = delete;
        Owner &operator=(const Owner &) = delete;

        /// pixel: in screen pixels, from the window's top left corner.
        virtual FramePart partAt(const QPoint &pixel) const = 0;
        virtual QSize smallestSize() const = 0;
        /// The button itself receives no mouse events.
        virtual void showMaximizeHover(bool isOver) = 0;
        virtual void pressMaximize() = 0;
    };

    /// window: as QWidget::winId() returns it. The window may be destroyed before this object, the owner may
    /// not.
    WindowFrame(quintptr window, Owner &owner);
    ~WindowFrame();
    WindowFrame(const WindowFrame &) = delete;
    WindowFrame &operator=(const WindowFrame &) = delete;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
