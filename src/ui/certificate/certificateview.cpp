#include "ui/certificate/certificateview.h"

#include "certificate/certificateplan.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/wipereport.h"
#include "ui/certificate/certificatedialog.h"
#include "ui/certificate/certificatestyles.h"
#include "ui/certificate/dialoglabels.h"
#include "ui/certificate/selectablevalue.h"
#include "ui/certificate/valuelabel.h"

#include <QDateTime>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowLabelWidth = 130;
constexpr int verificationSpacing = 12;

QStringView valueStyle(const std::optional<Verdict> &verdict)
{
    if (verdict == Verdict::Good)
        return certificatestyles::GoodValue;
    return verdict == Verdict::Bad ? certificatestyles::BadValue : certificatestyles::Value;
}

QLabel *makeLabel(const QString &text, QStringView style, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setIndent(0); // a border would indent the text
    label->setStyleSheet(style.toString());
    return label;
}

// The label of a row. Its style sheet has a minimum width of 100 pixels, which would replace the fixed width
// each time it is applied.
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

QWidget *makeRow(const CertificateRow &row, QWidget *parent)
{
    auto *widget = new QWidget(parent);
    widget->setStyleSheet(certificatestyles::Row.toString());
    auto *label = new RowLabel(CertificateDialog::tr("%1:").arg(row.label), widget);
    auto *value = new SelectableValue(row.value, widget);
    value->setObjectName(u"valueLabel"_s);
    value->setStyleSheet(valueStyle(row.verdict).toString());
    value->setAccessibleDescription(row.label);

    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(value, 1);
    return widget;
}

void addSection(QVBoxLayout *layout, const CertificateSection &section, QWidget *page)
{
    layout->addWidget(makeLabel(section.title, certificatestyles::SectionTitle, page));

    auto *body = new QFrame(page);
    const QStringView style = section.group == CertificateGroup::Operation
                                  ? certificatestyles::FirstSectionBody
                                  : certificatestyles::SectionBody;
    body->setStyleSheet(style.toString());
    auto *grid = new QGridLayout(body);
    grid->setContentsMargins(20, 15, 20, 15);
    if (section.group == CertificateGroup::Verification)
        grid->setSpacing(verificationSpacing);
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
    for (const CertificateSection &section : certificatePlan(report, outcome, dialogLabels))
        addSection(layout, section, page);
    addDisclaimer(layout, page);
    layout->addStretch();
    return page;
}
