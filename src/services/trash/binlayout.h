#pragma once

#include "platform/status.h"
#include "services/trash/recyclebininfo.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// One step of a scan: the bins that are listed under one drive.
struct BinStop
{
    QString drive; ///< "C:"; elsewhere a mount point, and the home folder for the bin in it
    std::function<void(RecycleBinInfo &found)> scan;
};

/// One kind of bin: its places on the machine and its records. Any thread; nothing is kept between calls.
class BinLayout
{
public:
    BinLayout() = default;
    virtual ~BinLayout() = default;
    BinLayout(const BinLayout &) = delete;
    BinLayout &operator=(const BinLayout &) = delete;

    /// The bin in the user's home folder; nothing when there is none. A link in its place is added to
    /// `unscanned`.
    virtual std::optional<BinStop> homeBin(QList<UnscannedBin> &unscanned) const = 0;

    /// Adds the contents of the user's bins on the volume with that root.
    virtual void scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const = 0;

    /// Removes the erased items from the bins' own records. Continues past a failure and returns the first
    /// one.
    virtual platform::Status updateRecords(const RecycleBinInfo &erased) const = 0;
};

/// The kinds of bins of this system, in the order of the scan.
const QList<const BinLayout *> &binLayouts();
