#pragma once

#include "services/trash/recyclebininfo.h"

#include <QByteArrayView>

/// The "$I" file that the Recycle Bin keeps beside each deleted item.
namespace recyclebin {

/// Shorter files hold no information.
inline constexpr qsizetype SmallestInfoFile = 28; // bytes

/// Reads `fileName`, `originalPath` and `size` from contents of any origin. The path is empty when the
/// version is unknown or the path does not fit into the file. The path of version 1 keeps the zeros that pad
/// its field. Lone surrogates are kept.
RecycleBinItem parseInfo(QByteArrayView contents);

/// The part behind the last backslash or, without a backslash, behind the last slash.
QString lastComponent(const QString &path);

} // namespace recyclebin
