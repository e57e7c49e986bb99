#pragma once

#include "ui/files/fileentry.h"

#include <QList>
#include <QListWidget>

/// A list of what is to be shredded, made for many thousands of rows. Takes no rows from drags of other
/// programs: a row stands for a file that was added.
class FileListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit FileListWidget(QWidget *parent = nullptr);

    /// Appends one row each, drawn once for all of them.
    void append(const QList<FileEntry> &entries);

    /// Rows that are selected, as first row and count, from the last to the first.
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
