#include "services/trash/trashlayout.h"

#include "services/trash/trashscan.h"
#include "services/trash/trashsizes.h"

#include <QStringList>

std::optional<BinStop> TrashLayout::homeBin(QList<UnscannedBin> &unscanned) const
{
    const auto home = homeTrashFolder(unscanned);
    if (!home)
        return std::nullopt;
    return BinStop{home->drive, [trash = *home](RecycleBinInfo &found) { scanTrash(trash, found); }};
}

void TrashLayout::scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const
{
    const QList<TrashFolder> trash = trashFoldersOfVolume(root, userId, found.unscanned);
    for (const TrashFolder &folder : trash)
        scanTrash(folder, found);
}

platform::Status TrashLayout::updateRecords(const RecycleBinInfo &erased) const
{
    platform::Status first;
    const QStringList folders = trashFoldersOf(erased);
    for (const QString &folder : folders) {
        const platform::Status pruned = pruneDirectorySizes(folder);
        if (first && !pruned)
            first = pruned;
    }
    return first;
}
