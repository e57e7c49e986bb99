#pragma once

#include <QString>

/// The text with a visible mark in the place of every character that steers a terminal, reorders a line or
/// is not seen: control and format characters (bidirectional marks and overrides among them), line and
/// paragraph separators, as "[U+202E]"; lone surrogates too, as "[0xE9]" where one stands for a byte that is
/// no text. For names that a device or a file system chose: models, serial numbers, labels, paths. Two names
/// that differ are seen to differ.
QString displayText(const QString &text);
