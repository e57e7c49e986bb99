#pragma once

#include "services/trash/binlayout.h"

#include <QStringList>

/// The Recycle Bin of Windows: "$Recycle.Bin" in the root of a volume, and in it a folder for each user.
class RecycleBinLayout : public BinLayout
{
public:
    /// Always nothing.
    std::optional<BinStop> homeBin(QList<UnscannedBin> &unscanned) const override;
    void scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const override;
    /// Always success: the only records are the "$I" files, which are erased with their items.
    platform::Status updateRecords(const RecycleBinInfo &erased) const override;

    /// The bins in a root, those of one SID or, when it is empty, of every user. Links are none and go to
    /// `unscanned`.
    static QStringList binsIn(const QString &root, const QString &sid, QList<UnscannedBin> &unscanned);

    /// Adds what one bin holds: an item for each "$I" file, and the data files that have none.
    static void scanBin(const QString &folder, RecycleBinInfo &found);

    /// `fileName`, `originalPath` and `size` from a "$I" file; all empty when it cannot be read or is too
    /// small.
    static RecycleBinItem readInfoFile(const QString &path);
};
