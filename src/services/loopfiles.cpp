#include "services/loopfiles.h"

#include "model/displaytext.h"
#include "platform/filenames.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

fs::path pathOf(const QString &name)
{
    return platform::encodeName(name).toStdString();
}

struct Attached
{
    QString node;
    QString file;
};

// For a file that is deleted or out of sight the attribute holds a path that leads nowhere.
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
        loops.append({u"/dev/"_s + name, platform::decodeName(file)});
    }
    return loops;
}

// A symbolic link is erased itself, its target is not touched.
bool isAnyNameOf(const QString &file, const QString &path)
{
    std::error_code error;
    const fs::path place = pathOf(path);
    return !fs::is_symlink(place, error) && fs::equivalent(place, pathOf(file), error);
}

bool isWithin(const QString &file, const QString &folder)
{
    const QFileInfo info(folder);
    const QString canonical = info.isDir() && !info.isSymLink() ? info.canonicalFilePath() : QString();
    return !canonical.isEmpty() &&
           file.startsWith(canonical.endsWith(u'/') ? canonical : QString(canonical + u'/'));
}

} // namespace

// Reads sysfs directly: the loop devices of this machine do not depend on the platform that a job uses.
std::optional<Refusal> LoopFiles::problem(const QStringList &paths, const QString &sys)
{
    const QList<Attached> loops = attachedLoops(sys);
    if (loops.isEmpty())
        return {};
    for (const QString &path : paths) {
        for (const Attached &loop : loops) {
            if (isWithin(loop.file, path) || isAnyNameOf(loop.file, path))
                return Refusal{tr("The loop device %1 is attached to %2. Nothing was written.")
                                   .arg(loop.node, displayText(loop.file))};
        }
    }
    return {};
}
