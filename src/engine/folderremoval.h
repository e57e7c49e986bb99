#pragma once

#include "engine/heldtree.h"
#include "platform/status.h"

#include <QString>

#include <functional>
#include <vector>

/// Removes the folders of a tree, the deepest first, and no other entries. A folder that is not empty stays,
/// and so do the folders above it.
class FolderRemoval
{
public:
    struct Observer
    {
        std::function<void(const QString &path)> replaced; ///< another folder stands there
        std::function<void(const QString &path, const platform::Status &status)> standing;
        /// Named streams of the folder itself, which go with it; below 0 when they could not be counted.
        std::function<void(const QString &path, qint64 streams, qint64 bytes)> streams;
        /// Called before the folders of each depth, the greatest first, when the names in them are gone. Null
        /// where one target is to go after the other.
        std::function<void()> emptied{};
    };

    /// The tree outlives the object.
    FolderRemoval(HeldTree &tree, Observer observer);

    /// Removes the folders and all folders of the tree below them.
    void remove(const std::vector<HeldTree::Folder> &folders);

    /// For each folder of the tree, the given folder that contains it or is the same; None for the others.
    static std::vector<HeldTree::Folder> topsAmong(const HeldTree &tree,
                                                   const std::vector<HeldTree::Folder> &folders);

private:
    void removeByDepth(const std::vector<HeldTree::Folder> &order);
    void removeFolder(HeldTree::Folder folder);
    void tellStreams(HeldTree::Folder folder, const platform::Result<QList<platform::NamedStream>> &streams);

    HeldTree &m_tree;
    Observer m_observer;
};
