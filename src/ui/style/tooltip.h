#pragma once

#include <QString>

/// The tip that shows the text as it is: a tool tip takes what looks like rich text for that, which names of
/// files and devices must not become.
QString plainTip(const QString &text);
