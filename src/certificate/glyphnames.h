#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// The text that a glyph stands for, given the text by which a PDF names it.
using GlyphTextCorrection = std::function<QString(const QString &named)>;

/// The PDF with corrected texts of its glyphs (ISO 32000-1, 9.10.3, "ToUnicode CMaps"), as an incremental
/// update. A PDF whose names are right, or with another structure than that of Qt's writer, is returned
/// unchanged. Pure.
QByteArray withGlyphNames(const QByteArray &pdf, const GlyphTextCorrection &correctedText);
