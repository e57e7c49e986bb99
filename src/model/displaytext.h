#pragma once

#include <QString>

/// The text without characters that steer a terminal or reorder a line: control and format characters
/// (bidirectional marks and overrides among them), line and paragraph separators, lone surrogates.
/// For names that a device or a file system chose: models, serial numbers, labels, paths.
QString displayText(const QString &text);
