#pragma once

#include <QString>

class OutcomeRecord;
struct WipeReport;

/// Stores the report of a job and its outcome in the database, which is opened when an earlier attempt
/// failed. Returns an empty string on success, else the reason in words for the user. On the database's
/// thread.
QString storeReport(const WipeReport &report, const OutcomeRecord &outcome);
