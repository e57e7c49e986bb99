#include "services/trash/binaccess.h"

#include "platform/files.h"
#include "platform/platform.h"

#include <QDebug>

using platform::FileKind;
using platform::Platform;
using Reason = UnscannedBin::Reason;

bool mayEnterBin(const QString &folder, BinOwner owner, QList<UnscannedBin> &unscanned)
{
    const auto info = Platform::current().files().info(folder);
    if (info.status().isAbsent())
        return false;
    if (!info) {
        unscanned.append({folder, Reason::Unreadable, info.code()});
        return false;
    }
    if (info.value().kind == FileKind::Link)
        unscanned.append({folder, Reason::Link});
    if (info.value().kind != FileKind::Folder)
        return false;
    if (owner == BinOwner::Anybody)
        return true;
    const auto whose = Platform::current().folders().owner(folder);
    if (whose.code() == platform::NotSupported)
        return true;
    if (!whose)
        unscanned.append({folder, Reason::Unreadable, whose.code()});
    else if (!whose.value().isOwn)
        unscanned.append({folder, Reason::NotOwn});
    return whose && whose.value().isOwn;
}

void listBin(const QString &folder, QList<UnscannedBin> &unscanned, const platform::Folders::Visitor &visit)
{
    const platform::Status seen = Platform::current().folders().forEachEntry(folder, visit);
    if (seen)
        return;
    qDebug() << "  Cannot list folder:" << folder << seen.diagnostic();
    if (!seen.isAbsent())
        unscanned.append({folder, Reason::Unreadable, seen.code});
}
