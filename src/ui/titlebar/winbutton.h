#pragma once

#include <QPushButton>

/// A button of the title bar that draws its own sign.
class WinButton : public QPushButton
{
    Q_OBJECT

public:
    enum Kind { Menu, Minimize, Maximize, Close };

    explicit WinButton(Kind kind, QWidget *parent = nullptr);

    Kind kind() const { return m_kind; }

    /// Makes a Maximize button show the sign for restoring.
    void setMaximized(bool maximized);

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void paintBackground(QPainter &painter) const;
    void paintGlyph(QPainter &painter) const;

    Kind m_kind;
    bool m_maximized = false;
};
