#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QRawFont)

/// Corrects the character names in a PDF, so that searching and copying give the painted characters. Qt's
/// writer names a glyph by the first character that has it, which in Chinese fonts is often a radical or a
/// compatibility character (U+2F64 for U+7528), and a tab for every blank.
///
/// `painted`: all characters on the pages. `fonts`: the fonts used. A PDF without such names, or with another
/// structure than the writer's, is returned unchanged.
QByteArray withSearchableText(const QByteArray &pdf, const QString &painted, const QList<QRawFont> &fonts);
