#include "certificate/certificateplan.h"

#include "certificate/readback.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/formatsize.h"
#include "model/wipereport.h"

namespace {

using Item = CertificateItem;

// Builds the rows of one report in the words of one form.
class Plan
{
public:
    Plan(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
         const CertificateLabels &labels)
        : m_report(report)
        , m_outcome(outcome)
        , m_labels(labels)
    {}

    QList<CertificateSection> sections() const;

private:
    CertificateSection section(CertificateGroup group, const QList<CertificateRow> &rows) const;
    CertificateRow row(Item item, const QString &value, std::optional<Verdict> verdict = {}) const;
    QString counted(qint64 number, const char *unit) const;
    void correct(QList<CertificateRow> &rows, Item item, const QString &beside, const QString &value) const;

    QList<CertificateRow> operation() const;
    QList<CertificateRow> device() const;
    QList<CertificateRow> details() const;
    QList<CertificateRow> verification() const;
    QList<CertificateRow> operatorRows() const;
    CertificateRow files() const;
    Verdict statusVerdict() const;
    QString readBackText() const;

    const WipeReport &m_report;
    const std::optional<OutcomeRecord> &m_outcome;
    const CertificateLabels &m_labels;
};

QList<CertificateSection> Plan::sections() const
{
    QList<CertificateSection> all{section(CertificateGroup::Operation, operation())};
    if (m_report.operationType != FileWipe)
        all.append(section(CertificateGroup::Device, device()));
    all.append(section(CertificateGroup::Details, details()));
    all.append(section(CertificateGroup::Verification, verification()));
    all.append(section(CertificateGroup::OperatorInfo, operatorRows()));
    return all;
}

CertificateSection Plan::section(CertificateGroup group, const QList<CertificateRow> &rows) const
{
    return {group, m_labels.title(group), rows};
}

CertificateRow Plan::row(Item item, const QString &value, std::optional<Verdict> verdict) const
{
    return {item, m_labels.label(item), value, verdict};
}

QString Plan::counted(qint64 number, const char *unit) const
{
    return QString::number(number) + m_labels.translated(unit);
}

// Corrects the last row, beside its value or in a new row below.
void Plan::correct(QList<CertificateRow> &rows, Item item, const QString &beside, const QString &value) const
{
    if (beside.isEmpty())
        return;
    if (m_labels.corrections == CertificateLabels::Corrections::BesideTheValue)
        rows.last().correction = beside;
    else
        rows.append(row(item, value));
}

Verdict Plan::statusVerdict() const
{
    switch (m_report.status) {
    case WipeStatus::Completed:
        return Verdict::Good;
    case WipeStatus::Failed:
        return Verdict::Bad;
    default:
        return Verdict::Open;
    }
}

QList<CertificateRow> Plan::operation() const
{
    return {
        row(Item::OperationType, m_report.operationTypeName()),
        row(Item::EraseStandard, m_report.method.name),
        row(Item::Passes, counted(m_report.method.passCount(), m_labels.passes)),
        row(Item::StartTime, displayTime(m_report.startTime)),
        row(Item::EndTime, displayTime(m_report.endTime)),
        row(Item::Duration, m_report.duration()),
        row(Item::Status, m_report.statusName(), statusVerdict()),
    };
}

QList<CertificateRow> Plan::device() const
{
    const DiskInfo &disk = m_report.disk;
    return {
        row(Item::Model, displayText(disk.model)), row(Item::SerialNumber, displayText(disk.serialNumber)),
        row(Item::Capacity, disk.formattedSize()), row(Item::DriveType, disk.diskTypeName()),
        row(Item::Interface, disk.busTypeName()),
    };
}

CertificateRow Plan::files() const
{
    if (m_labels.fileCount == CertificateLabels::FileCount::Processed)
        return row(Item::Files, counted(m_report.fileCount, m_labels.files));
    CertificateRow files = row(Item::Files, counted(m_report.wipeItems.size(), m_labels.files));
    if (m_outcome && m_report.wipeItems.size() != m_report.fileCount)
        files.correction = m_labels.translated(m_labels.processed).arg(m_report.fileCount);
    return files;
}

QList<CertificateRow> Plan::details() const
{
    QList<CertificateRow> rows;
    if (m_report.operationType == FileWipe) {
        rows.append(files());
    } else {
        rows.append(row(Item::TotalSectors, QString::number(m_report.totalSectors)));
        rows.append(row(Item::SectorsErased, QString::number(m_report.wipedSectors)));
    }
    rows.append(row(Item::DataWritten, formatSize(static_cast<qint64>(m_report.bytesWritten))));
    if (m_outcome)
        correct(rows, Item::OnTheMedium, m_outcome->writtenText(m_report.bytesWritten),
                formatSize(m_outcome->written()));
    rows.append(row(Item::BadSectors, QString::number(m_report.badSectors)));
    return rows;
}

QString Plan::readBackText() const
{
    switch (readBackOf(m_report, m_outcome)) {
    case ReadBack::AsReported:
        break;
    case ReadBack::NotRead:
        return m_labels.translated(m_labels.notRead);
    case ReadBack::NotComparable:
        return m_labels.translated(m_labels.notComparable);
    }
    return {};
}

QList<CertificateRow> Plan::verification() const
{
    const bool passed = m_report.verificationPassed;
    QList<CertificateRow> rows{row(Item::Result,
                                   m_labels.translated(passed ? m_labels.passed : m_labels.failed),
                                   passed ? Verdict::Good : Verdict::Bad)};
    const QString readBack = readBackText();
    correct(rows, Item::ReadBack, readBack, readBack);
    rows.append(row(Item::Samples, counted(m_report.verificationSampleSize, m_labels.samples)));
    if (!m_report.dataHash.isEmpty())
        rows.append(row(Item::DataHash, displayText(m_report.dataHash)));
    return rows;
}

QList<CertificateRow> Plan::operatorRows() const
{
    return {
        row(Item::Operator, displayText(m_report.operatorName)),
        row(Item::Computer, displayText(m_report.computerName)),
    };
}

} // namespace

QList<CertificateSection> certificatePlan(const WipeReport &report,
                                          const std::optional<OutcomeRecord> &outcome,
                                          const CertificateLabels &labels)
{
    return Plan(report, outcome, labels).sections();
}
