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
    // All rows are of one height, and measuring each takes longer than reading its file.
    setUniformItemSizes(true);
    // The size stands at the end of a row.
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
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
        // Tips and accessible texts are not drawn, so the view need not hear of them.
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
    // Every removal adjusts the selection, which takes long when the selection has many parts.
    clearSelection();
    for (const Run &run : runs)
        model()->removeRows(run.first, run.count);
    setUpdatesEnabled(true);
}

QStringList FileListWidget::mimeTypes() const
{
    return {};
}
