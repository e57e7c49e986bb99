#pragma once

#include "platform/folderhandle.h"

#include <QString>

#include <memory>
#include <utility>

namespace platform {

// Where an entry stands: a path that the system resolves anew at every call, or one name in a folder that is
// held open. Under the latter nothing is ever reached through a link, nor through something that is mounted
// over the name: whatever becomes of the folders above, the entry is one of the folder that was opened.
class EntryPath
{
public:
    EntryPath(QString path) // NOLINT(google-explicit-constructor): a path is an entry's path
        : m_name(std::move(path))
    {}
    // name: one component; empty for the folder itself.
    EntryPath(std::shared_ptr<FolderHandle> folder, QString name)
        : m_folder(std::move(folder))
        , m_name(std::move(name))
    {}

    // The whole of it, for messages, and for systems where a held folder keeps its path.
    QString path() const;

    // None for a path.
    FolderHandle *folder() const { return m_folder.get(); }
    // The path where there is no folder.
    const QString &name() const { return m_name; }

    // Another name in the same folder.
    EntryPath sibling(const QString &name) const;
    // A stream of the entry, under the name that Files::namedStreams() gives it.
    EntryPath stream(const QString &name) const { return {m_folder, m_name + name}; }

private:
    std::shared_ptr<FolderHandle> m_folder;
    QString m_name;
};

// The path of a name in a folder, which may end with a separator, as roots do. Pure.
QString pathInFolder(const QString &folder, const QString &name);

} // namespace platform
