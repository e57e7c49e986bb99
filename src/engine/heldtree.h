#pragma once

#include "platform/entrypath.h"
#include "platform/fileid.h"
#include "platform/folders.h"
#include "platform/status.h"

#include <QHash>
#include <QMutex>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

// The folders of a job, each known by what it was when it was found. Whatever is done in one of them is done
// relative to a handle to it. Only a few are open at a time, whatever their number and depth; one that is
// opened again is reached from another one that is held, without following a link, and has to be the same.
//
// Folders are added by one thread while no other uses the tree; everything else is thread-safe.
class HeldTree
{
public:
    using Folder = int;
    static constexpr Folder None = -1;

    // How many folders are open at a time depends on how many the process may have open by then.
    HeldTree();

    // A folder as the system resolves its path, now; what the path leads to later does not matter.
    platform::Result<Folder> addTop(const QString &path);
    // A folder in one of the tree; the same one again when it is still that.
    platform::Result<Folder> addFolder(Folder parent, const QString &name,
                                       platform::Folders::Mounts mounts = platform::Folders::Mounts::Refuse);

    int size() const { return static_cast<int>(m_nodes.size()); }
    // None for a top.
    Folder parentOf(Folder folder) const { return node(folder).parent; }
    // The first folder of the tree that is the same one, maybe itself: it may have been reached on two ways.
    Folder firstAs(Folder folder) const;
    // Nothing where the file system knows its folders by no lasting numbers.
    std::optional<platform::FileId> idOf(Folder folder) const { return node(folder).id; }
    QString path(Folder folder) const;
    QString path(Folder folder, const QString &name) const;

    // PathNotFound when it is no longer there, or another.
    platform::Result<platform::EntryPath> entry(Folder folder, const QString &name);
    platform::Result<platform::EntryPath> itself(Folder folder) { return entry(folder, {}); }
    // The folder as an entry of the one that contains it; InvalidParameter for a top.
    platform::Result<platform::EntryPath> asEntry(Folder folder);
    // Whether what was found under the name of a folder is still that folder.
    bool isSame(Folder folder, const platform::FileInfo &found) const;

    // Lets go of a folder that is about to be removed: on some systems nobody can while it is held.
    void release(Folder folder);
    // The same of all of them.
    void releaseAll();

private:
    using Handle = std::shared_ptr<platform::FolderHandle>;

    struct Node
    {
        Folder parent = None;
        QString name; // the path of a top
        platform::Folders::Mounts mounts = platform::Folders::Mounts::Refuse;
        std::optional<platform::FileId> id{}; // where the file system knows its folders by lasting numbers
        Handle pinned{}; // a top that nothing would tell from another one when it is opened again
    };
    struct Held
    {
        Folder folder = None;
        Handle handle;
        quint64 used = 0;
    };
    struct Name
    {
        Folder parent = None;
        QString name;

        bool operator==(const Name &) const = default;
        friend size_t qHash(const Name &key, size_t seed = 0)
        {
            return qHashMulti(seed, key.parent, key.name);
        }
    };

    const Node &node(Folder folder) const { return m_nodes[static_cast<std::size_t>(folder)]; }
    Folder add(Node node, const Handle &handle);
    platform::Result<Handle> hold(Folder folder);
    Handle held(Folder folder);
    platform::Result<Handle> reopen(Folder folder, const Handle &parent) const;
    void keep(Folder folder, const Handle &handle);

    std::vector<Node> m_nodes;
    QHash<Name, Folder> m_byName;
    QHash<platform::FileId, Folder> m_firstById;
    std::size_t m_mostHeld;
    std::size_t m_mostPinned;
    std::size_t m_pinned = 0; // tops that are
    QMutex m_mutex;           // guards what follows
    std::vector<Held> m_held;
    quint64 m_clock = 0;
};
