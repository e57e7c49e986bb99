#pragma once

#include "services/trash/binlayout.h"

#include <QStringList>

/// The Recycle Bin of Windows: "$Recycle.Bin" in the root of a volume, with a folder for each user.
class RecycleBinLayout : public BinLayout
{
public:
    /// Always nothing.
    std::optional<BinStop> homeBin(QList<UnscannedBin> &unscanned) const override;
    void scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const override;
    /// Always success: the "$I" files are the only records and are erased with their items.
    platform::Status updateRecords(const RecycleBinInfo &erased) const override;

    /// The bins of one SID in a root, or of every user when it is empty. Links are not followed and are added
    /// to `unscanned`.
    static QStringList binsIn(const QString &root, const QString &sid, QList<UnscannedBin> &unscanned);

    /// Adds the contents of one bin: an item for each "$I" file, and the data files without one.
    static void scanBin(const QString &folder, RecycleBinInfo &found);

    /// Reads `fileName`, `originalPath` and `size` from a "$I" file; all are empty when the file cannot be
    /// read or is too small.
    static RecycleBinItem readInfoFile(const QString &path);
};
