#pragma once

#include <QPalette>

/// Returns the colours of the style sheet as a palette, for widgets that the sheet does not name, such as the
/// dialogs of Qt. On a dark desktop they would have dark surfaces under the dark text of the sheet.
QPalette lightPalette();
