#pragma once

#include <QCoreApplication>
#include <QString>

/// The meaning of an error code in words for the job's log, for the codes of a device that is gone, fails or
/// is locked. Codes with a separate log line are not among them.
class FailureWords
{
    Q_DECLARE_TR_FUNCTIONS(FailureWords)

public:
    /// Empty for every other code.
    static QString of(quint32 code);
};
