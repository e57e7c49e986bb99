#include "engine/filecollector.h"

#include "engine/filetargets.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <utility>

using platform::FileKind;
using platform::Result;
using platform::Status;

FileCollector::FileCollector(HeldTree &tree, Observer observer)
    : m_tree(tree)
    , m_observer(std::move(observer))
{}

FileList FileCollector::collect(const QStringList &targets, const QHash<QString, TargetIdentity> &identities)
{
    m_mayRepeat = targets.size() > 1;
    for (const QString &target : targets) {
        if (!m_observer.goOn())
            break;
        const auto expected = identities.constFind(target);
        addTarget(target, expected == identities.cend() ? std::nullopt : std::optional(*expected));
        m_list.ends.push_back(m_list.files.size());
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

void FileCollector::addTarget(const QString &given, const std::optional<TargetIdentity> &expected)
{
    const QString target = targetPath(given);
    const Result<FoundTarget> found = findTarget(m_tree, target);
    if (found.status().isAbsent()) {
        if (expected)
            m_observer.vanished(target);
        return;
    }
    if (!found) {
        tellUnreadable(Unreadable::Target, target, found.status());
        return;
    }
    if (expected && *expected != found.value().identity) {
        m_observer.replaced(target);
        return;
    }
    switch (found.value().kind) {
    case FileKind::Regular:
    case FileKind::Link:
        addFile(found.value().above, found.value().name);
        break;
    case FileKind::Folder:
        if (addContent(found.value().folder))
            m_list.folders.push_back(found.value().folder);
        break;
    case FileKind::Special:
        break;
    }
}

// A stack instead of recursion, and few open folders at a time, because the depth of a tree is unlimited.
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

// Returns false when the observer ended the scan. Folders are entered after the listing, because entering one
// may take long and the visitor of a listing must not wait.
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
    // A folder that vanished after its first listing is no problem. At the first listing its content would
    // stay unknown.
    if (m_known && listed.isAbsent())
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

// Also true for folders that must not be entered.
bool FileCollector::enter(Folder parent, const QString &name, std::vector<Folder> &pending)
{
    const Result<Folder> entered = m_tree.addFolder(parent, name);
    if (entered) {
        pending.push_back(entered.value());
        return true;
    }
    if (entered.status().isAbsent())
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
        // Resolves different spellings of the folder.
        m_paths.insert(m_tree.path(m_tree.firstAs(folder), name));
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
