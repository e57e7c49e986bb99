#include "cli/records/recordkeeping.h"

#include "cli/command.h"
#include "cli/commandline.h"
#include "cli/globaloptions.h"
#include "cli/job/wipeoptions.h"
#include "cli/records/reporttext.h"
#include "cli/texts.h"
#include "jobs/jobend.h"
#include "jobs/reportstorage.h"
#include "model/displaytext.h"
#include "model/units.h"
#include "model/wipereport.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/reportdatabase.h"

#include <QFile>

#include <algorithm>
#include <iterator>

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

// Whether the file exists and is not a report; replacing it might lose data.
bool isForeign(const OutputFile &file)
{
    constexpr qint64 LargestReport = 256 * MiB; // some million files with a line each
    QFile standing(file.path());
    if (!file.isWanted() || !standing.exists() ||
        platform::Platform::current().files().isStream(file.path()) || standing.size() == 0)
        return false;
    return standing.size() > LargestReport || !standing.open(QIODevice::ReadOnly) ||
           !namesCertificate(standing.readAll());
}

// All files that the job writes; those that were not asked for lie in the data folder.
QList<OutputFile> outputsOf(const WipeOptions &options, const CommandContext &context)
{
    const DataFolder folder = dataFolder(context.options);
    QList<OutputFile> outputs{options.reportFile, options.certificate.file()};
    for (const QString &path : {folder.database(), folder.log()}) {
        if (const auto file = OutputFile::at(path, {}))
            outputs.append(*file);
    }
    return outputs;
}

std::optional<Refusal> checkOutputs(const WipeOptions &options, const CommandContext &context,
                                    const QStringList &commandWords)
{
    const QList<OutputFile> outputs = outputsOf(options, context);
    for (auto one = outputs.cbegin(); one != outputs.cend(); ++one) {
        const auto other = std::find_if(std::next(one), outputs.cend(),
                                        [&one](const OutputFile &file) { return one->isSameAs(file); });
        if (other != outputs.cend())
            return wrongCommandLine(Cli::tr("'%1' is named for two outputs").arg(displayText(one->path())),
                                    commandWords);
    }
    if (!options.replacesAnything && isForeign(options.reportFile))
        return wrongCommandLine(Cli::tr("'%1' exists and is no report; --force replaces it")
                                    .arg(displayText(options.reportFile.path())),
                                commandWords);
    return std::nullopt;
}

std::optional<Refusal> checkStore(const ReportStore &store, const QStringList &doomedPaths)
{
    const auto file = OutputFile::at(DataFolder{store.folder()}.database(), {});
    if (!file || !file->liesWithin(doomedPaths))
        return std::nullopt;
    return Refusal{Refused, Cli::tr("the report database in %1 lies in what is to be erased; --data-dir "
                                    "takes another folder, --no-report does without")
                                .arg(displayText(store.folder()))};
}

} // namespace

Outcome<RecordKeeping> RecordKeeping::prepare(const WipeOptions &options, const CommandContext &context,
                                              const QStringList &doomedPaths, const QStringList &commandWords)
{
    if (const auto refusal = check(options.reportFile, doomedPaths, commandWords))
        return *refusal;
    if (const auto refusal = check(options.certificate, doomedPaths, commandWords))
        return *refusal;
    if (const auto refusal = checkOutputs(options, context, commandWords))
        return *refusal;
    RecordKeeping records;
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

RecordKeeping::Written RecordKeeping::write(JobEnd &end, bool withCertificate) const
{
    Written written;
    const WipeReport &report = end.report;
    if (m_store) {
        end.hasRecord = true;
        end.notStoredBecause = storeReport(report, end.outcome);
        end.isStored = end.notStoredBecause.isEmpty();
        if (!end.isStored)
            written.problems.append(Cli::tr("report %1 could not be stored in the database: %2")
                                        .arg(report.certificateId, end.notStoredBecause));
    }
    if (m_reportFile.isWanted()) {
        if (m_reportFile.write(report.toJson()))
            written.report = m_reportFile.path();
        else
            written.problems.append(
                Cli::tr("the report file %1 could not be written").arg(displayText(m_reportFile.path())));
    }
    if (m_certificate.isWanted() && withCertificate) {
        written.certificate = m_certificate.write(report, end.outcome);
        if (written.certificate.isEmpty())
            written.problems.append(
                Cli::tr("the certificate %1 could not be written").arg(displayText(m_certificate.path())));
    }
    return written;
}

} // namespace cli
