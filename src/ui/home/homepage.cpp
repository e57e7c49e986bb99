#include "ui/home/homepage.h"

#include "ui/home/featurecard.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize TallCardSize(300, 390);
constexpr QSize CompactCardSize(300, 120);
// Three compact cards and two gaps are as high as the tall card.
constexpr int CardGap = (390 - 3 * 120) / 2;

} // namespace

HomePage::HomePage(QWidget *parent)
    : QWidget(parent)
{
    auto *const content = new QVBoxLayout;
    content->setSpacing(0);
    content->addWidget(makeHeadline());
    content->addSpacing(30);
    content->addLayout(makeCards());
    content->addSpacing(24);
    content->addLayout(makeStandards());
    content->addStretch();

    // In a wide window headline and cards stay together in the middle, on one left edge.
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(30, 30, 30, 30);
    layout->addStretch();
    layout->addLayout(content);
    layout->addStretch();
}

QWidget *HomePage::makeHeadline() const
{
    auto *const headline = new QLabel(tr("Destroy Data Permanently. No Leaks."));
    headline->setObjectName(u"pageTitle"_s);
    headline->setWordWrap(true);
    return headline;
}

QBoxLayout *HomePage::makeCards()
{
    m_diskCard = new FeatureCard(u":/icons/icon_disk_wipe.svg"_s, tr("Disk Wipe"),
                                 tr("Completely erase all data on the disk, including partitions and boot "
                                    "records"),
                                 0);
    m_freeSpaceCard = new FeatureCard(u":/icons/icon_freespace_wipe.svg"_s, tr("Free Space Wipe"),
                                      tr("Remove remnants of deleted files"), 1);
    m_fileCard = new FeatureCard(u":/icons/icon_file_wipe.svg"_s, tr("File Wipe"),
                                 tr("Permanently shred files and folders"), 2);
    m_recycleBinCard = new FeatureCard(u":/icons/icon_recycle_wipe.svg"_s, tr("Recycle Bin Wipe"),
                                       tr("Wipe deleted files in Recycle Bin"), 3);
    connect(m_diskCard, &FeatureCard::clicked, this, &HomePage::diskWipeClicked);
    connect(m_freeSpaceCard, &FeatureCard::clicked, this, &HomePage::freeSpaceWipeClicked);
    connect(m_fileCard, &FeatureCard::clicked, this, &HomePage::fileWipeClicked);
    connect(m_recycleBinCard, &FeatureCard::clicked, this, &HomePage::recycleBinWipeClicked);

    m_diskCard->setFixedSize(TallCardSize);
    auto *const column = new QVBoxLayout;
    column->setSpacing(CardGap);
    for (FeatureCard *const card : {m_freeSpaceCard, m_fileCard, m_recycleBinCard}) {
        card->setCompact(true);
        card->setFixedSize(CompactCardSize);
        column->addWidget(card);
    }

    auto *const row = new QHBoxLayout;
    row->setSpacing(CardGap);
    row->addWidget(m_diskCard);
    row->addLayout(column);
    return row;
}

QBoxLayout *HomePage::makeStandards() const
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(10);
    for (const QString &standard : {tr("DoD 5220.22-M"), tr("NIST 800-88"), tr("Gutmann 35-Pass")}) {
        auto *const label = new QLabel(standard);
        label->setObjectName(u"standardLabel"_s);
        row->addWidget(label);
    }
    row->addStretch();
    return row;
}
