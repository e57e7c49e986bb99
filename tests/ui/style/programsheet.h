#pragma once

#include "support/testfiles.h"

#include <QString>

// The style sheet that the main window applies to its pages and dialogs. Needs addUiResources().
inline QString programSheet()
{
    return QString::fromUtf8(contentOf(QStringLiteral(":/styles/style.qss")));
}
