#include "ui/disks/disktree.h"

#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int SmallestName = 160; // pixels

} // namespace

void DiskTree::fitColumns()
{
    int others = 0;
    for (int column = 1; column < columnCount(); ++column)
        others += std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
    const int width = viewport()->width() - others;
    const int smallest = std::max(SmallestName, header()->sectionSizeHint(0));
    header()->resizeSection(0, std::max(smallest, width));
    // The contents may be wider than their hints.
    const int surplus = header()->length() - viewport()->width();
    if (surplus > 0)
        header()->resizeSection(0, std::max(smallest, width - surplus));
}

void DiskTree::updateGeometries()
{
    QTreeWidget::updateGeometries();
    // This does not go on for ever, as a section that has its size already is not resized.
    fitColumns();
}
