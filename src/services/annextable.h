#pragma once

#include "model/joboutcome.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

#include <optional>

// The table "report_annex" of the report database: what is known of a job beside its report, keyed by the
// certificate id. It stands beside the table of the reports, whose columns other programs know.
namespace annextable {

extern const QString create;

// What belongs to the report that was there before says nothing about the new one: it goes in any case.
// NoError on success.
QSqlError replace(const QSqlDatabase &database, const QString &certificateId,
                  const std::optional<OutcomeRecord> &outcome);

// Nothing when there is none, or none that can be read.
std::optional<OutcomeRecord> outcome(const QSqlDatabase &database, const QString &certificateId);

extern const QString deleteOne;

} // namespace annextable
