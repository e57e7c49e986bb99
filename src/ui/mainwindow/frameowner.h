#pragma once

#include "platform/windowframe.h"

#include <QPoint>
#include <QSize>

QT_FORWARD_DECLARE_CLASS(QAbstractButton)
QT_FORWARD_DECLARE_CLASS(QWidget)

/// Tells the system which part of the window stands for which part of a frame. Interface thread.
class FrameOwner : public platform::WindowFrame::Owner
{
public:
    /// Window and button outlive this.
    FrameOwner(QWidget &window, QAbstractButton &maximizeButton)
        : m_window(window)
        , m_maximizeButton(maximizeButton)
    {}

    platform::FramePart partAt(const QPoint &pixel) const override;
    QSize smallestSize() const override;
    void showMaximizeHover(bool isOver) override;
    void pressMaximize() override;

private:
    QWidget &m_window;
    QAbstractButton &m_maximizeButton;
};
