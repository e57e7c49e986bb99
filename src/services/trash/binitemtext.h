#pragma once

#include "services/trash/recyclebininfo.h"

#include <QCoreApplication>
#include <QString>

/// The contents of a bin in words. Any user may have written the records of a bin. Recorded paths therefore
/// end at their first zero, as they do for the system that wrote them; names are shown by displayText(); and
/// sizes that no file can have are marked.
class BinItemText
{
    Q_DECLARE_TR_FUNCTIONS(BinItemText)

public:
    BinItemText() = delete;

    /// The recorded path up to its first zero. Not safe to display.
    static QString originalPath(const RecycleBinItem &item);
    /// The last component of that path, or the name of the item in the bin. Not safe to display.
    static QString fileName(const RecycleBinItem &item);

    /// "4.00 KB".
    static QString size(const RecycleBinItem &item);
    /// The original path and, when its size is impossible, a line on that.
    static QString details(const RecycleBinItem &item);
    /// The number of items with impossible sizes, which are part of the sum; empty when there is none.
    static QString impossibleSizes(const RecycleBinInfo &found);
};
