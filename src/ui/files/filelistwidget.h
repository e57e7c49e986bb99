#pragma once

#include "ui/files/fileentry.h"

#include <QList>
#include <QListWidget>

/// The list of the files to shred, fast with many thousands of rows. It takes no rows from drags itself, as
/// every row stands for a file that was added. Interface thread.
class FileListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit FileListWidget(QWidget *parent = nullptr);

    /// Appends one row for each entry. All rows are drawn at once.
    void append(const QList<FileEntry> &entries);

    /// A run of selected rows. selectedRuns() begins with the last run.
    struct Run
    {
        int first = 0;
        int count = 0;
    };
    QList<Run> selectedRuns() const;
    void remove(const QList<Run> &runs);

protected:
    QStringList mimeTypes() const override;
};
