#pragma once

#include "model/shortfall.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <algorithm>
#include <limits>
#include <numeric>

/// A deleted item that still exists in a bin.
struct RecycleBinItem
{
    QString fileName;     ///< last component of originalPath, or the name of the item in the bin
    QString originalPath; ///< path recorded at the deletion; only a text, never opened
    QString recyclePath;  ///< the deleted file or folder in the bin; empty when it is missing
    QString infoPath;     ///< the file with the original path; empty when there is none
    quint64 size = 0;     ///< bytes
    bool isDirectory = false;

    bool operator==(const RecycleBinItem &) const = default;
};

/// A bin, or an entry in the place of one, that was not scanned.
struct UnscannedBin
{
    enum class Reason {
        Link,       ///< a link, whose target is not in a bin
        NotOwn,     ///< belongs to another user
        Unreadable, ///< cannot be listed, or its kind cannot be queried
    };

    QString path;
    Reason reason = Reason::Unreadable;
    quint32 error = 0; ///< error code for Unreadable

    bool operator==(const UnscannedBin &) const = default;
};

/// The contents of a user's bins.
struct RecycleBinInfo
{
    QList<RecycleBinItem> items; ///< in the order found, drive by drive
    /// The paths to erase: infoPath and recyclePath of each item, if they exist.
    QStringList filePaths;
    quint64 totalSize = 0; ///< bytes of all items; saturates at the largest number
    qint32 fileCount = 0;  ///< number of items
    QStringList drives;    ///< drives with at least one item
    /// Data files in Recycle Bins that have no "$I" file and are therefore no items. They are erased with the
    /// items.
    QList<RecycleBinItem> unrecorded;
    QList<UnscannedBin> unscanned;
    /// The account of these bins when it is not the account of the desktop; otherwise empty.
    QString account;

    bool operator==(const RecycleBinInfo &) const = default;

    /// Appends the item, its paths and its size.
    void add(const RecycleBinItem &item)
    {
        items.append(item);
        if (!item.infoPath.isEmpty())
            filePaths.append(item.infoPath);
        if (!item.recyclePath.isEmpty())
            filePaths.append(item.recyclePath);
        totalSize = sumOf(totalSize, item);
        fileCount = static_cast<qint32>(items.size());
    }

    /// The bytes of all data files without an information file.
    quint64 unrecordedSize() const
    {
        return std::accumulate(unrecorded.cbegin(), unrecorded.cend(), quint64{0}, sumOf);
    }

    /// filePaths followed by the data files without an information file.
    QStringList doomedPaths() const
    {
        QStringList paths = filePaths;
        for (const RecycleBinItem &item : unrecorded)
            paths.append(item.recyclePath);
        return paths;
    }

    /// The parts that a job on doomedPaths() leaves out.
    QList<Shortfall> omissions() const
    {
        QList<Shortfall> left;
        for (const UnscannedBin &bin : unscanned)
            left.append({ShortfallKind::BinNotEntered, bin.path});
        return left;
    }

private:
    // The recorded sizes are arbitrary; the sum saturates instead of overflowing.
    static quint64 sumOf(quint64 sum, const RecycleBinItem &item)
    {
        return sum + std::min(item.size, std::numeric_limits<quint64>::max() - sum);
    }
};
