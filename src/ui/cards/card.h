#pragma once

#include <QColor>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QPainter)

/// A card to choose from. It draws its face, follows the mouse over it, and frames itself while the keyboard
/// acts on it. Interface thread.
class Card : public QWidget
{
public:
    explicit Card(QWidget *parent = nullptr);

protected:
    /// How a card is filled and bordered.
    struct Face
    {
        QColor fill;
        QColor border;
        int borderWidth = 1; ///< pixels
    };

    bool isHovered() const { return m_hovered; }

    /// Names the widget that takes the focus for the card: the card itself or a child, which outlives it.
    void setFocusHolder(QWidget &holder);

    /// Draws the rounded face, one pixel inside the card.
    void paintFace(QPainter &painter, const Face &face) const;

    /// Draws the frame of the focus if the keyboard brought the focus. After a click the user knows where it
    /// is.
    void paintFocusFrame(QPainter &painter, const QColor &colour) const;

    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_focusHolder = nullptr;
    bool m_hovered = false;
    bool m_focusFrame = false; ///< the focus came by keyboard
};
