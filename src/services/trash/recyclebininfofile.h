#pragma once

#include "services/trash/recyclebininfo.h"

#include <QByteArrayView>

/// The "$I" file that the Recycle Bin keeps beside each deleted item.
namespace recyclebin {

/// Shorter ones tell nothing.
inline constexpr qsizetype SmallestInfoFile = 28; // bytes

/// `fileName`, `originalPath` and `size` from the contents, of any origin and in any state. The path of an
/// unknown version, or of one that does not fit into the file, is empty; the path of version 1 keeps the
/// zeros that fill its field. Lone surrogates stay as they are.
RecycleBinItem parseInfo(QByteArrayView contents);

/// What stands behind the last backslash, or behind the last slash where there is no backslash.
QString lastComponent(const QString &path);

} // namespace recyclebin
