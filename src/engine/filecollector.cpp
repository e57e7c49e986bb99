#include "engine/filecollector.h"

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;
using platform::FileKind;

namespace {

// "link/" and "link/." mean the folder that the link leads to; a link is to be taken as it is. ".." stays:
// dropping it from the text could name another folder than the system does.
QString withoutTrailingSeparators(QString path)
{
    const auto isRoot = [](const QString &text) {
        return text == u"/"_s || (text.size() == 3 && text.endsWith(u":/"_s));
    };
    while (!isRoot(path) && (path.endsWith(u'/') || path.endsWith(u"/."_s)))
        path.chop(1);
    return path;
}

QString inFolder(const QString &folder, const QString &name)
{
    QString path;
    path.reserve(folder.size() + 1 + name.size());
    path += folder;
    if (!folder.endsWith(u'/'))
        path += u'/';
    path += name;
    return path;
}

} // namespace

FileCollector::FileCollector(Observer observer)
    : m_observer(std::move(observer))
{}

FileList FileCollector::collect(const QStringList &targets)
{
    m_mayRepeat = targets.size() > 1;
    for (const QString &target : targets) {
        if (!m_observer.goOn())
            break;
        addTarget(withoutTrailingSeparators(QDir::fromNativeSeparators(target)));
    }
    m_known = {};
    return std::exchange(m_list, {});
}

void FileCollector::addTarget(const QString &target)
{
    const auto info = platform::Platform::current().files().info(target);
    if (!info) {
        if (!isAbsent(info.status())) {
            ++m_list.unreadable;
            m_observer.unreadable(Unreadable::Target, target, info.status());
        }
        return;
    }
    switch (info.value().kind) {
    case FileKind::Regular:
    case FileKind::Link:
        addFile(target);
        break;
    case FileKind::Folder:
        if (addContent(target))
            m_list.folders.append(target);
        break;
    case FileKind::Special:
        break;
    }
}

// A stack instead of recursion, and one open folder at a time: the depth of a tree is limited by nothing.
bool FileCollector::addContent(const QString &target)
{
    bool complete = true;
    QStringList pending{target};
    while (!pending.isEmpty()) {
        const QString folder = pending.takeLast();
        bool goesOn = m_observer.goOn();
        if (!goesOn)
            return false;
        const auto visit = [&](const QString &name, FileKind kind) {
            goesOn = m_observer.goOn();
            if (!goesOn)
                return false;
            if (kind == FileKind::Folder)
                pending.append(inFolder(folder, name));
            else
                addFile(inFolder(folder, name));
            return true;
        };
        const platform::Status listed = platform::Platform::current().folders().forEachEntry(folder, visit);
        if (!goesOn)
            return false;
        if (!listed) {
            complete = false;
            ++m_list.unreadable;
            m_observer.unreadable(Unreadable::Folder, folder, listed);
        }
    }
    return complete;
}

void FileCollector::addFile(const QString &path)
{
    if (m_mayRepeat) {
        const qsizetype before = m_known.size();
        m_known.insert(path);
        if (m_known.size() == before)
            return;
    }
    m_list.files.append(path);
}
