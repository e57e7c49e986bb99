#pragma once

#include <QByteArray>
#include <QString>

/// The path recorded in a ".trashinfo" file, without percent encoding: absolute, or relative to the root of
/// its volume. It is only a text, to be treated as untrusted. Empty when the contents are invalid. Bytes that
/// are not UTF-8 are decoded as in file names.
QString parseTrashInfo(const QByteArray &contents);
