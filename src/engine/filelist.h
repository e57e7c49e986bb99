#pragma once

#include "engine/heldtree.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <vector>

// A file, link or special file in a folder of a tree.
struct FileEntry
{
    HeldTree::Folder folder = HeldTree::None;
    QString name;
};

// What a file job has to erase.
struct FileList
{
    std::vector<FileEntry> files;          // everything that is to be deleted, each path once
    std::vector<std::size_t> ends;         // of each target, in order, the number of files up to there
    std::vector<HeldTree::Folder> folders; // targets that are folders and whose whole content is in files
    int unreadable = 0;                    // targets and folders that could not be looked into
};

// Finds the entries of a list by their folder. The list stays as it is meanwhile.
class FileIndex
{
public:
    FileIndex(const HeldTree &tree, const std::vector<FileEntry> &files);

    // Under whatever way to the folder they were listed.
    QSet<QString> namesIn(HeldTree::Folder folder) const;

private:
    HeldTree::Folder folderOf(quint32 file) const
    {
        return m_firstAs[static_cast<std::size_t>(m_files[file].folder)];
    }

    const HeldTree &m_tree;
    const std::vector<FileEntry> &m_files;
    std::vector<HeldTree::Folder> m_firstAs; // by folder
    std::vector<quint32> m_byFolder;
};
