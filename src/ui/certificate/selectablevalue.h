#pragma once

#include "ui/certificate/valuelabel.h"

/// A value that can be selected with the mouse and copied. A double click selects all of it; without a
/// selection the menu copies all of it.
class SelectableValue : public ValueLabel
{
    Q_OBJECT

public:
    explicit SelectableValue(const QString &text, QWidget *parent = nullptr);

    /// The selected text, empty without a selection.
    QString markedText() const;

protected:
    QList<QTextLayout::FormatRange> marks() const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void mark(int from, int to);
    void copy() const;

    int m_from = 0;
    int m_to = 0; ///< before m_from when selected from right to left
};
