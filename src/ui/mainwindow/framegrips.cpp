#include "ui/mainwindow/framegrips.h"

#include "ui/mainwindow/frameparts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QWidget>
#include <QWindow>

using frameparts::DragHeight;
using frameparts::edgesAt;

namespace {

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QLineEdit *>(widget);
}

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    return edges ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

} // namespace

void FrameGrips::hover(const QPoint &position)
{
    if (m_window.isMaximized())
        return;
    const Qt::CursorShape shape = cursorFor(edgesAt(position, m_window.size()));
    if (shape != m_window.cursor().shape())
        m_window.setCursor(shape);
}

bool FrameGrips::press(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    const QPoint position = event.position().toPoint();
    QWindow *const native = m_window.windowHandle();
    const Qt::Edges edges = m_window.isMaximized() ? Qt::Edges() : edgesAt(position, m_window.size());
    if (edges && native && native->startSystemResize(edges))
        return true;
    if (position.y() >= DragHeight || isControl(m_window.childAt(position)))
        return false;
    // Snapping is lost if the window is moved here although the window system can move it.
    if (!native || !native->startSystemMove()) {
        m_dragging = true;
        m_dragPosition = event.globalPosition().toPoint() - m_window.frameGeometry().topLeft();
    }
    return true;
}

bool FrameGrips::drag(const QMouseEvent &event)
{
    if (!m_dragging || !(event.buttons() & Qt::LeftButton))
        return false;
    m_window.move(event.globalPosition().toPoint() - m_dragPosition);
    return true;
}
