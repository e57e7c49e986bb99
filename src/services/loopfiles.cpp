#include "services/loopfiles.h"

#include "model/displaytext.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

using namespace Qt::StringLiterals;

#ifdef Q_OS_UNIX
namespace {

struct Attached
{
    QString node;
    QString file;
    platform::FileId id;
};

platform::Result<platform::FileInfo> look(const QString &path)
{
    return platform::Platform::current().files().info(path);
}

// Of a file that is deleted or out of sight the device tells a name that leads nowhere.
QList<Attached> attachedLoops(const QString &sys)
{
    QList<Attached> loops;
    const QString blocks = sys + u"/block/"_s;
    const QStringList names = QDir(blocks).entryList({u"loop*"_s}, QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        QFile attribute(blocks + name + u"/loop/backing_file"_s);
        if (!attribute.open(QIODevice::ReadOnly))
            continue;
        QByteArray file = attribute.readAll();
        if (file.endsWith('\n'))
            file.chop(1);
        const QString path = platform::decodeName(file);
        if (const auto info = look(path))
            loops.append({u"/dev/"_s + name, path, info.value().id});
    }
    return loops;
}

bool isWithin(const QString &file, const QString &folder)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return !canonical.isEmpty() &&
           file.startsWith(canonical.endsWith(u'/') ? canonical : QString(canonical + u'/'));
}

} // namespace

QString LoopFiles::problem(const QStringList &paths, const QString &sys)
{
    const QList<Attached> loops = paths.isEmpty() ? QList<Attached>() : attachedLoops(sys);
    if (loops.isEmpty())
        return {};
    for (const QString &path : paths) {
        const auto info = look(path);
        if (!info)
            continue;
        const bool isFolder = info.value().kind == platform::FileKind::Folder;
        for (const Attached &loop : loops) {
            if (isFolder ? isWithin(loop.file, path) : info.value().id == loop.id)
                return tr("The loop device %1 is attached to %2. Nothing was written.")
                    .arg(loop.node, displayText(loop.file));
        }
    }
    return {};
}
#else
QString LoopFiles::problem(const QStringList & /*paths*/, const QString & /*sys*/)
{
    return {};
}
#endif
