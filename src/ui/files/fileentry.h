#pragma once

#include <QString>

#include <optional>

/// Something the user chose to shred.
struct FileEntry
{
    QString path; ///< as given
    bool isFolder = false;
    qint64 size = 0; ///< bytes; of a folder those of all files below it

    /// Empty when there is nothing of that name. A link is shredded itself and not what it leads to, so it
    /// counts as a file without bytes. Sizing a folder takes a question to the system for every file below.
    static std::optional<FileEntry> fromPath(const QString &path);

    /// As a list shows it: mark, last component and size.
    QString listText() const;
};

/// Sum of the sizes of all files that a job on the folder would erase, hidden ones included. Links are not
/// followed, and what is mounted in it is not entered.
qint64 sizeOfFilesBelow(const QString &folder);
