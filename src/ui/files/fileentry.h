#pragma once

#include <QString>

#include <optional>

/// A file or folder that the user chose to shred.
struct FileEntry
{
    QString path; ///< as given
    bool isFolder = false;
    qint64 size = 0; ///< bytes; of a folder those of all files below it

    /// Empty when the path does not exist. A link counts as a file without bytes, as the link is shredded and
    /// not its target. A folder takes one question to the system for every file below it.
    static std::optional<FileEntry> fromPath(const QString &path);

    /// The row of the entry in a list: mark, last component and size.
    QString listText() const;
};

/// Bytes of all files that a job on the folder would erase, hidden files included. Links are not followed,
/// and file systems mounted in the folder are not entered.
qint64 sizeOfFilesBelow(const QString &folder);
