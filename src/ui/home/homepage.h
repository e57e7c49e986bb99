#pragma once

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
class FeatureCard;

/// The page where every flow starts. It shows one card for each kind of wipe, and the erasure standards by
/// name.
class HomePage : public QWidget
{
    Q_OBJECT

public:
    explicit HomePage(QWidget *parent = nullptr);

signals:
    void diskWipeClicked();
    void freeSpaceWipeClicked();
    void fileWipeClicked();
    void recycleBinWipeClicked();

private:
    QWidget *makeHeadline() const;
    QBoxLayout *makeCards();
    QBoxLayout *makeStandards() const;

    FeatureCard *m_diskCard = nullptr;
    FeatureCard *m_freeSpaceCard = nullptr;
    FeatureCard *m_fileCard = nullptr;
    FeatureCard *m_recycleBinCard = nullptr;
};
