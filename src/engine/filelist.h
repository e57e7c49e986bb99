#pragma once

#include "engine/heldtree.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <vector>

/// A file, link or special file in a folder of a tree.
struct FileEntry
{
    HeldTree::Folder folder = HeldTree::None;
    QString name;
};

/// The targets of a file job, resolved to entries.
struct FileList
{
    std::vector<FileEntry> files;          ///< all entries to delete, each path once
    std::vector<std::size_t> ends;         ///< of each target, in order, the number of files up to its end
    std::vector<HeldTree::Folder> folders; ///< target folders whose whole content is in files
    int unreadable = 0;                    ///< targets and folders that could not be read
};

/// Finds the entries of a list by their folder. The list must not change meanwhile.
class FileIndex
{
public:
    /// Both outlive the object.
    FileIndex(const HeldTree &tree, const std::vector<FileEntry> &files);

    /// The names listed in the folder, whichever path led to it.
    QSet<QString> namesIn(HeldTree::Folder folder) const;

private:
    HeldTree::Folder folderOf(quint32 file) const
    {
        return m_firstAs[static_cast<std::size_t>(m_files[file].folder)];
    }

    const HeldTree &m_tree;
    const std::vector<FileEntry> &m_files;
    std::vector<HeldTree::Folder> m_firstAs; ///< by folder
    std::vector<quint32> m_byFolder;
};
