#include "ui/home/accessiblecard.h"

#include "ui/home/featurecard.h"

#include <QAccessible>

namespace {

QAccessibleInterface *makeAccessibleCard(const QString &, QObject *object)
{
    auto *const card = qobject_cast<FeatureCard *>(object);
    return card != nullptr ? new AccessibleCard(card) : nullptr;
}

} // namespace

AccessibleCard::AccessibleCard(FeatureCard *card)
    : QAccessibleWidget(card, QAccessible::Button)
{}

void AccessibleCard::install()
{
    // Qt does not add a factory twice.
    QAccessible::installFactory(makeAccessibleCard);
}

QStringList AccessibleCard::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void AccessibleCard::doAction(const QString &actionName)
{
    auto *const card = qobject_cast<FeatureCard *>(object());
    if (actionName == pressAction() && card != nullptr)
        card->click();
    else
        QAccessibleWidget::doAction(actionName);
}
