#include "ui/mainwindow/frameowner.h"

#include "ui/mainwindow/frameparts.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

namespace {

// The system sends no press for a caption, so a widget that takes presses must not be part of it.
bool takesPress(const QWidget *widget, const QWidget &window)
{
    for (; widget && widget != &window; widget = widget->parentWidget()) {
        if (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
            qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractScrollArea *>(widget) ||
            qobject_cast<const QAbstractSlider *>(widget))
            return true;
    }
    return false;
}

} // namespace

platform::FramePart FrameOwner::partAt(const QPoint &pixel) const
{
    using frameparts::Under;
    const QPoint position = (QPointF(pixel) / m_window.devicePixelRatioF()).toPoint();
    const QWidget *const widget = m_window.childAt(position);
    Under under = takesPress(widget, m_window) ? Under::Control : Under::Nothing;
    if (widget == &m_maximizeButton)
        under = Under::MaximizeButton;
    return frameparts::partAt(position, m_window.size(), m_window.isMaximized(), under);
}

QSize FrameOwner::smallestSize() const
{
    return (QSizeF(m_window.minimumSize()) * m_window.devicePixelRatioF()).toSize();
}

void FrameOwner::showMaximizeHover(bool isOver)
{
    m_maximizeButton.setAttribute(Qt::WA_UnderMouse, isOver);
    m_maximizeButton.update();
}

void FrameOwner::pressMaximize()
{
    m_maximizeButton.click();
}
