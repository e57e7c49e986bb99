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

/// The reports of all finished jobs with their outcomes, in one SQLite file per user, "quorvex.db" in the
/// application data folder. A report that saveReport() accepted is on the medium when the call returns and
/// survives a kill or a power cut. The bytes of a deleted report are overwritten. Only the owner can read the
/// file. A link in place of the file or of its journal files is not followed: initialize() fails.
///
/// Other programs may have the file open: a call waits up to ten seconds for them. One thread, that of
/// initialize(). getReports(), getReport(), outcome() and deleteReport() do not change lastError(); the other
/// functions set it when they fail.
class ReportDatabase
{
public:
    static constexpr std::chrono::milliseconds Patience{10000};

    ReportDatabase(const ReportDatabase &) = delete;
    ReportDatabase &operator=(const ReportDatabase &) = delete;

    static ReportDatabase &instance();

    /// Opens the file as the framework's default connection; creates the file and its folder when they do not
    /// exist. Without `folder` the names of application and organisation decide the folder and must be set
    /// before. True at once when the file is already open; may be called again after a failure. `patience`
    /// limits how long this call waits for other programs.
    bool initialize(const QString &folder = {}, std::chrono::milliseconds patience = Patience);

    /// Closes the file and the default connection.
    void close();

    /// Stores the report and its outcome in one transaction, replacing the report with the same certificate
    /// id. Without an outcome, the outcome of the report is unknown afterwards.
    bool saveReport(const WipeReport &report, const std::optional<OutcomeRecord> &outcome = {});

    /// A page of reports, latest start first; reports with the same start are in no defined order. A negative
    /// limit means no limit. Damaged text reads as WipeReport::fromJson() says.
    QList<WipeReport> getReports(int limit, int offset);

    /// The report with that id; a new one when there is none.
    WipeReport getReport(const QString &certificateId);

    /// The outcome of the job of a report. Nothing when it is unknown: the report is of an older version, or
    /// its outcome is damaged or cannot be read.
    std::optional<OutcomeRecord> outcome(const QString &certificateId);

    /// A report with the text exactly as it is stored, damaged or not.
    struct StoredReport
    {
        QString certificateId;
        QByteArray json;
    };

    /// Like getReports(), with the stored text. Nothing when the file could not be read.
    std::optional<QList<StoredReport>> storedReports(int limit, int offset);

    /// The stored text of one report: null when there is none with that id, nothing when the file could not
    /// be read.
    std::optional<QByteArray> storedJson(const QString &certificateId);

    /// Whether a report with that id is stored; nothing when the file could not be read.
    std::optional<bool> holds(const QString &certificateId);

    /// The number of stored reports whose id begins with the text; nothing when the file could not be read.
    std::optional<int> countBeginningWith(const QString &idBeginning);

    /// Deletes the report and its outcome. True as well when there is no report with that id.
    bool deleteReport(const QString &certificateId);

    /// The text of the last failure, as SQLite words it.
    QString lastError() const { return m_lastError; }

    /// The cause of a failure.
    enum class Problem { InUse, NoPermission, Full, Damaged, CannotOpen, IsLink, Other };
    /// The cause of the last failure.
    Problem lastProblem() const { return m_lastProblem; }

private:
    ReportDatabase();
    ~ReportDatabase();

    bool open(const QString &folder, std::chrono::milliseconds patience);
    bool execute(const QString &statement);
    bool hasAnswered(const QSqlQuery &query);
    // For an error: stores its text and cause and returns false.
    bool succeeded(const QSqlError &error);
    QSqlQuery page(int limit, int offset) const;
    QSqlQuery one(const QString &certificateId) const;
    QSqlError erase(const QString &statement, const QString &certificateId) const;

    QSqlDatabase m_db;
    QString m_lastError;
    Problem m_lastProblem = Problem::Other;
    bool m_initialized = false;
};
