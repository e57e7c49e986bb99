#pragma once

#include <QFont>
#include <QRawFont>

/// The fonts of the painted page. Where the first family is not installed, those behind it stand in, so that
/// every language of the program has its characters.
namespace certificatefonts {

QFont text(double points, QFont::Weight weight = QFont::Normal);
QFont logo(double points);

/// What text() may draw with, one for each family and weight that is installed.
QList<QRawFont> rawTextFonts();

} // namespace certificatefonts
