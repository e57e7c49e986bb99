#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

/// Stands behind a rounded box of the same layout and paints its shadow. An effect on the box itself would
/// blur all that is in it again for every letter that changes.
class ShadowCanvas : public QWidget
{
    Q_OBJECT

public:
    /// Corner and what the shadow is like: pixels, independent of the screen's scale.
    struct Look
    {
        int cornerRadius = 0;
        int blurRadius = 0;
        int offset = 0; ///< downwards
        QColor colour;
    };

    /// `box` is a child of this, or becomes one; it outlives every painting.
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
