#include "engine/filelist.h"

#include <algorithm>
#include <numeric>

FileIndex::FileIndex(const HeldTree &tree, const std::vector<FileEntry> &files)
    : m_tree(tree)
    , m_files(files)
    , m_byFolder(files.size())
{
    m_firstAs.reserve(static_cast<std::size_t>(tree.size()));
    for (HeldTree::Folder folder = 0; folder < tree.size(); ++folder)
        m_firstAs.push_back(tree.firstAs(folder));
    std::iota(m_byFolder.begin(), m_byFolder.end(), 0U);
    std::ranges::sort(m_byFolder, {}, [this](quint32 file) { return folderOf(file); });
}

QSet<QString> FileIndex::namesIn(HeldTree::Folder folder) const
{
    const auto folderOfFile = [this](quint32 file) { return folderOf(file); };
    const HeldTree::Folder wanted = m_tree.firstAs(folder);
    const auto first = std::ranges::lower_bound(m_byFolder, wanted, {}, folderOfFile);
    const auto last = std::ranges::upper_bound(first, m_byFolder.cend(), wanted, {}, folderOfFile);
    QSet<QString> names;
    names.reserve(std::distance(first, last));
    std::for_each(first, last, [&](quint32 file) { names.insert(m_files[file].name); });
    return names;
}
