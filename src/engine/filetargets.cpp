#include "engine/filetargets.h"

#include "model/wipetask.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDir>
#include <QHash>

using namespace Qt::StringLiterals;
using platform::FileKind;
using platform::Result;

namespace {

bool isRoot(const QString &path)
{
    return path == u"/"_s || (path.size() == 3 && path.endsWith(u":/"_s));
}

struct Split
{
    QString folder;
    QString name; // empty for a root, "..", "." and an empty path, which no folder contains by name
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

TargetIdentity identityFrom(FileKind kind, const platform::FileId &id)
{
    return {static_cast<int>(kind), id.device, id.number, id.born};
}

} // namespace

// "link/" and "link/." would resolve to the destination of the link, but a link itself is the target. ".."
// stays, because dropping it from the text could name another folder than the system resolves.
QString targetPath(const QString &given)
{
    QString path = QDir::fromNativeSeparators(given);
    while (!isRoot(path) && (path.endsWith(u'/') || path.endsWith(u"/."_s)))
        path.chop(1);
    return path;
}

Result<FoundTarget> findTarget(HeldTree &tree, const QString &path)
{
    const Split parts = split(path);
    const Result<HeldTree::Folder> above = tree.addTop(parts.folder);
    if (!above)
        return above.status();
    FoundTarget target;
    target.folder = above.value();
    if (!parts.name.isEmpty()) {
        const Result<platform::EntryPath> entry = tree.entry(above.value(), parts.name);
        const auto info = entry ? platform::Platform::current().files().info(entry.value()) : entry.status();
        if (!info)
            return info.status();
        target = {.above = above.value(),
                  .name = parts.name,
                  .folder = HeldTree::None,
                  .kind = info.value().kind,
                  // Files and links have lasting numbers when their folder has one.
                  .identity = identityFrom(info.value().kind,
                                           tree.idOf(above.value()) ? info.value().id : platform::FileId())};
        if (info.value().kind != FileKind::Folder)
            return target;
        // A mounted volume is entered when the user has named it.
        const auto folder = tree.addFolder(above.value(), parts.name, platform::Folders::Mounts::Enter);
        if (!folder)
            return folder.status();
        target.folder = folder.value();
    }
    target.identity = identityFrom(FileKind::Folder, tree.idOf(target.folder).value_or(platform::FileId()));
    return target;
}

void rememberTargets(WipeTask &task)
{
    HeldTree tree;
    QHash<QString, TargetIdentity> identities;
    const QStringList paths = task.files();
    for (const QString &path : paths) {
        if (const Result<FoundTarget> found = findTarget(tree, targetPath(path)); found)
            identities.insert(path, found.value().identity);
    }
    task.setTargetIdentities(identities);
}
