#pragma once

#include "cli/outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

class QCommandLineParser;
class ReportDatabase;

namespace cli {

// The report database, open as long as this lives. One at a time.
class ReportStore
{
public:
    // In the folder that the options name, or in the user's. SurroundingsFailed with the reason.
    static Outcome<std::unique_ptr<ReportStore>> open(const QCommandLineParser &options);
    ~ReportStore();
    ReportStore(const ReportStore &) = delete;
    ReportStore &operator=(const ReportStore &) = delete;

    ReportDatabase &database() const;
    // The folder with the file, absolute.
    QString folder() const { return m_folder; }

    // For a question that the database did not answer.
    Refusal unreadable() const;

private:
    explicit ReportStore(QString folder);

    QString m_folder;
};

// The text of a report as it was stored: refused when there is none of that certificate id,
// SurroundingsFailed when the database does not answer.
Outcome<QByteArray> findStoredReport(const ReportStore &store, const QString &certificateId);

// The same, and SurroundingsFailed when the text is no report any more.
Outcome<QByteArray> readStoredReport(const ReportStore &store, const QString &certificateId);

} // namespace cli
