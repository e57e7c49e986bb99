#pragma once

#include <QLabel>
#include <QList>
#include <QTextLayout>

/// A label for external text of any length. The text is always plain, and a word longer than the line, such
/// as a hash, continues in the next one.
class ValueLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ValueLabel(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

    /// Parts of the text with another format.
    virtual QList<QTextLayout::FormatRange> marks() const { return {}; }
    /// The position between two characters that is nearest to the point.
    int positionAt(QPoint point) const;

private:
    QSize frameSize() const;
    /// The origin of the text, laid out at the label's width.
    QPointF layOutInside(QTextLayout &layout) const;
};
