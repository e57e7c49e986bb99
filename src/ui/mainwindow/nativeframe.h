#pragma once

#include "ui/mainwindow/frameowner.h"

#include <QStringList>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QAbstractButton)
QT_FORWARD_DECLARE_CLASS(QWidget)
namespace platform {
class FileDrops;
class WindowFrame;
} // namespace platform

/// Ties a window without a frame to what the system does for windows that have one: the parts of the frame,
/// and files dropped on the window as a whole. Interface thread.
class NativeFrame
{
public:
    /// Window and button outlive this. takeDrop gets the paths of every drop.
    NativeFrame(QWidget &window, QAbstractButton &maximizeButton,
                std::function<void(const QStringList &paths)> takeDrop);
    ~NativeFrame();
    NativeFrame(const NativeFrame &) = delete;
    NativeFrame &operator=(const NativeFrame &) = delete;

    /// Takes the native window that the window has now. To be called whenever the window gets another one.
    void attach();

private:
    QWidget &m_window;
    std::function<void(const QStringList &paths)> m_takeDrop;
    FrameOwner m_owner;
    std::unique_ptr<platform::FileDrops> m_drops;
    std::unique_ptr<platform::WindowFrame> m_frame;
};
