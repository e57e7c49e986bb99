#pragma once

#include "services/trash/binlayout.h"

/// The Trash of the desktop: one in the home folder, others in the roots of volumes.
class TrashLayout : public BinLayout
{
public:
    std::optional<BinStop> homeBin(QList<UnscannedBin> &unscanned) const override;
    void scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const override;
    platform::Status updateRecords(const RecycleBinInfo &erased) const override;
};
