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
    const auto found = std::ranges::equal_range(m_byFolder, m_tree.firstAs(folder), {},
                                                [this](quint32 file) { return folderOf(file); });
    QSet<QString> names;
    names.reserve(static_cast<qsizetype>(found.size()));
    for (const quint32 file : found)
        names.insert(m_files[file].name);
    return names;
}
