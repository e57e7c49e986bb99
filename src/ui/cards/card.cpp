#include "ui/cards/card.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

namespace {

constexpr int Radius = 12;
constexpr int FocusInset = 4;

void paintFrame(QPainter &painter, const QRect &card, int inset, int radius)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(card.adjusted(inset, inset, -inset, -inset), radius, radius);
}

bool isOfKeyboard(Qt::FocusReason reason, bool before)
{
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::MouseFocusReason:
    case Qt::OtherFocusReason:
        return false;
    default: // The window or a menu gives the focus back.
        return before;
    }
}

} // namespace

Card::Card(QWidget *parent)
    : QWidget(parent)
{}

void Card::setFocusHolder(QWidget &holder)
{
    m_focusHolder = &holder;
    holder.installEventFilter(this);
}

void Card::paintFace(QPainter &painter, const Face &face) const
{
    painter.setPen(QPen(face.border, face.borderWidth));
    painter.setBrush(face.fill);
    paintFrame(painter, rect(), 1, Radius);
}

void Card::paintFocusFrame(QPainter &painter, const QColor &colour) const
{
    if (!m_focusFrame || !m_focusHolder || !m_focusHolder->hasFocus())
        return;
    painter.setPen(QPen(colour, 2));
    painter.setBrush(Qt::NoBrush);
    paintFrame(painter, rect(), FocusInset, Radius - FocusInset + 1);
}

void Card::enterEvent(QEnterEvent *event)
{
    m_hovered = true;
    update();
    QWidget::enterEvent(event);
}

void Card::leaveEvent(QEvent *event)
{
    m_hovered = false;
    update();
    QWidget::leaveEvent(event);
}

bool Card::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_focusHolder) {
        if (event->type() == QEvent::FocusIn)
            m_focusFrame = isOfKeyboard(static_cast<QFocusEvent *>(event)->reason(), m_focusFrame);
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            update();
    }
    return QWidget::eventFilter(watched, event);
}
