#include "engine/copyonwrite.h"

#include "platform/files.h"
#include "platform/platform.h"

#include <QSet>
#include <QStorageInfo>
#include <QString>

#include <algorithm>
#include <array>

namespace {

QString parentFolder(const QString &path)
{
    const qsizetype separator = path.lastIndexOf(u'/');
    return separator > 0 ? path.left(separator) : path.left(separator + 1);
}

QString placeOf(const QString &path)
{
    const auto info = platform::Platform::current().files().info(path);
    const bool isFolder = info && info.value().kind == platform::FileKind::Folder;
    return isFolder ? path : parentFolder(path);
}

// A folder whose name Unicode cannot express is unknown to QStorageInfo; one of its parents is not.
QByteArray fileSystemType(QString folder)
{
    QStorageInfo storage(folder);
    while (!storage.isValid() && folder.size() > 1) {
        folder = parentFolder(folder);
        storage.setPath(folder);
    }
    return storage.fileSystemType();
}

} // namespace

bool writesElsewhere(const QByteArray &fileSystemType)
{
    static constexpr std::array types{"btrfs", "zfs", "f2fs", "nilfs2", "bcachefs", "overlay", "ReFS"};
    return std::any_of(types.begin(), types.end(), [&](const char *type) { return fileSystemType == type; });
}

QByteArrayList fileSystemsWritingElsewhere(const QStringList &paths)
{
    QByteArrayList found;
    QSet<QString> judged; // a trash holds thousands of paths in one folder
    for (const QString &path : paths) {
        const QString place = placeOf(path);
        if (judged.contains(place))
            continue;
        judged.insert(place);
        const QByteArray type = fileSystemType(place);
        if (writesElsewhere(type) && !found.contains(type))
            found.append(type);
    }
    return found;
}
