#pragma once

#include "services/trash/recyclebininfo.h"

#include <QCoreApplication>
#include <QString>

/// What a bin holds, in words. Its records are whatever stands in files that anybody may have written: paths
/// end at their first zero, as they do for the system that wrote them, names are shown as displayText(), and
/// sizes that no file can have are told as such.
class BinItemText
{
    Q_DECLARE_TR_FUNCTIONS(BinItemText)

public:
    BinItemText() = delete;

    /// As recorded, up to the first zero. Not yet fit to be shown.
    static QString originalPath(const RecycleBinItem &item);
    /// The last component of that; otherwise the name the item bears in the bin. Not yet fit to be shown.
    static QString fileName(const RecycleBinItem &item);

    /// "4.00 KB".
    static QString size(const RecycleBinItem &item);
    /// Where the item was, and what is wrong with its size.
    static QString details(const RecycleBinItem &item);
    /// How many of the items have such sizes, which are part of the sum; empty when none has.
    static QString impossibleSizes(const RecycleBinInfo &found);
};
