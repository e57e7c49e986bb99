#include "ui/files/fileentry.h"

#include "model/displaytext.h"
#include "model/formatsize.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

bool isLink(const QFileInfo &info)
{
    return info.isSymbolicLink() || info.isJunction();
}

QString lastComponent(const QString &path)
{
    const QString name = QFileInfo(QDir::cleanPath(path)).fileName();
    return name.isEmpty() ? path : name; // a root
}

} // namespace

std::optional<FileEntry> FileEntry::fromPath(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    if (isLink(info))
        return FileEntry{path, false, 0};
    if (info.isDir())
        return FileEntry{path, true, sizeOfFilesBelow(path)};
    return FileEntry{path, false, info.size()};
}

QString FileEntry::listText() const
{
    return u"%1  %2  (%3)"_s.arg(isFolder ? u"📁"_s : u"📄"_s, displayText(lastComponent(path)),
                                 formatSize(size));
}

qint64 sizeOfFilesBelow(const QString &folder)
{
    // One level at a time: the iterator's own recursion goes through junctions, and those of Windows lead
    // in circles.
    constexpr QDir::Filters everything =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    qint64 sum = 0;
    QStringList pending{folder};
    while (!pending.isEmpty()) {
        QDirIterator entries(pending.takeLast(), everything);
        while (entries.hasNext()) {
            entries.next();
            const QFileInfo info = entries.fileInfo();
            if (isLink(info))
                continue;
            if (info.isDir())
                pending.append(info.filePath());
            else if (info.isFile())
                sum += info.size();
        }
    }
    return sum;
}
