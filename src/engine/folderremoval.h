#pragma once

#include "engine/heldtree.h"
#include "platform/status.h"

#include <QString>

#include <functional>
#include <vector>

// Removes the folders of a tree, the deepest first, and nothing but folders: one in which something is left
// stays, and with it those above.
class FolderRemoval
{
public:
    struct Observer
    {
        std::function<void(const QString &path)> replaced; // another stands there
        std::function<void(const QString &path, const platform::Status &status)> standing;
        // What the folder holds beside its entries, which goes with it; below 0: nobody can tell.
        std::function<void(const QString &path, qint64 streams, qint64 bytes)> streams;
    };

    FolderRemoval(HeldTree &tree, Observer observer);

    // The folders and all of the tree below them.
    void remove(const std::vector<HeldTree::Folder> &folders);

    // For each folder of the tree that one of these which it is or is below; None for others.
    static std::vector<HeldTree::Folder> topsAmong(const HeldTree &tree,
                                                   const std::vector<HeldTree::Folder> &folders);

private:
    void removeFolder(HeldTree::Folder folder);
    void tellStreams(HeldTree::Folder folder, const platform::EntryPath &entry);

    HeldTree &m_tree;
    Observer m_observer;
};
