#include "services/trash/recyclebinscanner.h"

#include "platform/devices.h"
#include "platform/platform.h"
#include "platform/session.h"
#include "services/trash/binlayout.h"
#include "services/trash/recyclebinlayout.h"

#include <QDebug>
#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
QStringList localDrives()
{
    QStringList drives;
    const QList<platform::MountedVolume> volumes = platform::Platform::current().devices().mountedVolumes();
    for (const platform::MountedVolume &volume : volumes) {
        // One mount point may be listed twice, when a mount covers another.
        if (volume.isReady && volume.isLocal && !drives.contains(volume.name))
            drives.append(volume.name);
    }
    return drives;
}

void scanDrive(const QString &drive, const QString &sid, RecycleBinInfo &found)
{
    for (const BinLayout *layout : binLayouts())
        layout->scanVolume(drive, sid, found);
}

RecycleBinInfo scanStops(const QList<BinStop> &stops, const RecycleBinScanner::DriveCallback &callback,
                         RecycleBinInfo found = {})
{
    for (qsizetype i = 0; i < stops.size(); ++i) {
        const BinStop &stop = stops.at(i);
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
    QList<BinStop> stops;
    for (const BinLayout *layout : binLayouts()) {
        if (const auto home = layout->homeBin(found.unscanned))
            stops.append(*home);
    }
    const QStringList drives = localDrives();
    for (const QString &drive : drives)
        stops.append({drive, [drive, sid](RecycleBinInfo &info) { scanDrive(drive, sid, info); }});
    return scanStops(stops, callback, found);
}

RecycleBinInfo RecycleBinScanner::scanRoots(const QStringList &roots, const QString &sid,
                                            const DriveCallback &callback)
{
    qDebug() << "Scanning recycle bin for SID:" << sid;
    QList<BinStop> stops;
    for (const QString &root : roots) {
        stops.append({root, [root, sid](RecycleBinInfo &found) {
                          const QStringList bins = RecycleBinLayout::binsIn(root, sid, found.unscanned);
                          for (const QString &bin : bins)
                              RecycleBinLayout::scanBin(bin, found);
                      }});
    }
    return scanStops(stops, callback);
}

bool RecycleBinScanner::hasBin(const QStringList &roots, const QString &sid)
{
    QList<UnscannedBin> unscanned;
    const bool isFound = std::ranges::any_of(roots, [&](const QString &root) {
        return !RecycleBinLayout::binsIn(root, sid, unscanned).isEmpty();
    });
    return isFound || !unscanned.isEmpty();
}

RecycleBinItem RecycleBinScanner::parseInfoFile(const QString &path)
{
    return RecycleBinLayout::readInfoFile(path);
}

QString RecycleBinScanner::currentUserSid()
{
    return platform::Platform::current().session().userId();
}
