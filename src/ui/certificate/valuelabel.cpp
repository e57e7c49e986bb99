#include "ui/certificate/valuelabel.h"

#include <QPainter>
#include <QTextLayout>
#include <QtMath>

namespace {

// A narrower text is not readable.
constexpr int fewestCharacters = 8;

// Breaks the text into lines of the given width and returns their total height.
int layOut(QTextLayout &layout, qreal width)
{
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return qCeil(height);
}

} // namespace

ValueLabel::ValueLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

// The size of the frame that the style draws around the text.
QSize ValueLabel::frameSize() const
{
    return size() - contentsRect().size();
}

QSize ValueLabel::sizeHint() const
{
    ensurePolished();
    const QSize oneLine(fontMetrics().horizontalAdvance(text()), fontMetrics().height());
    return oneLine + frameSize();
}

QSize ValueLabel::minimumSizeHint() const
{
    ensurePolished();
    const QSize smallest(fontMetrics().averageCharWidth() * fewestCharacters, fontMetrics().height());
    return smallest + frameSize();
}

int ValueLabel::heightForWidth(int width) const
{
    ensurePolished();
    const QSize frame = frameSize();
    QTextLayout layout(text(), font(), this);
    const int height = layOut(layout, qMax(1, width - frame.width()));
    return qMax(fontMetrics().height(), height) + frame.height();
}

void ValueLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    painter.setPen(palette().color(foregroundRole()));
    QTextLayout layout(text(), font(), this);
    const QPointF begin = layOutInside(layout);
    layout.draw(&painter, begin, marks());
}

QPointF ValueLabel::layOutInside(QTextLayout &layout) const
{
    const QRect box = contentsRect();
    const int height = layOut(layout, box.width());
    // Whole pixels, because letters would blur otherwise.
    const int above = (box.height() - height + 1) / 2;
    return QPointF(box.left(), box.top() + above);
}

int ValueLabel::positionAt(QPoint point) const
{
    QTextLayout layout(text(), font());
    const QPointF inside = point - layOutInside(layout);
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        if (inside.y() < line.rect().bottom() || i == layout.lineCount() - 1)
            return line.xToCursor(inside.x());
    }
    return 0;
}
