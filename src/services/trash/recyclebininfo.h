#pragma once

#include "model/shortfall.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <algorithm>
#include <limits>
#include <numeric>

/// Something the user threw away that is still there.
struct RecycleBinItem
{
    QString fileName;     ///< last component of originalPath, otherwise the name it bears in the bin
    QString originalPath; ///< as recorded when it was deleted; text only, never to be opened
    QString recyclePath;  ///< the deleted file or folder as it lies in the bin; empty when it is missing
    QString infoPath;     ///< the file that records where it came from; empty when there is none
    quint64 size = 0;     ///< bytes
    bool isDirectory = false;

    bool operator==(const RecycleBinItem &) const = default;
};

/// Something that stands where a bin is looked for and was not looked into.
struct UnscannedBin
{
    enum class Reason {
        Link,       ///< it leads elsewhere, to what nobody has thrown away
        NotOwn,     ///< it belongs to another user
        Unreadable, ///< it could not be listed, or does not tell what it is
    };

    QString path;
    Reason reason = Reason::Unreadable;
    quint32 error = 0; ///< of Unreadable

    bool operator==(const UnscannedBin &) const = default;
};

/// What one user has in the bins of the machine.
struct RecycleBinInfo
{
    QList<RecycleBinItem> items; ///< in the order found, drive by drive
    /// What to erase: of each item infoPath and recyclePath, as far as they exist.
    QStringList filePaths;
    quint64 totalSize = 0; ///< bytes of all items; the largest number when there are more
    qint32 fileCount = 0;  ///< number of items
    QStringList drives;    ///< those with at least one item
    /// Data files in Recycle Bins that no "$I" file stands for, so that they are no items. To be erased with
    /// the others.
    QList<RecycleBinItem> unrecorded;
    QList<UnscannedBin> unscanned;
    /// Whose bins these are when it is not the account of the desktop; otherwise empty.
    QString account;

    bool operator==(const RecycleBinInfo &) const = default;

    /// Takes the item in, with its paths and its size.
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

    /// Bytes of all that no information file stands for.
    quint64 unrecordedSize() const
    {
        return std::accumulate(unrecorded.cbegin(), unrecorded.cend(), quint64{0}, sumOf);
    }

    /// filePaths, and behind them what no information file stands for.
    QStringList doomedPaths() const
    {
        QStringList paths = filePaths;
        for (const RecycleBinItem &item : unrecorded)
            paths.append(item.recyclePath);
        return paths;
    }

    /// What a job on doomedPaths() leaves out.
    QList<Shortfall> omissions() const
    {
        QList<Shortfall> left;
        for (const UnscannedBin &bin : unscanned)
            left.append({ShortfallKind::BinNotEntered, bin.path});
        return left;
    }

private:
    // A file may record any size; the sum ends at the largest number instead of beginning anew.
    static quint64 sumOf(quint64 sum, const RecycleBinItem &item)
    {
        return sum + std::min(item.size, std::numeric_limits<quint64>::max() - sum);
    }
};
