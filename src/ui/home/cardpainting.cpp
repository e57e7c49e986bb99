#include "ui/home/cardpainting.h"

#include <QPainter>
#include <QRect>

namespace cards {

namespace {

constexpr int FocusInset = 4;

void paintFrame(QPainter &painter, const QRect &card, int inset, int radius)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(card.adjusted(inset, inset, -inset, -inset), radius, radius);
}

} // namespace

void paintFace(QPainter &painter, const QRect &card, const Face &face)
{
    painter.setPen(QPen(face.border, face.borderWidth));
    painter.setBrush(face.fill);
    paintFrame(painter, card, 1, Radius);
}

void paintFocusFrame(QPainter &painter, const QRect &card, const QColor &colour)
{
    painter.setPen(QPen(colour, 2));
    painter.setBrush(Qt::NoBrush);
    paintFrame(painter, card, FocusInset, Radius - FocusInset + 1);
}

bool showsFocusFrame(Qt::FocusReason reason, bool before)
{
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::MouseFocusReason:
    case Qt::OtherFocusReason:
        return false;
    default: // The window or a menu gives back what it took.
        return before;
    }
}

} // namespace cards
