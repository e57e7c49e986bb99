#include "engine/leftovers.h"

#include "engine/fillnames.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDebug>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Entries of one kind whose names pass the test. A listing that fails half-way gives what it showed before.
template <typename Test>
QStringList entries(const QString &folder, platform::FileKind wanted, Test isWanted)
{
    QStringList names;
    const platform::Status listed = platform::Platform::current().folders().forEachEntry(
        folder, [&](const QString &name, platform::FileKind kind) {
            if (kind == wanted && isWanted(name))
                names.append(name);
            return true;
        });
    if (!listed)
        qDebug().noquote() << "[FreeSpaceWipe] left-overs in" << folder << listed.diagnostic();
    return names;
}

// The bytes that went with the files, nothing when there was no file to remove.
std::optional<qint64> removeFillFilesIn(const QString &folder)
{
    platform::Files &files = platform::Platform::current().files();
    std::optional<qint64> bytes;
    for (const QString &name : entries(folder, platform::FileKind::Regular, fillnames::isFile)) {
        const QString path = folder + u'/' + name;
        const auto info = files.info(path);
        if (const platform::Status removed = files.remove(path); !removed) {
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << path << removed.diagnostic();
            continue;
        }
        // A further name keeps the space.
        const bool freesSpace = info && info.value().linkCount == 1;
        bytes = bytes.value_or(0) + (freesSpace ? info.value().size : 0);
    }
    return bytes;
}

} // namespace

LeftOvers LeftOvers::remove(const QString &root)
{
    LeftOvers leftOvers;
    for (const QString &name : entries(root, platform::FileKind::Folder, fillnames::isFolder)) {
        const QString folder = root + name;
        if (const auto bytes = removeFillFilesIn(folder)) {
            leftOvers.folders.append(folder);
            leftOvers.bytes += *bytes;
        }
        if (const platform::Status status = platform::Platform::current().folders().removeEmpty(folder);
            !status)
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << folder << status.diagnostic();
    }
    return leftOvers;
}
