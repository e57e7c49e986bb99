#include "cli/io/paths.h"

#include <QDir>
#include <QFileInfo>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// Qt takes a colon at the start for a resource; for users it is a file like any other.
bool isAbsolute(const QString &path)
{
    return !path.startsWith(u':') && QDir::isAbsolutePath(path);
}

bool hasDrive(const QString &absolutePath)
{
    return absolutePath.size() > 1 && absolutePath.at(0).isLetter() && absolutePath.at(1) == u':';
}

// Completes the root of a path that Qt calls absolute; on Windows it may be missing.
QString rooted(const QString &path)
{
    if (hasDrive(path)) {
        const QString drive = path.left(2);
        const QString rest = path.mid(2);
        if (rest.isEmpty() || rest.startsWith(u'/'))
            return drive + u'/' + rest;
        return QFileInfo(drive).absoluteFilePath() + u'/' + rest;
    }
    if (path.startsWith(QLatin1String("//"))) // a network path or a device
        return path;
    const QString here = QDir::currentPath();
    return hasDrive(here) ? here.left(2) + path : path;
}

QString joined(const QString &path)
{
    const QString slashed = QDir::fromNativeSeparators(path);
    return isAbsolute(slashed) ? rooted(slashed) : QDir::currentPath() + u'/' + slashed;
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
    // After the last ".." both paths are the same.
    const QString upwards = components.first(last + 1).join(u'/');
    return QFileInfo(upwards).canonicalFilePath() != QFileInfo(QDir::cleanPath(upwards)).canonicalFilePath();
}

bool isSameOrBelow(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

bool isDeviceName(const QString &path)
{
    return path.startsWith(QLatin1String("//./"));
}

bool isSameFile(const QString &one, const QString &other)
{
    const QFileInfo info(one);
    return info.exists() && info == QFileInfo(other);
}

} // namespace cli
