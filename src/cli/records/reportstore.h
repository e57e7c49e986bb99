#pragma once

#include "cli/outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

class QCommandLineParser;
class ReportDatabase;

namespace cli {

/// The report database, open during the lifetime of the object. Only one instance at a time.
class ReportStore
{
public:
    /// Opens the database in the folder of the options, or in the user's folder. SurroundingsFailed with the
    /// reason.
    static Outcome<std::unique_ptr<ReportStore>> open(const QCommandLineParser &options);
    ~ReportStore();
    ReportStore(const ReportStore &) = delete;
    ReportStore &operator=(const ReportStore &) = delete;

    ReportDatabase &database() const;
    /// The absolute path of the folder with the file.
    QString folder() const { return m_folder; }

    /// The refusal after a failed query of the database.
    Refusal unreadable() const;

private:
    explicit ReportStore(QString folder);

    QString m_folder;
};

/// The stored text of a report. Refused when there is none with that certificate id; SurroundingsFailed when
/// the database cannot be read.
Outcome<QByteArray> findStoredReport(const ReportStore &store, const QString &certificateId);

/// The same; also SurroundingsFailed when the text is not a report any more.
Outcome<QByteArray> readStoredReport(const ReportStore &store, const QString &certificateId);

} // namespace cli
