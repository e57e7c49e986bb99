#pragma once

#include <QColor>
#include <Qt>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QRect)

/// What cards that are chosen with mouse or keyboard have in common.
namespace cards {

inline constexpr int Radius = 12;

struct Face
{
    QColor fill;
    QColor border;
    int borderWidth = 1;
};

/// The rounded face of a card, one pixel inside its widget.
void paintFace(QPainter &painter, const QRect &card, const Face &face);

/// The frame that shows which card the keyboard acts on.
void paintFocusFrame(QPainter &painter, const QRect &card, const QColor &colour);

/// Whether the frame is to be shown after focus came for this reason. It follows the keyboard only: a click
/// needs no hint where it went. before: whether it was shown when the card had the focus last.
bool showsFocusFrame(Qt::FocusReason reason, bool before);

} // namespace cards
