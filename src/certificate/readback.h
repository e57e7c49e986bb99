#pragma once

#include "model/joboutcome.h"

#include <optional>

struct WipeReport;

/// What stands behind a verification that a report calls passed.
enum class ReadBack {
    AsReported,    ///< what was written was read and compared, or the report does not say passed
    NotRead,       ///< nothing was read: passed only because nothing failed
    NotComparable, ///< read, but no pass wrote what can be foretold
};

/// An unknown outcome says nothing against the report.
ReadBack readBackOf(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
