#pragma once

#include <QAccessibleWidget>

class FeatureCard;

/// Presents a FeatureCard to assistive technology as what it is to its user: a button.
class AccessibleCard : public QAccessibleWidget
{
public:
    explicit AccessibleCard(FeatureCard *card);

    /// Makes all cards of this process be presented this way. May be called more than once.
    static void install();

    // The texts of the labels inside are the card's own name and description.
    int childCount() const override { return 0; }
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
};
