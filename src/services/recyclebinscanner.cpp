#include "services/recyclebinscanner.h"

#include "platform/devices.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "services/foldertree.h"
#include "services/recyclebininfofile.h"
#ifdef Q_OS_UNIX
#include "services/trashscan.h"
#endif

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {
// Whatever has a longer path than Windows can make is no information file; a deleted folder may hold any file
// under such a name.
constexpr qint64 LargestInfoFile = 1 << 20; // bytes

bool isInfoName(const QString &name)
{
    return name.startsWith("$I"_L1, Qt::CaseInsensitive);
}

// Only an answer that nothing is there makes the data file missing; one that refuses to tell of itself is to
// be erased all the same.
void addDataFile(const QString &folder, const QString &name, RecycleBinItem &item)
{
    const QString path = entryOf(folder, name);
    const auto found = platform::Platform::current().files().info(path);
    if (isAbsent(found.status()))
        return;
    item.recyclePath = path;
    if (item.fileName.isEmpty())
        item.fileName = name;
    if (!found)
        return;
    item.isDirectory = found.value().kind == platform::FileKind::Folder;
    if (item.size == 0 && !item.isDirectory)
        item.size = static_cast<quint64>(found.value().size);
}

void scanBin(const QString &folder, RecycleBinInfo &found)
{
    if (!isRealFolder(folder))
        return;
    forEachFileBelow(folder, [&found](const QString &parent, const QString &name, platform::FileKind kind) {
        if (!isInfoName(name))
            return;
        const QString path = entryOf(parent, name);
        RecycleBinItem item;
        if (kind == platform::FileKind::Regular)
            item = RecycleBinScanner::parseInfoFile(path);
        item.infoPath = path;
        addDataFile(parent, u"$R"_s + name.mid(2), item);
        found.add(item);
    });
}

// The folders in the given one whose names are accepted, in the order listed. Links are none.
QStringList foldersIn(const QString &parent, const std::function<bool(const QString &name)> &accept)
{
    QStringList paths;
    const platform::Status seen = platform::Platform::current().folders().forEachEntry(
        parent, [&](const QString &name, platform::FileKind kind) {
            if (kind == platform::FileKind::Folder && accept(name))
                paths.append(entryOf(parent, name));
            return true;
        });
    if (!seen)
        qDebug() << "  Cannot list folder:" << parent << seen.diagnostic();
    return paths;
}

// Some systems write the name of the bin in capitals, and not every file system that holds one ignores case.
QStringList binsIn(const QString &root, const QString &sid)
{
    QStringList bins;
    const QStringList shared = foldersIn(
        root, [](const QString &name) { return name.compare("$Recycle.Bin"_L1, Qt::CaseInsensitive) == 0; });
    for (const QString &bin : shared) {
        bins += foldersIn(bin, [&sid](const QString &name) {
            return sid.isEmpty() ? name.startsWith("S-1-"_L1, Qt::CaseInsensitive)
                                 : name.compare(sid, Qt::CaseInsensitive) == 0;
        });
    }
    return bins;
}

QStringList localDrives()
{
    QStringList drives;
    const QList<platform::MountedVolume> volumes = platform::Platform::current().devices().mountedVolumes();
    for (const platform::MountedVolume &volume : volumes) {
        // A mount may lie over another on the same place.
        if (volume.isReady && volume.isLocal && !drives.contains(volume.name))
            drives.append(volume.name);
    }
    return drives;
}

void scanDrive(const QString &drive, const QString &sid, RecycleBinInfo &found)
{
    const QString shared = entryOf(drive, u"$Recycle.Bin"_s);
    if (isRealFolder(shared))
        scanBin(entryOf(shared, sid), found);
#ifdef Q_OS_UNIX
    const QList<TrashFolder> trash = trashFoldersOfVolume(drive, sid);
    for (const TrashFolder &folder : trash)
        scanTrash(folder, found);
#endif
}

struct Stop
{
    QString drive;
    std::function<void(RecycleBinInfo &found)> scan;
};

RecycleBinInfo scanStops(const QList<Stop> &stops, const RecycleBinScanner::DriveCallback &callback)
{
    RecycleBinInfo found;
    for (qsizetype i = 0; i < stops.size(); ++i) {
        const Stop &stop = stops.at(i);
        if (callback)
            callback(stop.drive, static_cast<int>(i), static_cast<int>(stops.size()));
        const qint32 before = found.fileCount;
        stop.scan(found);
        if (found.fileCount > before)
            found.drives.append(stop.drive);
    }
    qDebug() << "Recycle bin scan result:" << found.fileCount << "files," << found.totalSize
             << "bytes on drives:" << found.drives;
    return found;
}
} // namespace

RecycleBinInfo RecycleBinScanner::scan(const DriveCallback &callback)
{
    const QString sid = currentUserSid();
    if (sid.isEmpty()) {
        qWarning() << "Failed to get current user SID";
        return {};
    }
    qDebug() << "Scanning recycle bin for SID:" << sid;
    QList<Stop> stops;
#ifdef Q_OS_UNIX
    if (const auto home = homeTrashFolder())
        stops.append({home->drive, [home](RecycleBinInfo &found) { scanTrash(*home, found); }});
#endif
    const QStringList drives = localDrives();
    for (const QString &drive : drives)
        stops.append({drive, [drive, sid](RecycleBinInfo &found) { scanDrive(drive, sid, found); }});
    return scanStops(stops, callback);
}

RecycleBinInfo RecycleBinScanner::scanRoots(const QStringList &roots, const QString &sid,
                                            const DriveCallback &callback)
{
    qDebug() << "Scanning recycle bin for SID:" << sid;
    QList<Stop> stops;
    for (const QString &root : roots) {
        stops.append({root, [root, sid](RecycleBinInfo &found) {
                          const QStringList bins = binsIn(root, sid);
                          for (const QString &bin : bins)
                              scanBin(bin, found);
                      }});
    }
    return scanStops(stops, callback);
}

RecycleBinItem RecycleBinScanner::parseInfoFile(const QString &path)
{
    const auto contents = platform::Platform::current().files().readBeginning(path, LargestInfoFile);
    if (!contents) {
        qDebug() << "  Cannot open $I file:" << path;
        return {};
    }
    if (contents.value().size() < recyclebin::SmallestInfoFile) {
        qDebug() << "  $I file too small:" << contents.value().size();
        return {};
    }
    RecycleBinItem item = recyclebin::parseInfo(contents.value());
    qDebug() << "  Parsed $I:" << item.fileName << "size:" << item.size << "path:" << item.originalPath;
    return item;
}

QString RecycleBinScanner::currentUserSid()
{
    return platform::Platform::current().session().userId();
}
