#pragma once

/// The desktop's settings for a program that draws its own look. These are free functions because both are
/// needed before the QApplication, and so before the first Platform exists.

namespace platform {

/// Keeps light frames around native windows on a dark desktop. Call it before the QApplication exists.
/// Windows: the option "darkmode=0" of Qt's platform plugin, set in QT_QPA_PLATFORM unless the variable is
/// set already. Linux: does nothing, the window manager draws the frames.
void keepLightFrames();

/// Whether the system draws its controls in high-contrast colours. Windows: SPI_GETHIGHCONTRAST. Linux:
/// false, there is no such setting.
bool hasHighContrast();

} // namespace platform
