#include "engine/folderremoval.h"

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

using platform::Status;

FolderRemoval::FolderRemoval(HeldTree &tree, Observer observer)
    : m_tree(tree)
    , m_observer(std::move(observer))
{}

void FolderRemoval::remove(const std::vector<HeldTree::Folder> &folders)
{
    const std::vector<HeldTree::Folder> meant = topsAmong(m_tree, folders);
    std::vector<HeldTree::Folder> order;
    for (HeldTree::Folder folder = 0; folder < m_tree.size(); ++folder) {
        if (meant[static_cast<std::size_t>(folder)] != HeldTree::None)
            order.push_back(folder);
    }
    // One target after the other, each from its end, because a folder is listed before the folders in it.
    std::ranges::sort(order, [&meant](HeldTree::Folder a, HeldTree::Folder b) {
        const HeldTree::Folder topOfA = meant[static_cast<std::size_t>(a)];
        const HeldTree::Folder topOfB = meant[static_cast<std::size_t>(b)];
        return topOfA != topOfB ? topOfA < topOfB : a > b;
    });
    // A folder may also be held under another of its paths.
    m_tree.releaseAll();
    if (m_observer.emptied)
        return removeByDepth(order);
    for (const HeldTree::Folder folder : order)
        removeFolder(folder);
}

// The blocks of a removed folder are never written again, so that names which are still in them would stay.
void FolderRemoval::removeByDepth(const std::vector<HeldTree::Folder> &order)
{
    std::map<int, std::vector<HeldTree::Folder>, std::greater<>> byDepth;
    for (const HeldTree::Folder folder : order) {
        int depth = 0;
        for (HeldTree::Folder above = folder; above != HeldTree::None; above = m_tree.parentOf(above))
            ++depth;
        byDepth[depth].push_back(folder);
    }
    for (const auto &[depth, folders] : byDepth) {
        m_observer.emptied();
        for (const HeldTree::Folder folder : folders)
            removeFolder(folder);
    }
}

std::vector<HeldTree::Folder> FolderRemoval::topsAmong(const HeldTree &tree,
                                                       const std::vector<HeldTree::Folder> &folders)
{
    std::vector<HeldTree::Folder> tops(static_cast<std::size_t>(tree.size()), HeldTree::None);
    for (const HeldTree::Folder folder : folders)
        tops[static_cast<std::size_t>(folder)] = folder;
    for (HeldTree::Folder folder = 0; folder < tree.size(); ++folder) {
        const HeldTree::Folder parent = tree.parentOf(folder);
        HeldTree::Folder &top = tops[static_cast<std::size_t>(folder)];
        if (parent != HeldTree::None && top == HeldTree::None)
            top = tops[static_cast<std::size_t>(parent)];
    }
    return tops;
}

// Streams of folders are not overwritten.
void FolderRemoval::tellStreams(HeldTree::Folder folder,
                                const platform::Result<QList<platform::NamedStream>> &streams)
{
    if (!streams) {
        if (!streams.status().isAbsent())
            m_observer.streams(m_tree.path(folder), -1, -1);
        return;
    }
    qint64 bytes = 0;
    for (const platform::NamedStream &stream : streams.value())
        bytes += stream.size;
    if (bytes > 0)
        m_observer.streams(m_tree.path(folder), streams.value().size(), bytes);
}

void FolderRemoval::removeFolder(HeldTree::Folder folder)
{
    platform::Platform &system = platform::Platform::current();
    m_tree.release(folder);
    const auto entry = m_tree.asEntry(folder);
    const auto found = entry ? system.files().info(entry.value()) : entry.status();
    if (found.status().isAbsent())
        return;
    if (!found) {
        m_observer.standing(m_tree.path(folder), found.status());
        return;
    }
    if (!m_tree.isSame(folder, found.value())) {
        m_observer.replaced(m_tree.path(folder));
        return;
    }
    const auto streams = system.files().namedStreams(entry.value());
    Status removed = system.folders().removeEmpty(entry.value());
    // Some systems refuse to remove a read-only folder.
    if (removed.code == platform::AccessDenied && system.files().clearReadOnly(entry.value()))
        removed = system.folders().removeEmpty(entry.value());
    if (!removed && !removed.isAbsent())
        m_observer.standing(m_tree.path(folder), removed);
    else
        tellStreams(folder, streams);
}
