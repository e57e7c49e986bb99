#include "services/annextable.h"

#include <QSqlQuery>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace annextable {

namespace {

const QString insertOne =
    u"INSERT INTO report_annex (certificate_id, schema_version, annex_json) VALUES (?, ?, ?)"_s;
const QString selectOne = u"SELECT annex_json FROM report_annex WHERE certificate_id = ?"_s;

} // namespace

const QString create = u"CREATE TABLE IF NOT EXISTS report_annex ("
                       "certificate_id TEXT PRIMARY KEY NOT NULL, "
                       "schema_version INTEGER NOT NULL, "
                       "annex_json TEXT NOT NULL)"_s;
const QString deleteOne = u"DELETE FROM report_annex WHERE certificate_id = ?"_s;

QSqlError replace(const QSqlDatabase &database, const QString &certificateId,
                  const std::optional<OutcomeRecord> &outcome)
{
    QSqlQuery query(database);
    query.prepare(deleteOne);
    query.addBindValue(certificateId);
    query.exec();
    if (query.lastError().type() != QSqlError::NoError || !outcome)
        return query.lastError();
    query.prepare(insertOne);
    query.addBindValue(certificateId);
    query.addBindValue(OutcomeRecord::SchemaVersion);
    query.addBindValue(QString::fromUtf8(outcome->toJson()));
    query.exec();
    return query.lastError();
}

std::optional<OutcomeRecord> outcome(const QSqlDatabase &database, const QString &certificateId)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.prepare(selectOne);
    query.addBindValue(certificateId);
    query.exec();
    if (!query.next())
        return std::nullopt;
    return OutcomeRecord::fromJson(query.value(0).toString().toUtf8());
}

} // namespace annextable
