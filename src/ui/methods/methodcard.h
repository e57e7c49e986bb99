#pragma once

#include "model/wipemethod.h"

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLayout)
QT_FORWARD_DECLARE_CLASS(QRadioButton)

/// One erasure standard to choose. A press anywhere on the card checks its radio button; the keyboard reaches
/// the radio button itself.
class MethodCard : public QWidget
{
    Q_OBJECT

public:
    explicit MethodCard(const WipeMethod &method, QWidget *parent = nullptr);

    QRadioButton *radioButton() const { return m_radio; }
    const WipeMethod &method() const { return m_method; }

signals:
    void clicked();

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createRadio(const QString &passes);
    QLayout *makeTexts(const QString &passes) const;
    QLabel *makeBadge() const;

    WipeMethod m_method;
    QRadioButton *m_radio = nullptr;
    bool m_hovered = false;
    bool m_focusFrame = false;
};
