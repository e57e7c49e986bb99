#include "platform/entrypath.h"

#include <QDir>

namespace platform {

namespace {

// On systems whose paths begin with a slash, a backslash is an ordinary character of a name.
bool endsWithSeparator(const QString &folder)
{
    return folder.endsWith(u'/') || (folder.endsWith(u'\\') && !folder.startsWith(u'/'));
}

} // namespace

QString EntryPath::path() const
{
    if (!m_folder)
        return m_name;
    return m_name.isEmpty() ? m_folder->path() : pathInFolder(m_folder->path(), m_name);
}

EntryPath EntryPath::sibling(const QString &name) const
{
    if (m_folder)
        return {m_folder, name};
    // Cuts the text at the last separator. Resolving ".." here could lead to a different folder than the
    // system's own resolution.
    const qsizetype separator = m_name.lastIndexOf(u'/');
    return {pathInFolder(separator < 0 ? QDir::currentPath() : m_name.left(separator + 1), name)};
}

QString pathInFolder(const QString &folder, const QString &name)
{
    QString path;
    path.reserve(folder.size() + 1 + name.size());
    path += folder;
    if (!endsWithSeparator(folder))
        path += u'/';
    path += name;
    return path;
}

} // namespace platform
