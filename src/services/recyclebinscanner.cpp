#include "services/recyclebinscanner.h"

#include "platform/devices.h"
#include "platform/entrypath.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "services/binaccess.h"
#include "services/foldertree.h"
#include "services/recyclebininfofile.h"
#ifdef Q_OS_UNIX
#include "services/trashscan.h"
#endif

#include <QDebug>
#include <QMap>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using platform::pathInFolder;

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
    const QString path = pathInFolder(folder, name);
    const auto found = platform::Platform::current().files().info(path);
    if (found.status().isAbsent())
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

// The data files that lie in a bin itself, until their information files are found.
class DataFiles
{
public:
    DataFiles(const QString &folder, QList<UnscannedBin> &unscanned)
        : m_folder(folder)
    {
        listBin(folder, unscanned, [this](const QString &name, platform::FileKind kind) {
            if (name.startsWith("$R"_L1, Qt::CaseInsensitive))
                m_left.insert(name, kind);
            return true;
        });
    }

    void take(const QString &name)
    {
        if (m_left.remove(name) > 0)
            return;
        // It was found under this name all the same: the file system does not tell capitals apart.
        m_left.removeIf([&name](const std::pair<const QString &, platform::FileKind &> &entry) {
            return entry.first.compare(name, Qt::CaseInsensitive) == 0;
        });
    }

    QList<RecycleBinItem> left() const
    {
        QList<RecycleBinItem> items;
        for (auto entry = m_left.cbegin(); entry != m_left.cend(); ++entry) {
            RecycleBinItem item;
            item.fileName = entry.key();
            item.recyclePath = pathInFolder(m_folder, entry.key());
            item.isDirectory = entry.value() == platform::FileKind::Folder;
            if (item.isDirectory)
                item.size = sizeOfTree(item.recyclePath);
            else if (entry.value() == platform::FileKind::Regular)
                item.size = sizeOfFile(item.recyclePath);
            items.append(item);
        }
        return items;
    }

private:
    const QString m_folder;
    QMap<QString, platform::FileKind> m_left;
};

void scanBin(const QString &folder, RecycleBinInfo &found)
{
    DataFiles data(folder, found.unscanned);
    forEachFileBelow(folder, [&](const QString &parent, const QString &name, platform::FileKind kind) {
        if (!isInfoName(name))
            return;
        const QString path = pathInFolder(parent, name);
        RecycleBinItem item;
        if (kind == platform::FileKind::Regular)
            item = RecycleBinScanner::parseInfoFile(path);
        item.infoPath = path;
        const QString dataName = u"$R"_s + name.mid(2);
        addDataFile(parent, dataName, item);
        if (parent == folder && !item.recyclePath.isEmpty())
            data.take(dataName);
        found.add(item);
    });
    found.unrecorded += data.left();
}

using NameTest = std::function<bool(const QString &name)>;

// The folders in the given one whose names are accepted, in the order listed. Links are none.
QStringList foldersIn(const QString &parent, const NameTest &accept, QList<UnscannedBin> &unscanned)
{
    QStringList paths;
    listBin(parent, unscanned, [&](const QString &name, platform::FileKind kind) {
        const bool mayBeBin = kind == platform::FileKind::Folder || kind == platform::FileKind::Link;
        if (mayBeBin && accept(name))
            paths.append(pathInFolder(parent, name));
        return true;
    });
    paths.removeIf(
        [&unscanned](const QString &path) { return !mayEnterBin(path, BinOwner::Anybody, unscanned); });
    return paths;
}

// Some systems write the name of the bin in capitals, and not every file system that holds one ignores case.
QStringList binsIn(const QString &root, const QString &sid, QList<UnscannedBin> &unscanned)
{
    QStringList bins;
    const QStringList shared = foldersIn(
        root, [](const QString &name) { return name.compare("$Recycle.Bin"_L1, Qt::CaseInsensitive) == 0; },
        unscanned);
    const NameTest isWanted = [&sid](const QString &name) {
        return sid.isEmpty() ? name.startsWith("S-1-"_L1, Qt::CaseInsensitive)
                             : name.compare(sid, Qt::CaseInsensitive) == 0;
    };
    for (const QString &bin : shared)
        bins += foldersIn(bin, isWanted, unscanned);
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
    const QString shared = pathInFolder(drive, u"$Recycle.Bin"_s);
    const QString bin = pathInFolder(shared, sid);
    if (mayEnterBin(shared, BinOwner::Anybody, found.unscanned) &&
        mayEnterBin(bin, BinOwner::User, found.unscanned))
        scanBin(bin, found);
#ifdef Q_OS_UNIX
    const QList<TrashFolder> trash = trashFoldersOfVolume(drive, sid, found.unscanned);
    for (const TrashFolder &folder : trash)
        scanTrash(folder, found);
#endif
}

struct Stop
{
    QString drive;
    std::function<void(RecycleBinInfo &found)> scan;
};

RecycleBinInfo scanStops(const QList<Stop> &stops, const RecycleBinScanner::DriveCallback &callback,
                         RecycleBinInfo found = {})
{
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
    RecycleBinInfo found;
    found.account = platform::Platform::current().session().foreignAccount();
    QList<Stop> stops;
#ifdef Q_OS_UNIX
    if (const auto home = homeTrashFolder(found.unscanned))
        stops.append({home->drive, [home](RecycleBinInfo &info) { scanTrash(*home, info); }});
#endif
    const QStringList drives = localDrives();
    for (const QString &drive : drives)
        stops.append({drive, [drive, sid](RecycleBinInfo &info) { scanDrive(drive, sid, info); }});
    return scanStops(stops, callback, found);
}

RecycleBinInfo RecycleBinScanner::scanRoots(const QStringList &roots, const QString &sid,
                                            const DriveCallback &callback)
{
    qDebug() << "Scanning recycle bin for SID:" << sid;
    QList<Stop> stops;
    for (const QString &root : roots) {
        stops.append({root, [root, sid](RecycleBinInfo &found) {
                          const QStringList bins = binsIn(root, sid, found.unscanned);
                          for (const QString &bin : bins)
                              scanBin(bin, found);
                      }});
    }
    return scanStops(stops, callback);
}

bool RecycleBinScanner::hasBin(const QStringList &roots, const QString &sid)
{
    QList<UnscannedBin> unscanned;
    const bool isFound = std::ranges::any_of(
        roots, [&](const QString &root) { return !binsIn(root, sid, unscanned).isEmpty(); });
    return isFound || !unscanned.isEmpty();
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
