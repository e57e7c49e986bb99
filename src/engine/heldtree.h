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

/// The folders of a job, each with the identity that it had when it was found. All work in a folder is done
/// relative to its handle. Only a few folders are open at a time, whatever their number and depth. A folder
/// is opened again from another held folder, without following a link, and must be the same as before.
///
/// Folders are added by one thread while no other uses the tree; all other functions are thread-safe.
class HeldTree
{
public:
    using Folder = int;
    static constexpr Folder None = -1;

    /// The number of open folders depends on the process limit for open files at this time.
    HeldTree();

    /// Adds a folder as the system resolves its path now. Later changes of the path have no effect.
    platform::Result<Folder> addTop(const QString &path);
    /// Adds a folder inside a folder of the tree; returns the existing one when it is still the same.
    platform::Result<Folder> addFolder(Folder parent, const QString &name,
                                       platform::Folders::Mounts mounts = platform::Folders::Mounts::Refuse);

    int size() const { return static_cast<int>(m_nodes.size()); }
    /// None for a top.
    Folder parentOf(Folder folder) const { return node(folder).parent; }
    /// The first folder of the tree with the same identity, possibly itself. A folder may be reached on two
    /// paths.
    Folder firstAs(Folder folder) const;
    /// Nothing where the file system has no lasting folder numbers.
    std::optional<platform::FileId> idOf(Folder folder) const { return node(folder).id; }
    /// The path as it was when the folder was found, for messages.
    QString path(Folder folder) const;
    QString path(Folder folder, const QString &name) const;

    /// PathNotFound when the folder is gone, or has been replaced.
    platform::Result<platform::EntryPath> entry(Folder folder, const QString &name);
    /// The folder itself as an entry with an empty name.
    platform::Result<platform::EntryPath> itself(Folder folder) { return entry(folder, {}); }
    /// The folder as an entry of its parent; InvalidParameter for a top.
    platform::Result<platform::EntryPath> asEntry(Folder folder);
    /// Whether the entry found under the name of a folder is still that folder.
    bool isSame(Folder folder, const platform::FileInfo &found) const;

    /// Closes a folder that is about to be removed, since some systems refuse to remove a folder that is
    /// open.
    void release(Folder folder);
    void releaseAll();

private:
    using Handle = std::shared_ptr<platform::FolderHandle>;

    struct Node
    {
        Folder parent = None;
        QString name; ///< the path of a top
        platform::Folders::Mounts mounts = platform::Folders::Mounts::Refuse;
        std::optional<platform::FileId> id{}; ///< where the file system has lasting folder numbers
        /// A top without an id stays open, since it could not be recognised when it is opened again.
        Handle pinned{};
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
    std::size_t m_pinned = 0; ///< number of pinned tops
    QMutex m_mutex;           ///< guards the members below
    std::vector<Held> m_held;
    quint64 m_clock = 0;
};
