#include "engine/leftovers.h"

#include "engine/fillnames.h"
#include "platform/files.h"

#include <QDebug>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// Entries of one kind whose names pass the test. A listing that fails half-way gives what it showed before.
template <typename Test>
QStringList entries(platform::AnchoredFolder &folder, platform::FileKind wanted, Test isWanted)
{
    QStringList names;
    const platform::Status listed = folder.forEachEntry([&](const QString &name, platform::FileKind kind) {
        if (kind == wanted && isWanted(name))
            names.append(name);
        return true;
    });
    if (!listed)
        qDebug().noquote() << "[FreeSpaceWipe] left-overs in" << folder.path() << listed.diagnostic();
    return names;
}

// The bytes that went with the files, nothing when there was no file to remove.
std::optional<qint64> removeFillFilesIn(platform::AnchoredFolder &folder)
{
    std::optional<qint64> bytes;
    for (const QString &name : entries(folder, platform::FileKind::Regular, fillnames::isFile)) {
        const auto info = folder.info(name);
        if (const platform::Status removed = folder.removeFile(name); !removed) {
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << folder.path() << name
                               << removed.diagnostic();
            continue;
        }
        // A further name keeps the space.
        const bool freesSpace = info && info.value().linkCount == 1;
        bytes = bytes.value_or(0) + (freesSpace ? info.value().size : 0);
    }
    return bytes;
}

} // namespace

LeftOvers LeftOvers::remove(platform::AnchoredFolder &root)
{
    LeftOvers leftOvers;
    for (const QString &name : entries(root, platform::FileKind::Folder, fillnames::isFolder)) {
        auto folder = root.openFolder(name);
        if (!folder) {
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << name << folder.status().diagnostic();
            continue;
        }
        if (const auto bytes = removeFillFilesIn(*folder.value())) {
            leftOvers.folders.append(folder.value()->path());
            leftOvers.bytes += *bytes;
        }
        folder.value().reset();
        if (const platform::Status status = root.removeFolder(name); !status)
            qDebug().noquote() << "[FreeSpaceWipe] left-over" << name << status.diagnostic();
    }
    return leftOvers;
}
