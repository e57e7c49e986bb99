#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QRawFont)

/// The same PDF, in which searching and copying give the characters that were painted. The toolkit's writer
/// names a glyph by the first character that has it, which in fonts for Chinese is often a radical or a
/// compatibility character (U+2F64 for U+7528), and a tab for every blank.
///
/// `painted`: all characters on the pages. `fonts`: what they were painted with. A PDF without such names, or
/// of another build than the writer's, comes back unchanged.
QByteArray withSearchableText(const QByteArray &pdf, const QString &painted, const QList<QRawFont> &fonts);
