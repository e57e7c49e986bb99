#pragma once

#include <QTreeWidget>

/// A tree whose first column takes the room that the contents of the others leave, so that as much as
/// possible of a drive's name can be read; the last one stretches over what rounding leaves.
class DiskTree : public QTreeWidget
{
    Q_OBJECT

public:
    using QTreeWidget::QTreeWidget;

    /// To be called when rows have changed.
    void fitColumns();

protected:
    // Also when a scroll bar comes or goes.
    void updateGeometries() override;
};
