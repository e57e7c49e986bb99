#pragma once

#include "model/wipemethod.h"
#include "ui/cards/card.h"

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLayout)
QT_FORWARD_DECLARE_CLASS(QRadioButton)

/// One erasure standard to choose. A press anywhere on the card checks its radio button. The keyboard reaches
/// the radio button, not the card.
class MethodCard : public Card
{
    Q_OBJECT

public:
    explicit MethodCard(const WipeMethod &method, QWidget *parent = nullptr);

    QRadioButton *radioButton() const { return m_radio; }
    const WipeMethod &method() const { return m_method; }

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createRadio(const QString &passes);
    QLayout *makeTexts(const QString &passes) const;
    QLabel *makeBadge() const;
    Face face() const;

    WipeMethod m_method;
    QRadioButton *m_radio = nullptr;
};
