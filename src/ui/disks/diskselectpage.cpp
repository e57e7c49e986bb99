#include "ui/disks/diskselectpage.h"

#include "model/spokentext.h"
#include "services/diskmanager.h"
#include "ui/disks/disktree.h"
#include "ui/disks/disktreerows.h"
#include "ui/disks/obstaclestext.h"
#include "ui/style/buttons.h"
#include "ui/style/pagestyle.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString &warningStyle()
{
    static const QString style =
        u"QLabel {  background-color: #fef3c7;  border: 1px solid #f59e0b;  border-radius: 8px;"
        "  padding: 12px 16px;  color: #92400e;  font-size: 13px;}"_s;
    return style;
}

const QString &informationStyle()
{
    static const QString style =
        u"QLabel {  background-color: #dbeafe;  border: 1px solid #3b82f6;  border-radius: 8px;"
        "  padding: 12px 16px;  color: #1e40af;  font-size: 13px;}"_s;
    return style;
}

} // namespace

DiskSelectPage::DiskSelectPage(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(tr("Wipe Disk and Partition")))
    , m_subtitle(new QLabel(tr("Select a disk or partition to wipe. Expand disks to see partitions.")))
    , m_tree(new DiskTree)
    , m_notice(new QLabel)
    , m_back(buttons::makeBack(tr("← Back")))
    , m_next(buttons::makeNext(tr("Next →")))
{
    pagestyle::asTitle(*m_title);
    pagestyle::asSubtitle(*m_subtitle, u"font-size: 14px;color: #64748b;"_s);
    createTree();
    m_notice->setObjectName(u"warningLabel"_s);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    createLayout();
    clearSelection();

    connect(m_back, &QPushButton::clicked, this, &DiskSelectPage::backClicked);
    connect(m_next, &QPushButton::clicked, this, &DiskSelectPage::nextClicked);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &DiskSelectPage::onSelectionChanged);
    connect(m_tree, &QTreeWidget::itemExpanded, this, &DiskSelectPage::onItemExpanded);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &DiskSelectPage::onItemDoubleClicked);
}

void DiskSelectPage::createTree()
{
    m_tree->setObjectName(u"diskTree"_s);
    m_tree->setAccessibleName(tr("Disks and partitions"));
    m_tree->setHeaderLabels({tr("Disk/Partition"), tr("Size"), tr("Type"), tr("Interface"), tr("Status")});
    m_tree->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tree->setAlternatingRowColors(true);
    m_tree->setRootIsDecorated(true);
    m_tree->setAnimated(true);
    m_tree->setMinimumHeight(350);
    // onItemDoubleClicked() expands the row; both together would undo each other.
    m_tree->setExpandsOnDoubleClick(false);

    QHeaderView *header = m_tree->header();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(DiskTreeRows::NameColumn, QHeaderView::Fixed);
    header->setStretchLastSection(true);
    header->setSectionsMovable(false);
}

void DiskSelectPage::createLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_back);
    buttons->addStretch();
    buttons->addWidget(m_next);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(pagestyle::Margins);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addItem(pagestyle::createGap());
    layout->addWidget(m_subtitle);
    layout->addItem(pagestyle::createGap());
    layout->addWidget(m_tree, 1);
    layout->addItem(pagestyle::createGap());
    layout->addWidget(m_notice);
    layout->addItem(pagestyle::createGap());
    layout->addLayout(buttons);
}

void DiskSelectPage::setMode(int mode)
{
    m_mode = mode;
    if (m_mode == WipeFreeSpace) {
        m_title->setText(tr("Wipe Free Space"));
        m_subtitle->setText(tr("Select a partition to securely wipe free space."));
    } else {
        m_title->setText(tr("Wipe Disk and Partition"));
        m_subtitle->setText(
            tr("Select a disk or partition to completely wipe. All data will be permanently deleted."));
    }
}

void DiskSelectPage::refresh()
{
    m_disks = DiskManager::enumerateDisks();
    const QSignalBlocker blocker(m_tree);
    m_tree->clear();
    for (int index = 0; index < m_disks.size(); ++index) {
        QTreeWidgetItem *row = DiskTreeRows::create(m_disks.at(index), index);
        m_tree->addTopLevelItem(row);
        QStringList spanning;
        for (const SpanningVolume &volume : DiskManager::spanningVolumesForDisk(m_disks.at(index).diskNumber))
            spanning.append(ObstaclesText::of(volume));
        row->setToolTip(DiskTreeRows::NameColumn, spanning.join(u'\n'));
        row->setExpanded(row->childCount() > 0);
    }
    m_tree->fitColumns();
    clearSelection();
}

DiskInfo DiskSelectPage::selectedDisk() const
{
    return m_disks.value(m_selectedDiskIndex);
}

PartitionInfo DiskSelectPage::selectedPartition() const
{
    if (m_selectionType != PartitionSelected)
        return {};
    const QList<PartitionInfo> partitions = selectedDisk().partitions;
    const auto found =
        std::ranges::find(partitions, m_selectedPartitionNumber, &PartitionInfo::partitionIndex);
    return found == partitions.end() ? PartitionInfo() : *found;
}

void DiskSelectPage::onSelectionChanged()
{
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    if (selected.isEmpty()) {
        clearSelection();
        return;
    }
    const QTreeWidgetItem &row = *selected.constFirst();
    if (row.data(DiskTreeRows::NameColumn, DiskTreeRows::TypeRole).toInt() == DiskTreeRows::PartitionRow)
        selectPartition(row);
    else
        selectDisk(row);
}

void DiskSelectPage::clearSelection()
{
    m_selectionType = NoSelection;
    m_selectedDiskIndex = -1;
    m_selectedPartitionNumber = -1;
    m_next->setEnabled(false);
    m_notice->hide();
}

void DiskSelectPage::selectDisk(const QTreeWidgetItem &row)
{
    m_selectionType = DiskSelected;
    m_selectedDiskIndex = row.data(DiskTreeRows::NameColumn, DiskTreeRows::DiskIndexRole).toInt();
    m_selectedPartitionNumber = -1;
    judge(row.data(DiskTreeRows::NameColumn, DiskTreeRows::IsSystemDiskRole).toBool(),
          tr("⚠️ Cannot select system disk for wiping."),
          tr("ℹ️ Free space wipe is safe for system disk."
             " It will not affect existing files or system operation."));
}

void DiskSelectPage::selectPartition(const QTreeWidgetItem &row)
{
    m_selectionType = PartitionSelected;
    m_selectedDiskIndex = row.data(DiskTreeRows::NameColumn, DiskTreeRows::DiskIndexRole).toInt();
    m_selectedPartitionNumber = row.data(DiskTreeRows::NameColumn, DiskTreeRows::PartitionNumberRole).toInt();
    judge(row.data(DiskTreeRows::NameColumn, DiskTreeRows::IsSystemPartitionRole).toBool(),
          tr("⚠️ Cannot select system partition for wiping."),
          tr("ℹ️ Free space wipe is safe for system partition."
             " It will not affect existing files or system operation."));
}

void DiskSelectPage::judge(bool isSystem, const QString &refusal, const QString &reassurance)
{
    m_next->setEnabled(m_mode == WipeFreeSpace || !isSystem);
    if (!isSystem)
        m_notice->hide();
    else if (m_mode == WipeFreeSpace)
        showNotice(reassurance, informationStyle());
    else
        showNotice(refusal, warningStyle());
}

void DiskSelectPage::showNotice(const QString &text, const QString &styleSheet)
{
    m_notice->setText(text);
    m_notice->setAccessibleName(spokenText(text));
    m_notice->setStyleSheet(styleSheet);
    m_notice->show();
}

void DiskSelectPage::onItemExpanded(QTreeWidgetItem *item)
{
    // The partitions of a disk at the lower edge would be out of sight.
    if (item && item->childCount() > 0)
        m_tree->scrollToItem(item->child(item->childCount() - 1));
    if (item)
        m_tree->scrollToItem(item);
}

void DiskSelectPage::onItemDoubleClicked(QTreeWidgetItem *item, int)
{
    if (item && item->childCount() > 0)
        item->setExpanded(!item->isExpanded());
}

void DiskSelectPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Restoring a minimised window is no new visit of the page.
    if (!event->spontaneous())
        refresh();
}
