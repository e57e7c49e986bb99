#include "services/reportdatabase.h"

#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QVariant>

#include <array>

using namespace Qt::StringLiterals;

namespace {
// SQLite's rollback journal, the mode of new files, with every step on the medium before the next; EXTRA is
// FULL and the folder entry of the journal as well, without which a power cut could bring back the journal of
// a finished transaction and undo it. Not the write-ahead log: at one report per job its speed buys nothing,
// it keeps what was deleted in a second file, a copy of the first lacks the latest reports, and its shared
// memory does not work in a home folder on a network.
const QString durable = u"PRAGMA synchronous = EXTRA"_s;

// Whoever deletes the record of a job wants it gone: freed parts of the file are overwritten.
const QString overwriting = u"PRAGMA secure_delete = ON"_s;

const QString createTable = u"        CREATE TABLE IF NOT EXISTS wipe_reports (\n"
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

const std::array createIndexes{
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

const QString selectPage =
    u"SELECT report_json FROM wipe_reports ORDER BY start_time DESC LIMIT ? OFFSET ?"_s;
const QString selectStoredPage =
    u"SELECT certificate_id, report_json FROM wipe_reports ORDER BY start_time DESC LIMIT ? OFFSET ?"_s;
const QString selectOne = u"SELECT report_json FROM wipe_reports WHERE certificate_id = ?"_s;
const QString deleteOne = u"DELETE FROM wipe_reports WHERE certificate_id = ?"_s;

// Beside the table of the reports, whose columns other programs know.
const QString createAnnexTable = u"CREATE TABLE IF NOT EXISTS report_annex ("
                                 "certificate_id TEXT PRIMARY KEY NOT NULL, "
                                 "schema_version INTEGER NOT NULL, "
                                 "annex_json TEXT NOT NULL)"_s;
const QString insertOneAnnex =
    u"INSERT INTO report_annex (certificate_id, schema_version, annex_json) VALUES (?, ?, ?)"_s;
const QString selectOneAnnex = u"SELECT annex_json FROM report_annex WHERE certificate_id = ?"_s;
const QString deleteOneAnnex = u"DELETE FROM report_annex WHERE certificate_id = ?"_s;

constexpr QFile::Permissions OwnerMayReadAndWrite = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions AnyOwnerPermission = OwnerMayReadAndWrite | QFile::ExeOwner;
constexpr QFile::Permissions AnyPermissionOfOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                                     QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

// SQLite would make the file for everybody to read; the files it puts beside it get the permissions of this
// one. What fails here fails again, with a reason to show, when SQLite opens the file.
void keepToOwner(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, OwnerMayReadAndWrite))
        return;
    // Left by a program that was killed, the ones at the side have what the file had then.
    for (const QString &name : {path, path + u"-journal"_s, path + u"-wal"_s, path + u"-shm"_s}) {
        const QFile::Permissions permissions = QFile::permissions(name);
        if (permissions & AnyPermissionOfOthers)
            QFile::setPermissions(name, permissions & AnyOwnerPermission);
    }
}

// The framework binds null text as NULL, which the table refuses in places and which is not what an empty
// field says.
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

// Takes back what was not committed. A savepoint, which may also stand within a transaction.
class Transaction
{
public:
    explicit Transaction(const QSqlDatabase &database)
        : m_query(database)
        , m_isOpen(m_query.exec(u"SAVEPOINT report"_s))
    {}
    ~Transaction()
    {
        if (!m_isOpen)
            return;
        m_query.exec(u"ROLLBACK TO report"_s);
        m_query.exec(u"RELEASE report"_s);
    }
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    bool isOpen() const { return m_isOpen; }
    bool commit()
    {
        // One that failed is still open.
        const bool committed = m_query.exec(u"RELEASE report"_s);
        m_isOpen = !committed;
        return committed;
    }
    QString error() const { return m_query.lastError().text(); }

private:
    QSqlQuery m_query;
    bool m_isOpen;
};

WipeReport storedReport(const QSqlQuery &query)
{
    return WipeReport::fromJson(query.value(0).toString().toUtf8());
}
} // namespace

ReportDatabase &ReportDatabase::instance()
{
    static ReportDatabase database;
    return database;
}

ReportDatabase::ReportDatabase()
{
    // Makes the framework's list of connections before this object is complete: it is there until after the
    // destructor.
    QSqlDatabase::connectionNames();
}

ReportDatabase::~ReportDatabase()
{
    m_db.close();
}

bool ReportDatabase::initialize(const QString &folder)
{
    if (m_initialized)
        return true;
    if (!open(folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                               : folder)) {
        close();
        return false;
    }
    // Without them the table only answers more slowly.
    QSqlQuery query(m_db);
    for (const QString &statement : createIndexes)
        query.exec(statement);
    // A file of an earlier version that cannot be written can be read all the same.
    query.exec(createAnnexTable);
    m_initialized = true;
    return true;
}

bool ReportDatabase::open(const QString &folder)
{
    // Without the folder the file does not open, which says so.
    QDir().mkpath(folder);
    const QString path = folder + u"/quorvex.db"_s;
    keepToOwner(path);

    m_db = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    m_db.setDatabaseName(path);
    // Better a window that stands still for a moment than a job without its record.
    m_db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
    if (!m_db.open()) {
        m_lastError = m_db.lastError().text();
        return false;
    }
    return execute(durable) && execute(overwriting) && execute(createTable);
}

bool ReportDatabase::execute(const QString &statement)
{
    QSqlQuery query(m_db);
    if (query.exec(statement))
        return true;
    m_lastError = query.lastError().text();
    return false;
}

void ReportDatabase::close()
{
    m_initialized = false;
    if (!m_db.isValid())
        return;
    m_db.close();
    // The framework gives up a connection only when nobody holds it any more.
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(QLatin1StringView(QSqlDatabase::defaultConnection));
}

bool ReportDatabase::saveReport(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    if (!m_initialized) {
        m_lastError = u"数据库未初始化"_s;
        return false;
    }
    Transaction transaction(m_db);
    if (!transaction.isOpen()) {
        m_lastError = transaction.error();
        return false;
    }
    if (!insert(report) || !execute(createAnnexTable) || !replaceAnnex(report.certificateId, outcome))
        return false;
    if (transaction.commit())
        return true;
    m_lastError = transaction.error();
    return false;
}

bool ReportDatabase::insert(const WipeReport &report)
{
    QSqlQuery query(m_db);
    // What failed to prepare has the error that tells; executing it would put another in its place.
    bool saved = query.prepare(insertReport);
    if (saved) {
        bindReport(query, report);
        saved = query.exec();
    }
    if (!saved)
        m_lastError = query.lastError().text();
    return saved;
}

// What belongs to the report that was there before says nothing about the new one.
bool ReportDatabase::replaceAnnex(const QString &certificateId, const std::optional<OutcomeRecord> &outcome)
{
    QSqlError error = erase(deleteOneAnnex, certificateId);
    if (error.type() == QSqlError::NoError && outcome) {
        QSqlQuery query(m_db);
        query.prepare(insertOneAnnex);
        query.addBindValue(text(certificateId));
        query.addBindValue(OutcomeRecord::SchemaVersion);
        query.addBindValue(QString::fromUtf8(outcome->toJson()));
        query.exec();
        error = query.lastError();
    }
    if (error.type() == QSqlError::NoError)
        return true;
    m_lastError = error.text();
    return false;
}

QList<WipeReport> ReportDatabase::getReports(int limit, int offset)
{
    QList<WipeReport> reports;
    if (!m_initialized)
        return reports;
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(selectPage);
    query.addBindValue(limit);
    query.addBindValue(offset);
    query.exec();
    while (query.next())
        reports.append(storedReport(query));
    return reports;
}

WipeReport ReportDatabase::getReport(const QString &certificateId)
{
    if (!m_initialized)
        return {};
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(selectOne);
    query.addBindValue(text(certificateId));
    query.exec();
    return query.next() ? storedReport(query) : WipeReport();
}

std::optional<OutcomeRecord> ReportDatabase::outcome(const QString &certificateId)
{
    if (!m_initialized)
        return std::nullopt;
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(selectOneAnnex);
    query.addBindValue(text(certificateId));
    query.exec();
    if (!query.next())
        return std::nullopt;
    return OutcomeRecord::fromJson(query.value(0).toString().toUtf8());
}

std::optional<QList<ReportDatabase::StoredReport>> ReportDatabase::storedReports(int limit, int offset)
{
    QList<StoredReport> reports;
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(selectStoredPage);
    query.addBindValue(limit);
    query.addBindValue(offset);
    query.exec();
    while (query.next())
        reports.append({query.value(0).toString(), query.value(1).toString().toUtf8()});
    if (!hasAnswered(query))
        return std::nullopt;
    return reports;
}

std::optional<QByteArray> ReportDatabase::storedJson(const QString &certificateId)
{
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(selectOne);
    query.addBindValue(text(certificateId));
    query.exec();
    const bool isThere = query.next();
    if (!hasAnswered(query))
        return std::nullopt;
    if (!isThere)
        return QByteArray();
    const QByteArray json = query.value(0).toString().toUtf8();
    return json.isNull() ? QByteArray("") : json;
}

// An error may come with any row.
bool ReportDatabase::hasAnswered(const QSqlQuery &query)
{
    if (query.lastError().type() == QSqlError::NoError)
        return true;
    m_lastError = query.lastError().text();
    return false;
}

bool ReportDatabase::deleteReport(const QString &certificateId)
{
    if (!m_initialized)
        return false;
    Transaction transaction(m_db);
    QSqlQuery(m_db).exec(createAnnexTable);
    return transaction.isOpen() && erase(deleteOne, certificateId).type() == QSqlError::NoError &&
           erase(deleteOneAnnex, certificateId).type() == QSqlError::NoError && transaction.commit();
}

QSqlError ReportDatabase::erase(const QString &statement, const QString &certificateId)
{
    QSqlQuery query(m_db);
    query.prepare(statement);
    query.addBindValue(text(certificateId));
    query.exec();
    return query.lastError();
}
