#pragma once

#include "model/wipereport.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

// The table "wipe_reports" of the report database, whose columns other programs know: the whole report as
// JSON, and beside it the fields that are searched for.
namespace reporttable {

extern const QString create;
// Without them the table only answers more slowly.
void createIndexes(const QSqlDatabase &database);

// In the place of the one with the same certificate id, if there is one. NoError on success.
QSqlError insert(const QSqlDatabase &database, const WipeReport &report);

// Columns: report_json. Takes a certificate id.
extern const QString selectOne;
// Columns: certificate_id, report_json; latest start first. Takes a limit and an offset.
extern const QString selectPage;
extern const QString deleteOne;
// Column: how many ids begin with a text, to be given twice.
extern const QString countBeginning;

} // namespace reporttable
