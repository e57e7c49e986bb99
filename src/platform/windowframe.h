#pragma once

#include <QPoint>
#include <QSize>
#include <QtGlobal>

#include <memory>

namespace platform {

/// What a place of a window that draws its own frame stands for.
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

/// A window that draws its own frame, with what the system does for others: maximising leaves the taskbar of
/// every screen, edges and caption are gripped and snap, the maximise button offers layouts. One thread, that
/// of the window and of the QCoreApplication.
///
/// Windows: WS_THICKFRAME without its looks (WM_NCCALCSIZE), without which nothing snaps; WM_GETMINMAXINFO
/// and WM_WINDOWPOSCHANGING; WM_NCHITTEST and the messages of the maximise button that come with its answer.
/// Linux: nothing, the window system is asked at each press.
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

        /// In pixels of the screen, from the window's top left corner.
        virtual FramePart partAt(const QPoint &pixel) const = 0;
        virtual QSize smallestSize() const = 0;
        /// The button gets no mouse of its own.
        virtual void showMaximizeHover(bool isOver) = 0;
        virtual void pressMaximize() = 0;
    };

    /// The window as QWidget::winId() tells it; it may go before this. The owner may not.
    WindowFrame(quintptr window, Owner &owner);
    ~WindowFrame();
    WindowFrame(const WindowFrame &) = delete;
    WindowFrame &operator=(const WindowFrame &) = delete;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
