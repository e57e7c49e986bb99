#pragma once

#include <QPalette>

/// The colours of the style sheet for whatever the sheet does not name, dialogs of Qt's own above all. On a
/// dark desktop these would have its dark surfaces under the sheet's dark text.
QPalette lightPalette();
