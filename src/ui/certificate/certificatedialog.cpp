#include "ui/certificate/certificatedialog.h"

#include "certificate/certificaterenderer.h"
#include "model/displaytext.h"
#include "model/spokentext.h"
#include "model/usersettings.h"
#include "ui/certificate/certificatestyles.h"
#include "ui/certificate/certificateview.h"
#include "ui/prompts/prompts.h"
#include "ui/style/buttons.h"

#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QPageSize>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QShowEvent>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int buttonHeight = 38;

QPushButton *makeButton(const QString &text, QStringView style)
{
    auto *button = buttons::make(text, {.name = {}, .height = buttonHeight, .styleSheet = style.toString()});
    // An Enter key meant for the previous dialog must not export or print.
    button->setAutoDefault(false);
    button->setAccessibleName(spokenText(text));
    return button;
}

} // namespace

CertificateDialog::CertificateDialog(const WipeReport &report, QWidget *parent,
                                     const std::optional<OutcomeRecord> &outcome)
    : QDialog(parent)
    , m_report(report)
    , m_outcome(outcome)
{
    setWindowTitle(tr("Erasure Certificate - %1").arg(displayText(m_report.certificateId)));
    setMinimumSize(700, 800);
    resize(750, 900);

    auto *scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setWidget(makeCertificateView(m_report, m_outcome, scroll));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 15);
    layout->addWidget(scroll);
    layout->addWidget(makeButtonBar());
}

// On a low screen the buttons would lie below its edge. The screen is known only when the dialog is shown.
void CertificateDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        const int caption = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
        const QSize room = screen()->availableSize() - QSize(0, caption);
        setMinimumSize(minimumSize().boundedTo(room));
        resize(size().boundedTo(room));
    }
    QDialog::showEvent(event);
}

QWidget *CertificateDialog::makeButtonBar()
{
    auto *bar = new QFrame(this);
    bar->setStyleSheet(certificatestyles::ButtonBar.toString());
    m_exportButton = makeButton(tr("📄 Export PDF"), certificatestyles::PrimaryButton);
    m_printButton = makeButton(tr("🖨️ Print"), certificatestyles::SecondaryButton);
    m_closeButton = makeButton(tr("Close"), certificatestyles::SecondaryButton);
    connect(m_exportButton, &QPushButton::clicked, this, &CertificateDialog::onExportPdf);
    connect(m_printButton, &QPushButton::clicked, this, &CertificateDialog::onPrint);
    connect(m_closeButton, &QPushButton::clicked, this, &CertificateDialog::close);

    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(20, 15, 20, 0);
    layout->addWidget(m_exportButton);
    layout->addWidget(m_printButton);
    layout->addStretch();
    layout->addWidget(m_closeButton);
    return bar;
}

QString CertificateDialog::proposedFile() const
{
    const QString folder = usersettings::readString(*usersettings::open(), usersettings::ExportPath);
    QString name = u"%1.pdf"_s.arg(m_report.certificateId);
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        return folder + u'/' + name;
    return name;
}

void CertificateDialog::onExportPdf()
{
    Prompts &prompts = Prompts::current();
    const QString path =
        prompts.fileToSave(this, tr("Export Certificate"), proposedFile(), tr("PDF Files (*.pdf)"));
    if (path.isEmpty())
        return;
    if (CertificateRenderer().exportToPdf(m_report, path, m_outcome)) {
        prompts.information(this, tr("Export Successful"), tr("Certificate exported to:\n%1").arg(path));
    } else {
        prompts.warning(this, tr("Export Failed"),
                        tr("Unable to export certificate. Please check file path permissions."));
    }
}

void CertificateDialog::onPrint()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    if (Prompts::current().print(this, tr("Print Certificate"), printer))
        CertificateRenderer().print(m_report, &printer, m_outcome);
}
