#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace cli {

/// Whether the text is one JSON object, which can be read as a report.
bool isReportText(const QByteArray &json);

/// Whether the text has a certificate id, even if other fields are damaged.
bool namesCertificate(const QByteArray &json);

/// The target in a few words, safe to display: the drive, or the number of files.
QString targetText(const WipeReport &report);

/// The report for a person, a field a line, safe to display, with the outcome of the job.
QString reportText(const WipeReport &report, const std::optional<OutcomeRecord> &outcome);

/// The outcome in one word; also for an unknown one.
QString outcomeText(const std::optional<OutcomeRecord> &outcome);

} // namespace cli
