#include "services/reporttable.h"

#include <QSqlQuery>
#include <QVariant>

#include <array>

using namespace Qt::StringLiterals;

namespace reporttable {

namespace {

const std::array indexes{
    u"CREATE INDEX IF NOT EXISTS idx_certificate_id ON wipe_reports(certificate_id)"_s,
    u"CREATE INDEX IF NOT EXISTS idx_start_time ON wipe_reports(start_time)"_s,
};

const QString insertReport =
    u"        INSERT OR REPLACE INTO wipe_reports (\n"
    "            certificate_id, operation_type, method_name, method_type, pass_count,\n"
    "            start_time, end_time, status, disk_model, disk_serial, disk_size,\n"
    "            total_sectors, wiped_sectors, bytes_written, bad_sectors,\n"
    "            verification_passed, verification_method, verification_sample_size,\n"
    "            data_hash, operator_name, computer_name, error_message, report_json\n"
    "        ) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s;

// The framework binds a null text as NULL. An empty field is not NULL, and some columns do not accept NULL.
QString text(const QString &value)
{
    return value.isNull() ? u""_s : value;
}

QString text(const QDateTime &time)
{
    return text(time.toString(Qt::ISODate));
}

// The framework binds unsigned 64-bit numbers as text.
qint64 number(quint64 value)
{
    return static_cast<qint64>(value);
}

void bindReport(QSqlQuery &query, const WipeReport &report)
{
    query.addBindValue(text(report.certificateId));
    query.addBindValue(static_cast<qint32>(report.operationType));
    query.addBindValue(text(report.method.name));
    query.addBindValue(report.method.type);
    query.addBindValue(report.method.passCount());
    query.addBindValue(text(report.startTime));
    query.addBindValue(text(report.endTime));
    query.addBindValue(static_cast<qint32>(report.status));
    query.addBindValue(text(report.disk.model));
    query.addBindValue(text(report.disk.serialNumber));
    query.addBindValue(report.disk.sizeBytes);
    query.addBindValue(number(report.totalSectors));
    query.addBindValue(number(report.wipedSectors));
    query.addBindValue(number(report.bytesWritten));
    query.addBindValue(report.badSectors);
    query.addBindValue(report.verificationPassed ? 1 : 0);
    query.addBindValue(text(report.verificationMethod));
    query.addBindValue(report.verificationSampleSize);
    query.addBindValue(text(report.dataHash));
    query.addBindValue(text(report.operatorName));
    query.addBindValue(text(report.computerName));
    query.addBindValue(text(report.errorMessage));
    query.addBindValue(QString::fromUtf8(report.toJson()));
}

} // namespace

const QString create = u"        CREATE TABLE IF NOT EXISTS wipe_reports (\n"
                       "            id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
                       "            certificate_id TEXT UNIQUE NOT NULL,\n"
                       "            operation_type INTEGER NOT NULL,\n"
                       "            method_name TEXT NOT NULL,\n"
                       "            method_type INTEGER NOT NULL,\n"
                       "            pass_count INTEGER NOT NULL,\n"
                       "            start_time TEXT NOT NULL,\n"
                       "            end_time TEXT,\n"
                       "            status INTEGER NOT NULL,\n"
                       "            disk_model TEXT,\n"
                       "            disk_serial TEXT,\n"
                       "            disk_size INTEGER,\n"
                       "            total_sectors INTEGER,\n"
                       "            wiped_sectors INTEGER,\n"
                       "            bytes_written INTEGER,\n"
                       "            bad_sectors INTEGER,\n"
                       "            verification_passed INTEGER,\n"
                       "            verification_method TEXT,\n"
                       "            verification_sample_size INTEGER,\n"
                       "            data_hash TEXT,\n"
                       "            operator_name TEXT,\n"
                       "            computer_name TEXT,\n"
                       "            error_message TEXT,\n"
                       "            report_json TEXT,\n"
                       "            created_at TEXT DEFAULT CURRENT_TIMESTAMP\n"
                       "        )"_s;

const QString selectPage =
    u"SELECT certificate_id, report_json FROM wipe_reports ORDER BY start_time DESC LIMIT ? OFFSET ?"_s;
const QString selectOne = u"SELECT report_json FROM wipe_reports WHERE certificate_id = ?"_s;
const QString countBeginning =
    u"SELECT COUNT(*) FROM wipe_reports WHERE substr(certificate_id, 1, length(?)) = ?"_s;
const QString deleteOne = u"DELETE FROM wipe_reports WHERE certificate_id = ?"_s;

void createIndexes(const QSqlDatabase &database)
{
    QSqlQuery query(database);
    for (const QString &statement : indexes)
        query.exec(statement);
}

QSqlError insert(const QSqlDatabase &database, const WipeReport &report)
{
    QSqlQuery query(database);
    // A query that could not be prepared has the error that counts; executing it would replace that error.
    if (query.prepare(insertReport)) {
        bindReport(query, report);
        query.exec();
    }
    return query.lastError();
}

} // namespace reporttable
