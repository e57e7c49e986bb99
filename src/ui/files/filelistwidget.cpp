#include "ui/files/filelistwidget.h"

#include "model/displaytext.h"
#include "model/spokentext.h"
#include "ui/style/tooltip.h"

#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

FileListWidget::FileListWidget(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(u"fileList"_s);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // All rows are alike, and measuring each costs more than reading its file.
    setUniformItemSizes(true);
    // The size stands at the end of a row.
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setStyleSheet(u"QListWidget { background-color: white; border: 1px solid #e2e8f0; border-radius: 12px;"
                  " outline: none; }"
                  "QListWidget:focus { border-color: #3b82f6; }"
                  "QListWidget::item { padding: 10px 12px; border-bottom: 1px solid #f1f5f9; }"
                  "QListWidget::item:selected { background-color: #eff6ff; color: #1e40af; }"
                  "QListWidget::item:focus:!selected { border-bottom: 1px solid #3b82f6; }"_s);
}

void FileListWidget::append(const QList<FileEntry> &entries)
{
    if (entries.isEmpty())
        return;
    QStringList texts;
    texts.reserve(entries.size());
    for (const FileEntry &entry : entries)
        texts.append(entry.listText());
    const int firstRow = count();
    setUpdatesEnabled(false);
    insertItems(firstRow, texts);
    {
        // Neither a tip nor what is read aloud changes anything that is drawn.
        const QSignalBlocker blocker(model());
        for (int i = 0; i < entries.size(); ++i) {
            QListWidgetItem *const row = item(firstRow + i);
            row->setToolTip(plainTip(displayText(entries.at(i).path)));
            row->setData(Qt::AccessibleTextRole, spokenText(row->text()));
        }
    }
    setUpdatesEnabled(true);
}

QList<FileListWidget::Run> FileListWidget::selectedRuns() const
{
    QList<Run> runs;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        runs.append({range.top(), range.height()});
    std::ranges::sort(runs, std::ranges::greater(), &Run::first);
    return runs;
}

void FileListWidget::remove(const QList<Run> &runs)
{
    setUpdatesEnabled(false);
    // A selection is adjusted at every removal, which takes long when it has many parts.
    clearSelection();
    for (const Run &run : runs)
        model()->removeRows(run.first, run.count);
    setUpdatesEnabled(true);
}

QStringList FileListWidget::mimeTypes() const
{
    return {};
}
