#pragma once

#include <QString>

/// Replaces every character that controls a terminal, reorders a line or is invisible by a visible mark.
/// These are control and format characters (bidirectional marks and overrides among them), line and paragraph
/// separators, as "[U+202E]", and lone surrogates, as "[0xE9]" where one stands for a byte that is no text.
/// For names that come from a device or a file system: models, serial numbers, labels, paths. Different names
/// stay visibly different.
QString displayText(const QString &text);
