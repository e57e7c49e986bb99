#pragma once

#include "platform/status.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace platform {

// For systems whose file names are bytes, that is all but Windows.
//
// File names on Linux are bytes, and not every one of them is text. Decoding keeps all of them apart: valid
// UTF-8 is taken as such, every other byte b becomes the lone surrogate U+DC00 + b.
// encodeName(decodeName(bytes)) == bytes for any bytes, so that a file with a Latin-1 name can still be
// opened, overwritten and deleted. Nothing is normalised, and a byte order mark is part of the name.
QString decodeName(QByteArrayView bytes);

// The bytes of a name. A surrogate that decodeName() never produces is written as three bytes that are not
// UTF-8, so that such a name leads to no file rather than to another one.
QByteArray encodeName(const QString &name);

// The bytes of a path as system calls take it: without slashes at the end, which would make them follow a
// link there. InvalidParameter for a path with a zero in it, which would end there and name something else.
Result<QByteArray> encodePath(const QString &path);

} // namespace platform
