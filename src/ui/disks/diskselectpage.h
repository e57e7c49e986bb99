#pragma once

#include "model/diskinfo.h"

#include <QList>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)
class DiskTree;

/// Lets the user choose a disk or one of its partitions. Showing the page reads the list anew, which clears
/// the selection and takes as long as the devices need to answer. Interface thread.
class DiskSelectPage : public QWidget
{
    Q_OBJECT

public:
    enum Mode { WipeDisk = 0, WipeFreeSpace = 1 };
    enum SelectionType { NoSelection = 0, DiskSelected = 1, PartitionSelected = 2 };

    explicit DiskSelectPage(QWidget *parent = nullptr);

    /// Takes a Mode and sets the texts. System disks and partitions are refused in WipeDisk only. The next
    /// refresh() judges a selection by the new mode.
    void setMode(int mode);
    /// Reads the disks of the machine and clears the selection.
    void refresh();

    /// Returns a SelectionType.
    int selectionType() const { return m_selectionType; }
    /// Returns the selected disk, or the disk of the selected partition; an empty record without a selection.
    DiskInfo selectedDisk() const;
    /// Returns an empty record unless a partition is selected.
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
    // Allows or refuses the choice, by the mode, and shows the notice for it.
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
