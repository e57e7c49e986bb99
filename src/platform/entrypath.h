#pragma once

#include "platform/folderhandle.h"

#include <QString>

#include <memory>
#include <utility>

namespace platform {

/// The location of an entry: a path that the system resolves anew at every call, or one name in a held
/// folder. In a held folder no operation follows a link or reaches a file system that is mounted over the
/// name, so the entry belongs to the opened folder even if the folders above change.
class EntryPath
{
public:
    EntryPath(QString path) // NOLINT(google-explicit-constructor): a path is an entry's path
        : m_name(std::move(path))
    {}
    /// name: one component; empty for the folder itself.
    EntryPath(std::shared_ptr<FolderHandle> folder, QString name)
        : m_folder(std::move(folder))
        , m_name(std::move(name))
    {}

    /// The full path, for messages, and for systems where a held folder keeps its path.
    QString path() const;

    /// The held folder; null for a path.
    FolderHandle *folder() const { return m_folder.get(); }
    /// The name in the held folder; the path where there is no held folder.
    const QString &name() const { return m_name; }

    /// Another name in the same folder.
    EntryPath sibling(const QString &name) const;
    /// A stream of the entry, under the name that Files::namedStreams() gives it.
    EntryPath stream(const QString &name) const { return {m_folder, m_name + name}; }

private:
    std::shared_ptr<FolderHandle> m_folder;
    QString m_name;
};

/// The path of a name in a folder, which may end with a separator, as roots do. Pure.
QString pathInFolder(const QString &folder, const QString &name);

} // namespace platform
