#pragma once

#include <QByteArray>
#include <QString>

/// The path that a ".trashinfo" file records, with its percent signs decoded, as it stands there: absolute,
/// or relative to the root of its volume. Text only, wherever it leads. Empty when the contents are not of
/// the form. Bytes that are not UTF-8 stay apart as they do in file names.
QString parseTrashInfo(const QByteArray &contents);
