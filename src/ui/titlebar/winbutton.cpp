#include "ui/titlebar/winbutton.h"

#include "ui/style/palette.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QSize ButtonSize(46, 40);
constexpr double GlyphSize = 10.0;
constexpr double RestoreOffset = 3.0;

} // namespace

WinButton::WinButton(Kind kind, QWidget *parent)
    : QPushButton(parent)
    , m_kind(kind)
{
    setFixedSize(ButtonSize);
    setFlat(true);
    // Tab reaches the button. A click leaves the focus with the page.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void WinButton::setMaximized(bool maximized)
{
    m_maximized = maximized;
    update();
}

void WinButton::focusInEvent(QFocusEvent *event)
{
    QPushButton::focusInEvent(event);
    update();
}

void WinButton::focusOutEvent(QFocusEvent *event)
{
    QPushButton::focusOutEvent(event);
    update();
}

void WinButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBackground(painter);
    // Thin lines cover whole pixels when they are moved by half a pixel.
    painter.translate(0.5, 0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette::FaintText, 1.0));
    paintGlyph(painter);
}

void WinButton::paintBackground(QPainter &painter) const
{
    if (underMouse())
        painter.fillRect(rect(), m_kind == Close ? palette::CaptionCloseHovered : palette::CaptionHovered);
    if (hasFocus()) {
        painter.setPen(QPen(palette::CaptionFocus, 2));
        painter.drawRect(rect().adjusted(3, 3, -3, -3));
    }
}

void WinButton::paintGlyph(QPainter &painter) const
{
    const QPointF corner((width() - GlyphSize) / 2, (height() - GlyphSize) / 2);
    const QRectF box(corner, QSizeF(GlyphSize, GlyphSize));
    const double middle = box.center().y();
    switch (m_kind) {
    case Menu:
        for (const double y : {box.top() + 1, middle, box.bottom() - 1})
            painter.drawLine(QLineF(box.left() - 1, y, box.right() + 1, y));
        break;
    case Minimize:
        painter.drawLine(QLineF(box.left(), middle, box.right(), middle));
        break;
    case Maximize:
        if (!m_maximized) {
            painter.drawRect(box);
            break;
        }
        // Two windows, of which the rear one is partly covered.
        painter.drawRect(box.adjusted(0, RestoreOffset, -RestoreOffset, 0));
        painter.drawPolyline(QPolygonF({QPointF(box.left() + RestoreOffset, box.top() + RestoreOffset),
                                        QPointF(box.left() + RestoreOffset, box.top()), box.topRight(),
                                        QPointF(box.right(), box.bottom() - RestoreOffset),
                                        QPointF(box.right() - RestoreOffset, box.bottom() - RestoreOffset)}));
        break;
    case Close:
        painter.drawLine(QLineF(box.topLeft(), box.bottomRight()));
        painter.drawLine(QLineF(box.topRight(), box.bottomLeft()));
        break;
    }
}
