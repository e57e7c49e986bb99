#include "cli/records/reporttext.h"

#include "cli/io/amounttext.h"
#include "cli/io/table.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/formatsize.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QString size(quint64 bytes)
{
    return formatSize(static_cast<qint64>(bytes));
}

void addTarget(Table &table, const WipeReport &report)
{
    if (report.operationType == FileWipe) {
        table.addRow({Cli::tr("Files"), QString::number(report.fileCount)});
        table.addRow({Cli::tr("Size"), size(report.totalBytes)});
        return;
    }
    table.addRow({Cli::tr("Model"), displayText(report.disk.model)});
    table.addRow({Cli::tr("Serial number"), displayText(report.disk.serialNumber)});
    table.addRow({Cli::tr("Size"), report.disk.formattedSize()});
    table.addRow({Cli::tr("Sectors"), QString::number(report.totalSectors)});
    table.addRow({Cli::tr("Sectors erased"), QString::number(report.wipedSectors)});
    table.addRow({Cli::tr("Bad sectors"), QString::number(report.badSectors)});
}

void addOutcome(Table &table, const std::optional<OutcomeRecord> &outcome)
{
    table.addRow({Cli::tr("Outcome"), outcomeText(outcome)});
    if (!outcome)
        return;
    for (const QString &volume : outcome->volumes())
        table.addRow({Cli::tr("Volume"), displayText(volume)});
    for (const QString &line : outcome->shortfallLines())
        table.addRow({Cli::tr("Shortfall"), line});
    for (const QString &line : outcome->noteLines())
        table.addRow({Cli::tr("Note"), line});
}

void addVerification(Table &table, const WipeReport &report)
{
    const bool isReadBack = report.verificationSampleSize > 0 || !report.verificationPassed;
    const QString read = report.verificationPassed ? Cli::tr("passed") : Cli::tr("not passed");
    table.addRow({Cli::tr("Verification"), isReadBack ? read : Cli::tr("not read back")});
    if (!report.verificationMethod.isEmpty())
        table.addRow({Cli::tr("Read back"), displayText(report.verificationMethod)});
    table.addRow({Cli::tr("Samples"), QString::number(report.verificationSampleSize)});
    if (!report.dataHash.isEmpty())
        table.addRow({Cli::tr("Hash"), displayText(report.dataHash)});
}

} // namespace

bool isReportText(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).isObject();
}

bool namesCertificate(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object().value(u"certificateId"_s).isString();
}

QString targetText(const WipeReport &report)
{
    if (report.operationType == FileWipe)
        return fileCountText(report.fileCount);
    return displayText(report.disk.displayName());
}

QString outcomeText(const std::optional<OutcomeRecord> &outcome)
{
    if (!outcome)
        return Cli::tr("unknown");
    switch (outcome->outcome()) {
    case JobOutcome::Complete:
        return Cli::tr("complete");
    case JobOutcome::Partial:
        return Cli::tr("partial");
    case JobOutcome::Cancelled:
        return Cli::tr("cancelled");
    case JobOutcome::Failed:
        break;
    }
    return Cli::tr("failed");
}

QString reportText(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    Table table;
    table.addRow({Cli::tr("Certificate"), displayText(report.certificateId)});
    table.addRow({Cli::tr("Operation"), report.operationTypeName()});
    table.addRow({Cli::tr("Method"),
                  displayText(report.method.name) + u", "_s + passCountText(report.method.passCount())});
    table.addRow({Cli::tr("Status"), report.statusName()});
    addOutcome(table, outcome);
    table.addRow({Cli::tr("Started"), displayTime(report.startTime)});
    table.addRow({Cli::tr("Ended"), displayTime(report.endTime)});
    table.addRow({Cli::tr("Duration"), report.endTime.isValid() ? report.duration() : QString()});
    addTarget(table, report);
    table.addRow({Cli::tr("Written"), size(report.bytesWritten)});
    if (outcome && !outcome->writtenText(report.bytesWritten).isEmpty())
        table.addRow({Cli::tr("On the medium"), formatSize(outcome->written())});
    addVerification(table, report);
    table.addRow({Cli::tr("Operator"), displayText(report.operatorName)});
    table.addRow({Cli::tr("Computer"), displayText(report.computerName)});
    if (!report.errorMessage.isEmpty())
        table.addRow({Cli::tr("Error"), displayText(report.errorMessage)});
    return table.text();
}

} // namespace cli
