#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

/// Paints the shadow of a rounded box, behind the box. A graphics effect on the box would blur the whole
/// window again for every letter that changes. Interface thread.
class ShadowCanvas : public QWidget
{
    Q_OBJECT

public:
    /// Corner of the box and form of the shadow, in pixels that do not depend on the scale of the screen.
    struct Look
    {
        int cornerRadius = 0;
        int blurRadius = 0;
        int offset = 0; ///< downwards
        QColor colour;
    };

    /// `box` is a child of this or becomes one before the first painting.
    ShadowCanvas(const Look &look, const QWidget *box);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int reach() const;
    QPixmap painted(qreal ratio) const;

    Look m_look;
    const QWidget *m_box;
    QPixmap m_shadow;  ///< of the smallest box; its middle is stretched
    qreal m_ratio = 0; ///< of the screen that it was painted for
};
