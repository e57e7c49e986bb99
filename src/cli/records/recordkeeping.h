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

/// Keeps the records of jobs: the report in the database, the report as a file, and the certificate.
class RecordKeeping
{
public:
    /// The paths of the records; empty for one that was not wanted or could not be written.
    struct Written
    {
        QString report;
        QString certificate;
        QStringList problems; ///< for the user
    };

    /// Opens the database and tests the files; writes nothing. Refused when a record would lie in an erased
    /// path, SurroundingsFailed when it cannot be written.
    static Outcome<RecordKeeping> prepare(const WipeOptions &options, const CommandContext &context,
                                          const QStringList &doomedPaths, const QStringList &commandWords);

    /// Writes the records and notes in `end` whether the report was stored.
    Written write(JobEnd &end, bool withCertificate) const;

private:
    std::unique_ptr<ReportStore> m_store; ///< null: reports are not stored
    OutputFile m_reportFile;
    CertificateFile m_certificate;
};

} // namespace cli
