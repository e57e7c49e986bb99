#include "cli/job/filetarget.h"

#include "cli/io/paths.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

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

// Whether the folder is the root of a file system; wiping it would take every file on it. "/" always counts
// as one, because in a chroot it need not be a mount point.
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
    if (info.status().isAbsent())
        return refused(WipeTask::tr("File not found: %1").arg(shown));
    if (!info)
        return refused(Cli::tr("%1 cannot be looked at, error %2").arg(shown).arg(info.code()));
    if (info.value().kind == platform::FileKind::Special)
        return noFile(shown);
    if (info.value().kind == platform::FileKind::Folder && isVolumeRoot(path))
        return refused(Cli::tr("%1 is the root of a volume; name what is to be erased in it").arg(shown));
    return path;
}

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

} // namespace cli
