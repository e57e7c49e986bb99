#pragma once

#include "model/joboutcome.h"
#include "model/wipereport.h"

#include <QByteArray>
#include <QList>
#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

#include <chrono>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QSqlQuery)

/// The reports of all finished jobs with their outcomes, in one SQLite file of the user, "quorvex.db" in the
/// application's data folder. A report that saveReport() took is on the medium when the call returns and
/// survives a kill or a power cut; the bytes of a deleted one leave the file. Readable by its owner only. A
/// link in the place of the file or of one of those beside it is not followed: initialize() fails.
///
/// Other programs may have the file open: a call waits up to ten seconds for them. One thread, that of
/// initialize(). getReports(), getReport(), outcome() and deleteReport() leave lastError() as it is; the
/// others set it when they fail.
class ReportDatabase
{
public:
    static constexpr std::chrono::milliseconds Patience{10000};

    ReportDatabase(const ReportDatabase &) = delete;
    ReportDatabase &operator=(const ReportDatabase &) = delete;

    static ReportDatabase &instance();

    /// Opens the file, which is made with its folder at the first run, and takes the framework's default
    /// connection for it. The names of application and organisation decide the folder: set them first. True
    /// at once when it is open already; after a failure it may be tried again. A folder that is given takes
    /// the place of the application's; patience is how long other programs may hold the file now.
    bool initialize(const QString &folder = {}, std::chrono::milliseconds patience = Patience);

    /// Lets go of the file and the default connection, until initialize().
    void close();

    /// Stores the report in the place of the one with the same certificate id, if there is one, and its
    /// outcome with it: both or none. Without an outcome that of the report stays, or becomes, unknown.
    bool saveReport(const WipeReport &report, const std::optional<OutcomeRecord> &outcome = {});

    /// A page of reports, latest start first; those that started at once in no stated order. A negative limit
    /// is none. Text that is no report any more reads as WipeReport::fromJson() says.
    QList<WipeReport> getReports(int limit, int offset);

    /// A fresh report when there is none of that id.
    WipeReport getReport(const QString &certificateId);

    /// How the job of a report went. Nothing when that is unknown: stored by a version that did not ask,
    /// damaged, or not to be read.
    std::optional<OutcomeRecord> outcome(const QString &certificateId);

    /// A report as it was stored, whatever became of its text since.
    struct StoredReport
    {
        QString certificateId;
        QByteArray json;
    };

    /// As getReports(), but as stored. Nothing when the file could not be read.
    std::optional<QList<StoredReport>> storedReports(int limit, int offset);

    /// The text of one report: null when there is none of that id, nothing when the file could not be read.
    std::optional<QByteArray> storedJson(const QString &certificateId);

    /// Whether a report of that id is stored; nothing when the file could not be read.
    std::optional<bool> holds(const QString &certificateId);

    /// How many stored reports have an id that begins so; nothing when the file could not be read.
    std::optional<int> countBeginningWith(const QString &idBeginning);

    /// Its outcome goes with it. True as well when there is no report of that id.
    bool deleteReport(const QString &certificateId);

    /// Text of the last failure, as SQLite words it.
    QString lastError() const { return m_lastError; }

    /// What a failure comes from.
    enum class Problem { InUse, NoPermission, Full, Damaged, CannotOpen, IsLink, Other };
    /// Of the last failure.
    Problem lastProblem() const { return m_lastProblem; }

private:
    ReportDatabase();
    ~ReportDatabase();

    bool open(const QString &folder, std::chrono::milliseconds patience);
    bool execute(const QString &statement);
    bool hasAnswered(const QSqlQuery &query);
    // False, with text and problem kept, for an error.
    bool succeeded(const QSqlError &error);
    QSqlQuery page(int limit, int offset) const;
    QSqlQuery one(const QString &certificateId) const;
    QSqlError erase(const QString &statement, const QString &certificateId) const;

    QSqlDatabase m_db;
    QString m_lastError;
    Problem m_lastProblem = Problem::Other;
    bool m_initialized = false;
};
