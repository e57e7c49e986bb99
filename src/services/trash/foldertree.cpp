#include "services/trash/foldertree.h"

#include "platform/entrypath.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDebug>
#include <QStringList>

void forEachFileBelow(const QString &folder, const EntryVisitor &visit)
{
    platform::Folders &folders = platform::Platform::current().folders();
    // A list of pending folders instead of recursion: the depth of folders is not limited.
    QStringList pending{folder};
    while (!pending.isEmpty()) {
        const QString current = pending.takeFirst();
        const platform::Status seen =
            folders.forEachEntry(current, [&](const QString &name, platform::FileKind kind) {
                if (kind == platform::FileKind::Folder)
                    pending.append(platform::pathInFolder(current, name));
                else
                    visit(current, name, kind);
                return true;
            });
        if (!seen)
            qDebug() << "  Cannot list folder:" << current << seen.diagnostic();
    }
}

quint64 sizeOfFile(const QString &path)
{
    const auto info = platform::Platform::current().files().info(path);
    return info ? static_cast<quint64>(info.value().size) : 0;
}

quint64 sizeOfTree(const QString &folder)
{
    quint64 size = 0;
    forEachFileBelow(folder, [&size](const QString &parent, const QString &name, platform::FileKind kind) {
        if (kind == platform::FileKind::Regular)
            size += sizeOfFile(platform::pathInFolder(parent, name));
    });
    return size;
}
