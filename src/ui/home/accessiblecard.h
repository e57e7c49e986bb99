#pragma once

#include <QAccessibleWidget>

class FeatureCard;

/// Presents a FeatureCard to assistive technology as a button.
class AccessibleCard : public QAccessibleWidget
{
public:
    explicit AccessibleCard(FeatureCard *card);

    /// Presents all cards of this process this way. May be called more than once.
    static void install();

    // The card's name and description hold the texts of its labels already.
    int childCount() const override { return 0; }
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
};
