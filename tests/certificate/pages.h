#pragma once

#include "support/filledreport.h"

// A job on files.
inline WipeReport shortReport()
{
    using namespace Qt::StringLiterals;

    WipeReport report = filledReport();
    report.operationType = FileWipe;
    report.dataHash = u"e3b0c44298fc1c149afbf4c8"_s;
    return report;
}
