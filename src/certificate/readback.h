#pragma once

#include "model/joboutcome.h"

#include <optional>

struct WipeReport;

/// The evidence behind a verification that a report calls passed.
enum class ReadBack {
    AsReported,    ///< the data was read and compared, or the report does not say passed
    NotRead,       ///< nothing was read, so nothing could fail
    NotComparable, ///< read, but no pass wrote predictable data
};

/// An unknown outcome does not contradict the report.
ReadBack readBackOf(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
