#pragma once

#include "engine/filelist.h"
#include "engine/heldtree.h"
#include "platform/fileid.h"
#include "platform/files.h"

#include <QSet>

/// Recognises a file that was already met under another spelling of its name, such as a short name or other
/// capitals. A file with several hard links is not a repetition, since each of its names has to be deleted.
class RepeatedFiles
{
public:
    /// The tree outlives the object.
    explicit RepeatedFiles(const HeldTree &tree)
        : m_tree(tree)
    {}

    /// False for the first of several, and where files have no lasting numbers.
    bool isRepeated(const FileEntry &file, const platform::FileInfo &found)
    {
        if (found.linkCount != 1 || found.id.number == 0 || !m_tree.idOf(file.folder))
            return false;
        const qsizetype before = m_met.size();
        m_met.insert(found.id);
        return m_met.size() == before;
    }

private:
    const HeldTree &m_tree;
    QSet<platform::FileId> m_met;
};
