#include "engine/filecollector.h"

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;
using platform::FileKind;
using platform::Result;
using platform::Status;

namespace {

bool isRoot(const QString &path)
{
    return path == u"/"_s || (path.size() == 3 && path.endsWith(u":/"_s));
}

// "link/" and "link/." mean the folder that the link leads to; a link is to be taken as it is. ".." stays:
// dropping it from the text could name another folder than the system does.
QString withoutTrailingSeparators(QString path)
{
    while (!isRoot(path) && (path.endsWith(u'/') || path.endsWith(u"/."_s)))
        path.chop(1);
    return path;
}

struct Split
{
    QString folder;
    QString name; // empty for what no folder contains under a name: a root, "..", ".", nothing
};

Split split(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    const QString name = path.mid(slash + 1);
    if (isRoot(path) || name.isEmpty() || name == u"."_s || name == u".."_s)
        return {path, {}};
    const QString folder = path.left(slash + 1);
    return {folder.isEmpty() ? u"."_s : isRoot(folder) ? folder : folder.chopped(1), name};
}

} // namespace

FileCollector::FileCollector(HeldTree &tree, Observer observer)
    : m_tree(tree)
    , m_observer(std::move(observer))
{}

FileList FileCollector::collect(const QStringList &targets)
{
    m_mayRepeat = targets.size() > 1;
    for (const QString &target : targets) {
        if (!m_observer.goOn())
            break;
        addTarget(withoutTrailingSeparators(QDir::fromNativeSeparators(target)));
    }
    m_paths = {};
    return std::exchange(m_list, {});
}

FileList FileCollector::collectNew(const std::vector<Folder> &folders, const FileIndex &known)
{
    m_mayRepeat = folders.size() > 1;
    m_known = &known;
    for (const Folder folder : folders) {
        if (addContent(folder))
            m_list.folders.push_back(folder);
    }
    m_known = nullptr;
    m_paths = {};
    return std::exchange(m_list, {});
}

void FileCollector::addTarget(const QString &target)
{
    const Split parts = split(target);
    const Result<Folder> above = m_tree.addTop(parts.folder);
    if (isAbsent(above.status()))
        return;
    if (parts.name.isEmpty() || !above) {
        addFolderTarget(above, target);
        return;
    }
    const Result<platform::EntryPath> entry = m_tree.entry(above.value(), parts.name);
    const auto info = entry ? platform::Platform::current().files().info(entry.value()) : entry.status();
    if (isAbsent(info.status()))
        return;
    if (!info) {
        tellUnreadable(Unreadable::Target, target, info.status());
        return;
    }
    switch (info.value().kind) {
    case FileKind::Regular:
    case FileKind::Link:
        addFile(above.value(), parts.name);
        break;
    case FileKind::Folder:
        // A volume that the user has named is meant.
        addFolderTarget(m_tree.addFolder(above.value(), parts.name, platform::Folders::Mounts::Enter),
                        target);
        break;
    case FileKind::Special:
        break;
    }
}

void FileCollector::addFolderTarget(const Result<Folder> &folder, const QString &target)
{
    if (!folder)
        tellUnreadable(Unreadable::Target, target, folder.status());
    else if (addContent(folder.value()))
        m_list.folders.push_back(folder.value());
}

// A stack instead of recursion, and few open folders at a time: the depth of a tree is limited by nothing.
bool FileCollector::addContent(Folder target)
{
    bool complete = true;
    std::vector<Folder> pending{target};
    while (!pending.empty()) {
        const Folder folder = pending.back();
        pending.pop_back();
        if (!m_observer.goOn() || !listFolder(folder, pending, complete))
            return false;
    }
    return complete;
}

// False when the observer ended the scan. The folders are entered when the listing is through: a visitor is
// no place to wait in.
bool FileCollector::listFolder(Folder folder, std::vector<Folder> &pending, bool &complete)
{
    const QSet<QString> known = m_known ? m_known->namesIn(folder) : QSet<QString>();
    QStringList folders;
    bool goesOn = true;
    const auto visit = [&](const QString &name, FileKind kind) {
        goesOn = m_observer.goOn();
        if (!goesOn)
            return false;
        if (kind == FileKind::Folder)
            folders.append(name);
        else if (!known.contains(name))
            addFile(folder, name);
        return true;
    };
    const Result<platform::EntryPath> entry = m_tree.itself(folder);
    const Status listed =
        entry ? platform::Platform::current().folders().forEachEntry(entry.value(), visit) : entry.status();
    if (!goesOn)
        return false;
    // Gone since it was found; only of one that is listed for the first time nobody knows what was in it.
    if (m_known && isAbsent(listed))
        return true;
    if (!listed) {
        complete = false;
        tellUnreadable(Unreadable::Folder, m_tree.path(folder), listed);
    }
    for (const QString &name : std::as_const(folders)) {
        goesOn = m_observer.goOn();
        if (!goesOn)
            return false;
        complete = enter(folder, name, pending) && complete;
    }
    return true;
}

// True as well for what is not to be entered.
bool FileCollector::enter(Folder parent, const QString &name, std::vector<Folder> &pending)
{
    const Result<Folder> entered = m_tree.addFolder(parent, name);
    if (entered) {
        pending.push_back(entered.value());
        return true;
    }
    if (isAbsent(entered.status()))
        return true;
    const QString path = m_tree.path(parent, name);
    if (entered.code() == platform::NotSameDevice) {
        m_observer.mounted(path);
        return true;
    }
    tellUnreadable(Unreadable::Folder, path, entered.status());
    return false;
}

void FileCollector::addFile(Folder folder, const QString &name)
{
    if (m_mayRepeat) {
        const qsizetype before = m_paths.size();
        m_paths.insert(m_tree.path(folder, name));
        if (m_paths.size() == before)
            return;
    }
    m_list.files.push_back({folder, name});
}

void FileCollector::tellUnreadable(Unreadable what, const QString &path, const Status &status)
{
    ++m_list.unreadable;
    m_observer.unreadable(what, path, status);
}
