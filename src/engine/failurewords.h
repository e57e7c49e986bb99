#pragma once

#include <QCoreApplication>
#include <QString>

// What the number of a failure means, in words for the job's log, where the number alone would not tell that
// the device is gone, fails or is locked. The numbers that have a line of their own there are not among them.
class FailureWords
{
    Q_DECLARE_TR_FUNCTIONS(FailureWords)

public:
    // Empty for every other number.
    static QString of(quint32 code);
};
