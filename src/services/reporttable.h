#pragma once

#include "model/wipereport.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

/// The table "wipe_reports" of the report database: each report as JSON, and the fields that are searched for
/// in columns of their own. Other programs know these columns.
namespace reporttable {

extern const QString create;
/// The indexes; without them queries are only slower.
void createIndexes(const QSqlDatabase &database);

/// Stores the report, replacing the one with the same certificate id. NoError on success.
QSqlError insert(const QSqlDatabase &database, const WipeReport &report);

/// Columns: report_json. Takes a certificate id.
extern const QString selectOne;
/// Columns: certificate_id, report_json; latest start first. Takes a limit and an offset.
extern const QString selectPage;
extern const QString deleteOne;
/// Column: the number of ids that begin with a text, which is bound twice.
extern const QString countBeginning;

} // namespace reporttable
