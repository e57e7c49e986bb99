#pragma once

#include <QLabel>
#include <QList>
#include <QTextLayout>

/// A label for text of any length from outside: never rich text, and a word that is longer than the line,
/// such as a hash, goes on in the next one.
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

    /// Parts of the text to be painted otherwise.
    virtual QList<QTextLayout::FormatRange> marks() const { return {}; }
    /// Of the boundary between two characters that is nearest to the point.
    int positionAt(QPoint point) const;

private:
    QSize frameSize() const;
    /// Where the text begins, once it is laid out at the label's width.
    QPointF layOutInside(QTextLayout &layout) const;
};
