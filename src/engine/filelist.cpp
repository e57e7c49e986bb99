#include "engine/filelist.h"

#include <algorithm>
#include <numeric>

FileIndex::FileIndex(const HeldTree &tree, const std::vector<FileEntry> &files)
    : m_tree(tree)
    , m_files(files)
    , m_byFolder(files.size())
{
    std::iota(m_byFolder.begin(), m_byFolder.end(), 0U);
    std::ranges::stable_sort(m_byFolder, {}, [this](quint32 i) { return m_tree.firstAs(m_files[i].folder); });
}

QSet<QString> FileIndex::namesIn(HeldTree::Folder folder) const
{
    const auto found = std::ranges::equal_range(m_byFolder, m_tree.firstAs(folder), {}, [this](quint32 i) {
        return m_tree.firstAs(m_files[i].folder);
    });
    QSet<QString> names;
    names.reserve(static_cast<qsizetype>(found.size()));
    for (const quint32 i : found)
        names.insert(m_files[i].name);
    return names;
}
