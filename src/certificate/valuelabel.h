#pragma once

#include <QLabel>

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

private:
    QSize frameSize() const;
};
