#pragma once

#include "platform/status.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace platform {

/// For systems whose file names are bytes, which is every system except Windows.
///
/// File names on Linux are bytes and not always valid text. Decoding maps different names to different
/// strings: valid UTF-8 is decoded, every other byte b becomes the lone surrogate U+DC00 + b.
/// encodeName(decodeName(bytes)) == bytes for any bytes, so that a file with a Latin-1 name can still be
/// opened, overwritten and deleted. Nothing is normalised, and a byte order mark is part of the name.
QString decodeName(QByteArrayView bytes);

/// The bytes of a name. A surrogate that decodeName() never produces is written as three bytes of invalid
/// UTF-8, so that such a name matches no file instead of a different one.
QByteArray encodeName(const QString &name);

/// The bytes of a path for system calls. A trailing slash would make the call follow a link, so trailing
/// slashes are removed. A zero byte would cut the path short and address a different file, so such a path
/// fails with InvalidParameter.
Result<QByteArray> encodePath(const QString &path);

} // namespace platform
