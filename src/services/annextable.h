#pragma once

#include "model/joboutcome.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

#include <optional>

/// The table "report_annex" of the report database: the outcome of a job, keyed by the certificate id of its
/// report. It is a table of its own, because other programs know the columns of the table of reports.
namespace annextable {

extern const QString create;

/// Replaces the row of that certificate id. The old outcome is removed in any case, because it says nothing
/// about the new report. NoError on success.
QSqlError replace(const QSqlDatabase &database, const QString &certificateId,
                  const std::optional<OutcomeRecord> &outcome);

/// The stored outcome; nothing when there is none or it cannot be read.
std::optional<OutcomeRecord> outcome(const QSqlDatabase &database, const QString &certificateId);

extern const QString deleteOne;

} // namespace annextable
