#include "cli/filetarget.h"

#include "cli/paths.h"
#include "cli/translate.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStorageInfo>

#include <algorithm>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

Refusal refused(const QString &message)
{
    return {Refused, message};
}

Refusal noFile(const QString &shown)
{
    return refused(Cli::tr("%1 is no file or folder; a drive is erased with 'wipe disk'").arg(shown));
}

// Whether the folder is where a file system begins; wiping it would take everything on that file system. The
// topmost folder is one whatever the system says: in a chroot it need not be a mount point.
bool isVolumeRoot(const QString &folder)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return !canonical.isEmpty() &&
           (QDir(canonical).isRoot() || QStorageInfo(canonical).rootPath() == canonical);
}

Outcome<QString> findFile(const QString &given)
{
    const QString shown = displayText(given);
    if (leadsBackThroughLink(given))
        return refused(Cli::tr("%1 goes back through a link; give the path without \"..\"").arg(shown));
    const QString path = absolutePath(given);
    if (isDeviceName(path))
        return noFile(shown);
    const auto info = platform::Platform::current().files().info(path);
    if (isAbsent(info.status()))
        return refused(WipeTask::tr("File not found: %1").arg(shown));
    if (!info)
        return refused(Cli::tr("%1 cannot be looked at, error %2").arg(shown).arg(info.code()));
    if (info.value().kind == platform::FileKind::Special)
        return noFile(shown);
    if (info.value().kind == platform::FileKind::Folder && isVolumeRoot(path))
        return refused(Cli::tr("%1 is the root of a volume; name what is to be erased in it").arg(shown));
    return path;
}

class Counter
{
public:
    explicit Counter(const std::function<bool()> &shallStop)
        : m_shallStop(shallStop)
    {}

    void countPath(const QString &path)
    {
        const auto info = m_platform.files().info(path);
        if (!info) {
            m_count.isComplete = false;
        } else if (info.value().kind == platform::FileKind::Folder) {
            countFolders(path);
        } else {
            ++m_count.files;
            m_count.bytes += static_cast<quint64>(info.value().size);
        }
    }

    FileCount count() const { return m_count; }

private:
    // With a list of its own instead of recursion: folders can be nested thousands deep.
    void countFolders(const QString &first)
    {
        QStringList folders{first};
        while (!folders.isEmpty() && !m_shallStop()) {
            const QString folder = folders.takeLast();
            QStringList files;
            const auto status =
                m_platform.folders().forEachEntry(folder, [&](const QString &name, platform::FileKind kind) {
                    (kind == platform::FileKind::Folder ? folders : files).append(folder + u'/' + name);
                    return true;
                });
            if (!status)
                m_count.isComplete = false;
            for (const QString &file : std::as_const(files))
                countPath(file);
        }
    }

    const std::function<bool()> &m_shallStop;
    platform::Platform &m_platform = platform::Platform::current();
    FileCount m_count;
};

} // namespace

Outcome<QStringList> findFiles(const QStringList &given)
{
    QStringList paths;
    for (const QString &name : given) {
        const Outcome<QString> path = findFile(name);
        if (!path)
            return path.refusal();
        paths.append(*path);
    }
    return paths;
}

FileCount countFiles(const QStringList &paths, const std::function<bool()> &shallStop)
{
    // Sorted by components, what lies below a path follows it.
    QStringList sorted = paths;
    std::sort(sorted.begin(), sorted.end(), [](const QString &a, const QString &b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](QChar x, QChar y) {
            return (x == u'/' ? QChar(0) : x) < (y == u'/' ? QChar(0) : y);
        });
    });
    Counter counter(shallStop);
    QString last;
    for (const QString &path : std::as_const(sorted)) {
        if (!last.isEmpty() && isSameOrBelow(path, last))
            continue;
        last = path;
        counter.countPath(path);
    }
    return counter.count();
}

} // namespace cli
