#pragma once

#include <QString>

/// The text for a screen reader, without the leading picture and without an arrow at either end.
QString spokenText(const QString &text);
