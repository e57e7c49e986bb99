#pragma once

#include <QString>

class OutcomeRecord;
struct WipeReport;

/// Puts the report of a job and its outcome into the database, which is opened first where that has failed
/// before. Empty when it is stored; otherwise why it is not, in words for the user. The database's thread.
QString storeReport(const WipeReport &report, const OutcomeRecord &outcome);
