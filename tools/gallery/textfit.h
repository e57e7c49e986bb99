#pragma once

#include <QStringList>

class QWidget;

/// Texts of the shown window that have less room than they need, one line for each: the widget, the text and
/// what is missing in pixels.
QStringList cutTexts(const QWidget &window);
