#pragma once

#include <QTreeWidget>

/// A tree whose first column takes the room that the other columns leave, so that as much as possible of a
/// drive's name can be read. The last column takes the pixels that rounding leaves.
class DiskTree : public QTreeWidget
{
    Q_OBJECT

public:
    using QTreeWidget::QTreeWidget;

    /// Fits the columns to the rows. To be called when rows have changed.
    void fitColumns();

protected:
    // Called when a scroll bar appears or disappears.
    void updateGeometries() override;
};
