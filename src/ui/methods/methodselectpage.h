#pragma once

#include "model/wipemethod.h"

#include <QList>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QButtonGroup)
QT_FORWARD_DECLARE_CLASS(QScrollArea)
class MethodCard;

/// Shows every erasure standard of the catalogue as a card, one of which is always chosen. The choice stays
/// as long as the page lives. Interface thread.
class MethodSelectPage : public QWidget
{
    Q_OBJECT

public:
    explicit MethodSelectPage(QWidget *parent = nullptr);

    WipeMethod selectedMethod() const;

signals:
    void backClicked();
    void startClicked();

private:
    void addHeader();
    void addCards();
    void addNavigation();
    void onMethodChosen(int index);

    QList<WipeMethod> m_methods = WipeMethod::allMethods();
    QList<MethodCard *> m_cards;
    QButtonGroup *m_group = nullptr;
    QScrollArea *m_scroll = nullptr;
    int m_selectedIndex = 0;
};
