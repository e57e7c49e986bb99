#pragma once

#include <QString>

/// Returns a tool tip that shows the text literally. Qt renders a tip that looks like rich text, and names of
/// files and devices may look like that.
QString plainTip(const QString &text);
