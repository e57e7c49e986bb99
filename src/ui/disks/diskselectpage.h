#pragma once

#include "model/diskinfo.h"

#include <QList>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)
class DiskTree;

/// Lets the user pick a disk or one of its partitions. The list is read anew whenever the page is shown,
/// which drops the selection and lasts as long as the devices take to answer. Interface thread.
class DiskSelectPage : public QWidget
{
    Q_OBJECT

public:
    enum Mode { WipeDisk = 0, WipeFreeSpace = 1 };
    enum SelectionType { NoSelection = 0, DiskSelected = 1, PartitionSelected = 2 };

    explicit DiskSelectPage(QWidget *parent = nullptr);

    /// A Mode: what is refused differs, system disks and partitions only take a wipe of their free space.
    /// Sets the texts; a selection is judged again by the next refresh.
    void setMode(int mode);
    /// Reads the disks of the machine; nothing is selected afterwards.
    void refresh();

    /// A SelectionType.
    int selectionType() const { return m_selectionType; }
    /// Of a selected partition, the disk it lies on; an empty record when nothing is selected.
    DiskInfo selectedDisk() const;
    /// An empty record unless a partition is selected.
    PartitionInfo selectedPartition() const;

signals:
    void backClicked();
    void nextClicked();

public slots:
    void onSelectionChanged();
    void onItemExpanded(QTreeWidgetItem *item);
    void onItemDoubleClicked(QTreeWidgetItem *item, int column);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createTree();
    void createLayout();
    void clearSelection();
    void selectDisk(const QTreeWidgetItem &row);
    void selectPartition(const QTreeWidgetItem &row);
    // What the mode says to a choice that is or is not one of the system's.
    void judge(bool isSystem, const QString &refusal, const QString &reassurance);
    void showNotice(const QString &text, const QString &styleSheet);

    int m_mode = WipeDisk;
    int m_selectionType = NoSelection;
    QList<DiskInfo> m_disks;
    int m_selectedDiskIndex = -1;
    int m_selectedPartitionNumber = -1;

    QLabel *m_title;
    QLabel *m_subtitle;
    DiskTree *m_tree;
    QLabel *m_notice;
    QPushButton *m_back;
    QPushButton *m_next;
};
