#pragma once

#include <QFont>
#include <QRawFont>

/// The fonts of the painted page. The families behind the first one are fallbacks, so that every language of
/// the program has its characters.
namespace certificatefonts {

QFont text(double points, QFont::Weight weight = QFont::Normal);
QFont logo(double points);

/// All fonts that text() may use, one for each installed family and weight.
QList<QRawFont> rawTextFonts();

} // namespace certificatefonts
