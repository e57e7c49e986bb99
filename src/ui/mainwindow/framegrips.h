#pragma once

#include <QPoint>

QT_FORWARD_DECLARE_CLASS(QMouseEvent)
QT_FORWARD_DECLARE_CLASS(QWidget)

/// Moves and resizes a window without a frame by mouse. The margin of its shadow takes the place of the
/// edges, the part above frameparts::DragHeight that of the caption. Interface thread.
class FrameGrips
{
public:
    /// The window outlives this.
    explicit FrameGrips(QWidget &window)
        : m_window(window)
    {}

    /// Gives the window the cursor of the edge at that place.
    void hover(const QPoint &position);

    /// Each tells whether the event was used, so that nothing else handles it.
    bool press(const QMouseEvent &event);
    bool drag(const QMouseEvent &event);
    void release() { m_dragging = false; }

private:
    QWidget &m_window;
    bool m_dragging = false;
    QPoint m_dragPosition; ///< of the cursor, from the window's top left corner
};
