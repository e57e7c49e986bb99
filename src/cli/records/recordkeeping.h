#pragma once

#include "cli/io/outputfile.h"
#include "cli/outcome.h"
#include "cli/records/certificatefile.h"
#include "cli/records/reportstore.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

struct JobEnd;

namespace cli {

struct CommandContext;
struct WipeOptions;

// What is kept of jobs: the record in the database, the report as a file, the certificate.
class RecordKeeping
{
public:
    // Where they went; empty paths for what was not wanted or could not be written.
    struct Written
    {
        QString report;
        QString certificate;
        QStringList problems; // in words for the user
    };

    // Opens the database and tries the files; nothing is written. Refused when one of them lies in what is to
    // be erased, SurroundingsFailed when it cannot be written.
    static Outcome<RecordKeeping> prepare(const WipeOptions &options, const CommandContext &context,
                                          const QStringList &doomedPaths, const QStringList &commandWords);

    // Notes in the end what became of its report.
    Written write(JobEnd &end, bool withCertificate) const;

private:
    std::unique_ptr<ReportStore> m_store; // null: not wanted
    OutputFile m_reportFile;
    CertificateFile m_certificate;
};

} // namespace cli
