#pragma once

/// What the system says of looks, to a program that has its own. Free functions: both are needed before the
/// QApplication, and so before the first Platform exists.

namespace platform {

// Windows of the system's own around our content keep light frames on a dark desktop. Before the
// QApplication. Windows: the option "darkmode=0" of Qt's platform plugin, by QT_QPA_PLATFORM unless that is
// set already. Linux: the window manager's affair.
void keepLightFrames();

// Whether the system draws its controls in colours of high contrast. Windows: SPI_GETHIGHCONTRAST. Linux: no
// such question.
bool hasHighContrast();

} // namespace platform
