#include "cli/paths.h"

#include <QDir>
#include <QFileInfo>

namespace cli {

namespace {

// A colon at the start names a resource for Qt, and an ordinary file for everybody else.
bool isAbsolute(const QString &path)
{
    return !path.startsWith(u':') && QDir::isAbsolutePath(path);
}

QString joined(const QString &path)
{
    const QString slashed = QDir::fromNativeSeparators(path);
    return isAbsolute(slashed) ? slashed : QDir::currentPath() + u'/' + slashed;
}

} // namespace

QString absolutePath(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(joined(path));
}

bool leadsBackThroughLink(const QString &path)
{
    const QStringList components = joined(path).split(u'/');
    const qsizetype last = components.lastIndexOf(QLatin1String(".."));
    if (last < 0)
        return false;
    // Behind the last ".." both ways are the same.
    const QString upwards = components.first(last + 1).join(u'/');
    return QFileInfo(upwards).canonicalFilePath() != QFileInfo(QDir::cleanPath(upwards)).canonicalFilePath();
}

bool isSameOrBelow(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

} // namespace cli
