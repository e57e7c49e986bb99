#pragma once

#include "platform/status.h"
#include "services/trash/recyclebininfo.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// One step of a scan: the bins that are listed under a drive.
struct BinStop
{
    QString drive; ///< "C:"; elsewhere a mount point, and the home folder for the bin in it
    std::function<void(RecycleBinInfo &found)> scan;
};

/// One kind of bin: where it lies on the machine, and which records belong to it. Any thread; nothing is kept
/// between calls.
class BinLayout
{
public:
    BinLayout() = default;
    virtual ~BinLayout() = default;
    BinLayout(const BinLayout &) = delete;
    BinLayout &operator=(const BinLayout &) = delete;

    /// The bin in the user's home folder; nothing when there is none. A link in its place goes to
    /// `unscanned`.
    virtual std::optional<BinStop> homeBin(QList<UnscannedBin> &unscanned) const = 0;

    /// Adds what the user's bins on the volume with that root hold.
    virtual void scanVolume(const QString &root, const QString &userId, RecycleBinInfo &found) const = 0;

    /// Takes out of the bins' own records what has been erased. Answers the first failure, having gone on
    /// past it.
    virtual platform::Status updateRecords(const RecycleBinInfo &erased) const = 0;
};

/// The kinds of bins that this system has, in the order they are scanned.
const QList<const BinLayout *> &binLayouts();
