#include "ui/files/fileentry.h"

#include "engine/filesurvey.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/wipetask.h"

#include <QDir>
#include <QFileInfo>

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
    WipeTask task;
    task.setOperationType(FileWipe);
    task.setFiles({folder});
    return static_cast<qint64>(surveyFiles(
                                   task, [] { return false; }, 0)
                                   .bytes);
}
