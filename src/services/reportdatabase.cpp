#include "services/reportdatabase.h"

#include "services/annextable.h"
#include "services/reporttable.h"
#include "services/savepoint.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QVariant>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// The rollback journal, the default of new files, with every step on the medium before the next one. EXTRA is
// FULL plus a sync of the folder entry of the journal; without it a power cut could bring back the journal of
// a finished transaction and undo it. The write-ahead log has no use here: one report per job needs no speed,
// deleted data would stay in a second file, a copy of the first file alone would lack the latest reports, and
// its shared memory does not work in a home folder on a network.
const QString durable = u"PRAGMA synchronous = EXTRA"_s;

// A deleted record must be gone: freed parts of the file are overwritten.
const QString overwriting = u"PRAGMA secure_delete = ON"_s;

constexpr QFile::Permissions OwnerMayReadAndWrite = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions AnyOwnerPermission = OwnerMayReadAndWrite | QFile::ExeOwner;
constexpr QFile::Permissions AnyPermissionOfOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                                     QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

QStringList filesOf(const QString &path)
{
    return {path, path + u"-journal"_s, path + u"-wal"_s, path + u"-shm"_s};
}

// The first path that is a link, whose target may belong to another user; empty when none is one.
QString linkAmong(const QString &path)
{
    const QStringList files = filesOf(path);
    const auto link = std::ranges::find_if(files, [](const QString &file) {
        const QFileInfo info(file);
        return info.isSymLink() || info.isJunction();
    });
    return link == files.end() ? QString() : *link;
}

// SQLite would create the file readable for everybody, and its journal files take the permissions of the
// file. A failure here is not reported: it occurs again, with an error text, when SQLite opens the file.
void keepToOwner(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, OwnerMayReadAndWrite))
        return;
    // Journal files that a killed program has left keep the permissions that the file had then.
    for (const QString &name : filesOf(path)) {
        const QFile::Permissions permissions = QFile::permissions(name);
        if (permissions & AnyPermissionOfOthers)
            QFile::setPermissions(name, permissions & AnyOwnerPermission);
    }
}

// A null text would be bound as NULL.
QString key(const QString &certificateId)
{
    return certificateId.isNull() ? u""_s : certificateId;
}

// The low byte of SQLite's result codes.
ReportDatabase::Problem problemOf(const QSqlError &error)
{
    using Problem = ReportDatabase::Problem;
    switch (error.nativeErrorCode().toInt() & 0xff) {
    case 5: // SQLITE_BUSY
    case 6: // SQLITE_LOCKED
        return Problem::InUse;
    case 3: // SQLITE_PERM
    case 8: // SQLITE_READONLY
        return Problem::NoPermission;
    case 13: // SQLITE_FULL
        return Problem::Full;
    case 11: // SQLITE_CORRUPT
    case 26: // SQLITE_NOTADB
        return Problem::Damaged;
    case 14: // SQLITE_CANTOPEN
        return Problem::CannotOpen;
    default:
        return Problem::Other;
    }
}

bool failed(const QSqlError &error)
{
    return error.type() != QSqlError::NoError;
}
} // namespace

ReportDatabase &ReportDatabase::instance()
{
    static ReportDatabase database;
    return database;
}

ReportDatabase::ReportDatabase()
{
    // Creates the framework's list of connections before this object is complete, so that it is destroyed
    // after this object.
    QSqlDatabase::connectionNames();
}

ReportDatabase::~ReportDatabase()
{
    m_db.close();
}

bool ReportDatabase::initialize(const QString &folder, std::chrono::milliseconds patience)
{
    if (m_initialized)
        return true;
    if (!open(folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) : folder,
              patience)) {
        close();
        return false;
    }
    reporttable::createIndexes(m_db);
    // A failure is ignored: a file of an earlier version can be read even if it cannot be written.
    QSqlQuery(m_db).exec(annextable::create);
    m_initialized = true;
    return true;
}

bool ReportDatabase::open(const QString &folder, std::chrono::milliseconds patience)
{
    // If the folder cannot be created, opening the file fails and has the error.
    QDir().mkpath(folder);
    const QString path = folder + u"/quorvex.db"_s;
    if (const QString link = linkAmong(path); !link.isEmpty()) {
        m_lastError = u"%1 is a link"_s.arg(link);
        m_lastProblem = Problem::IsLink;
        return false;
    }
    keepToOwner(path);

    m_db = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    m_db.setDatabaseName(path);
    m_db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(patience.count()));
    if (!m_db.open())
        return succeeded(m_db.lastError());
    // From here on calls wait longer: a window that does not react for a moment is better than a job without
    // its record.
    return execute(durable) && execute(overwriting) && execute(reporttable::create) &&
           execute(u"PRAGMA busy_timeout = %1"_s.arg(Patience.count()));
}

bool ReportDatabase::execute(const QString &statement)
{
    QSqlQuery query(m_db);
    query.exec(statement);
    return succeeded(query.lastError());
}

void ReportDatabase::close()
{
    m_initialized = false;
    if (!m_db.isValid())
        return;
    m_db.close();
    // The framework only removes a connection that no object refers to.
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(QLatin1StringView(QSqlDatabase::defaultConnection));
}

bool ReportDatabase::saveReport(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    if (!m_initialized) {
        m_lastError = u"数据库未初始化"_s;
        m_lastProblem = Problem::Other;
        return false;
    }
    Savepoint savepoint(m_db);
    if (!savepoint.isOpen())
        return succeeded(savepoint.error());
    if (!succeeded(reporttable::insert(m_db, report)) || !execute(annextable::create) ||
        !succeeded(annextable::replace(m_db, key(report.certificateId), outcome)))
        return false;
    return savepoint.commit() || succeeded(savepoint.error());
}

bool ReportDatabase::succeeded(const QSqlError &error)
{
    if (!failed(error))
        return true;
    m_lastError = error.text();
    m_lastProblem = problemOf(error);
    return false;
}

QList<WipeReport> ReportDatabase::getReports(int limit, int offset)
{
    QList<WipeReport> reports;
    if (!m_initialized)
        return reports;
    QSqlQuery query = page(limit, offset);
    while (query.next())
        reports.append(WipeReport::fromJson(query.value(1).toString().toUtf8()));
    return reports;
}

WipeReport ReportDatabase::getReport(const QString &certificateId)
{
    if (!m_initialized)
        return {};
    QSqlQuery query = one(certificateId);
    return query.next() ? WipeReport::fromJson(query.value(0).toString().toUtf8()) : WipeReport();
}

QSqlQuery ReportDatabase::page(int limit, int offset) const
{
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(reporttable::selectPage);
    query.addBindValue(limit);
    query.addBindValue(offset);
    query.exec();
    return query;
}

QSqlQuery ReportDatabase::one(const QString &certificateId) const
{
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(reporttable::selectOne);
    query.addBindValue(key(certificateId));
    query.exec();
    return query;
}

std::optional<OutcomeRecord> ReportDatabase::outcome(const QString &certificateId)
{
    if (!m_initialized)
        return std::nullopt;
    return annextable::outcome(m_db, key(certificateId));
}

std::optional<QList<ReportDatabase::StoredReport>> ReportDatabase::storedReports(int limit, int offset)
{
    if (!m_initialized)
        return std::nullopt;
    QList<StoredReport> reports;
    QSqlQuery query = page(limit, offset);
    while (query.next())
        reports.append({query.value(0).toString(), query.value(1).toString().toUtf8()});
    if (!hasAnswered(query))
        return std::nullopt;
    return reports;
}

std::optional<QByteArray> ReportDatabase::storedJson(const QString &certificateId)
{
    if (!m_initialized)
        return std::nullopt;
    QSqlQuery query = one(certificateId);
    const bool isThere = query.next();
    if (!hasAnswered(query))
        return std::nullopt;
    if (!isThere)
        return QByteArray();
    const QByteArray json = query.value(0).toString().toUtf8();
    return json.isNull() ? QByteArray("") : json;
}

std::optional<bool> ReportDatabase::holds(const QString &certificateId)
{
    const std::optional<QByteArray> json = storedJson(certificateId);
    if (!json)
        return std::nullopt;
    return !json->isNull();
}

std::optional<int> ReportDatabase::countBeginningWith(const QString &idBeginning)
{
    if (!m_initialized)
        return std::nullopt;
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    query.prepare(reporttable::countBeginning);
    query.addBindValue(idBeginning);
    query.addBindValue(idBeginning);
    query.exec();
    const bool isThere = query.next();
    if (!hasAnswered(query) || !isThere)
        return std::nullopt;
    return query.value(0).toInt();
}

// Fetching any of the rows may fail.
bool ReportDatabase::hasAnswered(const QSqlQuery &query)
{
    return succeeded(query.lastError());
}

bool ReportDatabase::deleteReport(const QString &certificateId)
{
    if (!m_initialized)
        return false;
    Savepoint savepoint(m_db);
    QSqlQuery(m_db).exec(annextable::create);
    return savepoint.isOpen() && !failed(erase(reporttable::deleteOne, certificateId)) &&
           !failed(erase(annextable::deleteOne, certificateId)) && savepoint.commit();
}

QSqlError ReportDatabase::erase(const QString &statement, const QString &certificateId) const
{
    QSqlQuery query(m_db);
    query.prepare(statement);
    query.addBindValue(key(certificateId));
    query.exec();
    return query.lastError();
}
