#include "certificate/certificateview.h"

#include "certificate/certificatedialog.h"
#include "certificate/certificatestyles.h"
#include "certificate/readback.h"
#include "certificate/selectablevalue.h"
#include "certificate/valuelabel.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/formatsize.h"
#include "model/wipereport.h"

#include <QDateTime>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowLabelWidth = 130;

struct ViewRow
{
    QString label;
    QString value;
    QStringView valueStyle = certificatestyles::Value;
};

struct ViewSection
{
    QString title;
    QList<ViewRow> rows;
    QStringView bodyStyle = certificatestyles::SectionBody;
    int spacing = -1; // the style's own
};

QStringView statusStyle(WipeStatus status)
{
    switch (status) {
    case WipeStatus::Completed:
        return certificatestyles::GoodValue;
    case WipeStatus::Failed:
        return certificatestyles::BadValue;
    default:
        return certificatestyles::Value;
    }
}

ViewSection operationSummary(const WipeReport &report)
{
    return {CertificateDialog::tr("Operation Summary"),
            {
                {CertificateDialog::tr("Operation Type"), report.operationTypeName()},
                {CertificateDialog::tr("Erase Standard"), report.method.name},
                {CertificateDialog::tr("Overwrite Passes"), QString::number(report.method.passCount())},
                {CertificateDialog::tr("Start Time"), displayTime(report.startTime)},
                {CertificateDialog::tr("End Time"), displayTime(report.endTime)},
                {CertificateDialog::tr("Duration"), report.duration()},
                {CertificateDialog::tr("Status"), report.statusName(), statusStyle(report.status)},
            },
            certificatestyles::FirstSectionBody};
}

ViewSection storageDevice(const DiskInfo &disk)
{
    return {CertificateDialog::tr("Storage Device"),
            {
                {CertificateDialog::tr("Model"), displayText(disk.model)},
                {CertificateDialog::tr("Serial Number"), displayText(disk.serialNumber)},
                {CertificateDialog::tr("Capacity"), disk.formattedSize()},
                {CertificateDialog::tr("Type"), disk.diskTypeName()},
                {CertificateDialog::tr("Interface"), disk.busTypeName()},
            }};
}

ViewSection erasureDetails(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    ViewSection section{CertificateDialog::tr("Erasure Details"), {}};
    if (report.operationType == FileWipe) {
        section.rows = {{CertificateDialog::tr("Files Processed"), QString::number(report.fileCount)}};
    } else {
        section.rows = {{CertificateDialog::tr("Total Sectors"), QString::number(report.totalSectors)},
                        {CertificateDialog::tr("Sectors Erased"), QString::number(report.wipedSectors)}};
    }
    section.rows.append(
        {CertificateDialog::tr("Data Written"), formatSize(static_cast<qint64>(report.bytesWritten))});
    if (outcome && !outcome->writtenText(report.bytesWritten).isEmpty())
        section.rows.append({CertificateDialog::tr("On the Medium"), formatSize(outcome->written())});
    section.rows.append({CertificateDialog::tr("Bad Sectors"), QString::number(report.badSectors)});
    return section;
}

QString readBackText(ReadBack readBack)
{
    return readBack == ReadBack::NotRead ? CertificateDialog::tr("Not read back")
                                         : CertificateDialog::tr("Nothing that could be compared");
}

ViewSection verification(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    const bool passed = report.verificationPassed;
    ViewSection section{CertificateDialog::tr("Verification"), {}};
    section.spacing = 12;
    section.rows = {
        {CertificateDialog::tr("Result"),
         passed ? CertificateDialog::tr("Passed ✓") : CertificateDialog::tr("Failed ✗"),
         passed ? certificatestyles::GoodValue : certificatestyles::BadValue},
    };
    if (const ReadBack readBack = readBackOf(report, outcome); readBack != ReadBack::AsReported)
        section.rows.append({CertificateDialog::tr("Read Back"), readBackText(readBack)});
    section.rows.append({CertificateDialog::tr("Samples"), QString::number(report.verificationSampleSize)});
    if (!report.dataHash.isEmpty())
        section.rows.append({CertificateDialog::tr("Data Hash"), displayText(report.dataHash)});
    return section;
}

ViewSection operatorInfo(const WipeReport &report)
{
    return {CertificateDialog::tr("Operator Info"),
            {
                {CertificateDialog::tr("Operator"), displayText(report.operatorName)},
                {CertificateDialog::tr("Computer"), displayText(report.computerName)},
            }};
}

QList<ViewSection> sectionsOf(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    QList<ViewSection> sections{operationSummary(report)};
    if (report.operationType != FileWipe)
        sections.append(storageDevice(report.disk));
    sections.append(erasureDetails(report, outcome));
    sections.append(verification(report, outcome));
    sections.append(operatorInfo(report));
    return sections;
}

QLabel *makeLabel(const QString &text, QStringView style, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setIndent(0); // a border would indent the text
    label->setStyleSheet(style.toString());
    return label;
}

// The label of a row. Its style asks for 100 pixels at least, and would take back the fixed width each time
// it is applied.
class RowLabel : public ValueLabel
{
public:
    RowLabel(const QString &text, QWidget *parent)
        : ValueLabel(text, parent)
    {
        setStyleSheet(certificatestyles::RowLabel.toString());
        setFixedWidth(rowLabelWidth);
    }

protected:
    bool event(QEvent *event) override
    {
        const bool handled = ValueLabel::event(event);
        if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
            setFixedWidth(rowLabelWidth);
        return handled;
    }
};

void addHeader(QVBoxLayout *layout, QWidget *page)
{
    const auto addCentred = [&](const QString &text, QStringView style) {
        QLabel *label = makeLabel(text, style, page);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        layout->addWidget(label);
    };
    addCentred(u"🛡️"_s, certificatestyles::Emblem);
    addCentred(CertificateDialog::tr("Data Erasure Certificate"), certificatestyles::Title);
    addCentred(CertificateDialog::tr("Secure Data Wipe Compliance Record"), certificatestyles::Subtitle);

    auto *separator = new QFrame(page);
    separator->setFixedHeight(1);
    separator->setStyleSheet(certificatestyles::Separator.toString());
    layout->addWidget(separator);
}

void addIdentity(QVBoxLayout *layout, const WipeReport &report, QWidget *page)
{
    auto *row = new QHBoxLayout;
    row->addWidget(makeLabel(CertificateDialog::tr("Certificate ID:"), certificatestyles::Caption, page));
    QLabel *id = makeLabel(displayText(report.certificateId), certificatestyles::CertificateId, page);
    id->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(id);
    row->addStretch();
    row->addWidget(makeLabel(CertificateDialog::tr("Created:"), certificatestyles::Caption, page));
    QLabel *created = makeLabel(displayTime(QDateTime::currentDateTime()), certificatestyles::Value, page);
    created->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(created);
    layout->addLayout(row);
}

void addOutcome(QVBoxLayout *layout, const OutcomeRecord &outcome, QWidget *page)
{
    QLabel *label = makeLabel(outcome.fullSummary(), certificatestyles::BadValue, page);
    label->setObjectName(u"outcomeLabel"_s);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(label);
}

QWidget *makeRow(const ViewRow &row, QWidget *parent)
{
    auto *widget = new QWidget(parent);
    widget->setStyleSheet(certificatestyles::Row.toString());
    auto *label = new RowLabel(CertificateDialog::tr("%1:").arg(row.label), widget);
    auto *value = new SelectableValue(row.value, widget);
    value->setObjectName(u"valueLabel"_s);
    value->setStyleSheet(row.valueStyle.toString());
    value->setAccessibleDescription(row.label);

    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(value, 1);
    return widget;
}

void addSection(QVBoxLayout *layout, const ViewSection &section, QWidget *page)
{
    layout->addWidget(makeLabel(section.title, certificatestyles::SectionTitle, page));

    auto *body = new QFrame(page);
    body->setStyleSheet(section.bodyStyle.toString());
    auto *grid = new QGridLayout(body);
    grid->setContentsMargins(20, 15, 20, 15);
    if (section.spacing >= 0)
        grid->setSpacing(section.spacing);
    for (int row = 0; row < section.rows.size(); ++row)
        grid->addWidget(makeRow(section.rows[row], body), row, 0, 1, 2);
    layout->addWidget(body);
}

void addDisclaimer(QVBoxLayout *layout, QWidget *page)
{
    QLabel *label = makeLabel(
        CertificateDialog::tr(
            "Disclaimer: This certificate confirms that the above storage device/files have been securely "
            "erased in accordance with the specified data erasure standard. The erasure process complies "
            "with applicable data protection regulations. This certificate was automatically generated by "
            "Quorvex and serves as a compliance record for data destruction."),
        certificatestyles::Disclaimer, page);
    label->setWordWrap(true);
    layout->addWidget(label);
}

} // namespace

QWidget *makeCertificateView(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                             QWidget *parent)
{
    auto *page = new QWidget(parent);
    page->setStyleSheet(certificatestyles::Page.toString());
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(50, 40, 50, 40);
    addHeader(layout, page);
    addIdentity(layout, report, page);
    if (outcome && outcome->outcome() != JobOutcome::Complete)
        addOutcome(layout, *outcome, page);
    for (const ViewSection &section : sectionsOf(report, outcome))
        addSection(layout, section, page);
    addDisclaimer(layout, page);
    layout->addStretch();
    return page;
}
