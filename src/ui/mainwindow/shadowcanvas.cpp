#include "ui/mainwindow/shadowcanvas.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsPathItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QPainterPath>
#include <qdrawutil.h>

ShadowCanvas::ShadowCanvas(const Look &look, const QWidget *box)
    : m_look(look)
    , m_box(box)
{}

// The largest distance of shadow from the box.
int ShadowCanvas::reach() const
{
    return m_look.blurRadius + m_look.offset;
}

// In pixels of the screen, as the effect does not scale.
QPixmap ShadowCanvas::painted(qreal ratio) const
{
    const qreal side = ratio * (2 * (m_look.cornerRadius + m_look.blurRadius) + 1);
    const qreal around = ratio * reach();
    QPainterPath box;
    box.addRoundedRect(around, around, side, side, ratio * m_look.cornerRadius, ratio * m_look.cornerRadius);

    QGraphicsScene scene;
    auto *const effect = new QGraphicsDropShadowEffect;
    effect->setBlurRadius(ratio * m_look.blurRadius);
    effect->setOffset(0, ratio * m_look.offset);
    effect->setColor(m_look.colour);
    scene.addPath(box, Qt::NoPen, Qt::black)->setGraphicsEffect(effect);

    QPixmap pixmap(QSizeF(side + 2 * around, side + 2 * around).toSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, pixmap.rect(), pixmap.rect());
    // The box paints its own area.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(box, Qt::black);
    return pixmap;
}

void ShadowCanvas::paintEvent(QPaintEvent *)
{
    const qreal ratio = devicePixelRatioF();
    if (m_shadow.isNull() || m_ratio != ratio) {
        m_shadow = painted(ratio);
        m_ratio = ratio;
    }
    const int edge = m_look.cornerRadius + m_look.blurRadius + reach();
    const int scaledEdge = qRound(ratio * edge);
    QPainter painter(this);
    qDrawBorderPixmap(&painter, m_box->geometry().adjusted(-reach(), -reach(), reach(), reach()),
                      {edge, edge, edge, edge}, m_shadow, m_shadow.rect(),
                      {scaledEdge, scaledEdge, scaledEdge, scaledEdge});
}
