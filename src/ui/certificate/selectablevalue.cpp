#include "ui/certificate/selectablevalue.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>

SelectableValue::SelectableValue(const QString &text, QWidget *parent)
    : ValueLabel(text, parent)
{
    // No focus by Tab, which moves between the buttons.
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::IBeamCursor);
}

QString SelectableValue::markedText() const
{
    return text().sliced(std::min(m_from, m_to), std::abs(m_to - m_from));
}

QList<QTextLayout::FormatRange> SelectableValue::marks() const
{
    if (m_from == m_to)
        return {};
    QTextLayout::FormatRange range;
    range.start = std::min(m_from, m_to);
    range.length = std::abs(m_to - m_from);
    range.format.setForeground(palette().brush(QPalette::HighlightedText));
    range.format.setBackground(palette().brush(QPalette::Highlight));
    return {range};
}

void SelectableValue::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int at = positionAt(event->position().toPoint());
    mark(event->modifiers().testFlag(Qt::ShiftModifier) ? m_from : at, at);
}

void SelectableValue::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        mark(m_from, positionAt(event->position().toPoint()));
}

void SelectableValue::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        mark(0, static_cast<int>(text().size()));
}

void SelectableValue::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        mark(0, static_cast<int>(text().size()));
    else
        ValueLabel::keyPressEvent(event);
}

void SelectableValue::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    // The menu must not inherit the value's style.
    menu.setStyleSheet(QString());
    connect(menu.addAction(tr("Copy")), &QAction::triggered, this, &SelectableValue::copy);
    menu.exec(event->globalPos());
}

void SelectableValue::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        mark(0, 0);
    ValueLabel::focusOutEvent(event);
}

void SelectableValue::mark(int from, int to)
{
    m_from = from;
    m_to = to;
    update();
}

void SelectableValue::copy() const
{
    QGuiApplication::clipboard()->setText(m_from == m_to ? text() : markedText());
}
