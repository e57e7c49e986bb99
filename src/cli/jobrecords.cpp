#include "cli/jobrecords.h"

#include "cli/command.h"
#include "cli/commandline.h"
#include "cli/translate.h"
#include "cli/wipeoptions.h"
#include "jobs/reportstorage.h"
#include "model/displaytext.h"
#include "model/joboutcome.h"
#include "model/wipereport.h"
#include "services/reportdatabase.h"

namespace cli {

using namespace Qt::StringLiterals;

namespace {

// File is OutputFile or CertificateFile.
template <typename File>
std::optional<Refusal> check(const File &file, const QStringList &doomedPaths,
                             const QStringList &commandWords)
{
    if (!file.isWanted())
        return std::nullopt;
    const QString shown = displayText(file.path());
    if (file.liesWithin(doomedPaths))
        return wrongCommandLine(Cli::tr("'%1' lies in what is to be erased").arg(shown), commandWords);
    if (!file.isWritable())
        return Refusal{SurroundingsFailed, Cli::tr("%1 cannot be written").arg(shown)};
    return std::nullopt;
}

std::optional<Refusal> checkStore(const ReportStore &store, const QStringList &doomedPaths)
{
    const auto file = OutputFile::at(store.folder() + u"/quorvex.db"_s, {});
    if (!file || !file->liesWithin(doomedPaths))
        return std::nullopt;
    return Refusal{Refused, Cli::tr("the report database in %1 lies in what is to be erased; --data-dir "
                                    "takes another folder, --no-report does without")
                                .arg(displayText(store.folder()))};
}

} // namespace

Outcome<JobRecords> JobRecords::prepare(const WipeOptions &options, const CommandContext &context,
                                        const QStringList &doomedPaths, const QStringList &commandWords)
{
    if (const auto refusal = check(options.reportFile, doomedPaths, commandWords))
        return *refusal;
    if (const auto refusal = check(options.certificate, doomedPaths, commandWords))
        return *refusal;
    JobRecords records;
    records.m_reportFile = options.reportFile;
    records.m_certificate = options.certificate;
    if (options.storeReport) {
        auto store = ReportStore::open(context.options);
        if (!store)
            return store.refusal();
        if (const auto refusal = checkStore(**store, doomedPaths))
            return *refusal;
        records.m_store = std::move(*store);
    }
    return records;
}

JobRecords::Written JobRecords::write(const WipeReport &report, const OutcomeRecord &outcome,
                                      bool withCertificate) const
{
    Written written;
    if (m_store) {
        if (const QString problem = storeReport(report, outcome); !problem.isEmpty())
            written.problems.append(Cli::tr("report %1 could not be stored in the database: %2")
                                        .arg(report.certificateId, problem));
    }
    if (m_reportFile.isWanted()) {
        if (m_reportFile.write(report.toJson()))
            written.report = m_reportFile.path();
        else
            written.problems.append(
                Cli::tr("the report file %1 could not be written").arg(displayText(m_reportFile.path())));
    }
    if (m_certificate.isWanted() && withCertificate) {
        written.certificate = m_certificate.write(report, outcome);
        if (written.certificate.isEmpty())
            written.problems.append(
                Cli::tr("the certificate %1 could not be written").arg(displayText(m_certificate.path())));
    }
    return written;
}

} // namespace cli
