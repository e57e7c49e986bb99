#include "ui/dialogs/completedialog.h"

#include "model/displaytext.h"
#include "ui/style/buttons.h"
#include "ui/style/palette.h"
#include "ui/style/tooltip.h"

#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize IconSize(80, 80);

const QString viewButtonStyle =
    u"QPushButton {  background-color: #3b82f6;  color: white;  border: none;  border-radius: 8px;  "
    "font-size: 14px;  font-weight: bold;}QPushButton:hover {  background-color: #2563eb;}"_s;
const QString closeButtonStyle =
    u"QPushButton {  background-color: white;  color: #374151;  border: 1px solid #d1d5db;  "
    "border-radius: 8px;  font-size: 14px;}QPushButton:hover {  background-color: #f9fafb;}"_s;

buttons::Look look(const QString &name, const QString &styleSheet)
{
    return {.name = name, .width = 150, .height = 42, .styleSheet = styleSheet};
}

} // namespace

CompleteDialog::CompleteDialog(bool success, const QString &certificateId, QWidget *parent,
                               const OutcomeRecord &outcome)
    : QDialog(parent)
    , m_success(success)
    , m_certificateId(certificateId)
    , m_outcome(outcome)
{
    setWindowTitle(m_success ? tr("Erasing Complete") : tr("Erase Failed"));
    setFixedSize(450, 420);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 35, 40, 30);
    layout->setSpacing(12);
    addIcon(layout);
    addTexts(layout);
    if (m_success && m_outcome.outcome() == JobOutcome::Partial)
        addWarning(u"outcomeLabel"_s, m_outcome.summary(), m_outcome.fullSummary());
    if (offersCertificate())
        addCertificateId(layout);
    layout->addStretch();
    addButtons(layout);
}

void CompleteDialog::addIcon(QBoxLayout *layout)
{
    auto *const icon = new QLabel;
    icon->setObjectName(u"dialogIcon"_s);
    icon->setFixedSize(IconSize);
    icon->setAlignment(Qt::AlignCenter);
    if (m_success) {
        // QIcon draws at the resolution of the screen, keeps the aspect ratio and smooths.
        icon->setPixmap(QIcon(u":/icons/icon_success.svg"_s).pixmap(IconSize, devicePixelRatio()));
    } else {
        icon->setText(u"❌"_s);
        icon->setAccessibleName(tr("Error"));
        icon->setStyleSheet(u"font-size: 64px;"_s);
    }
    layout->addWidget(icon, 0, Qt::AlignHCenter);
}

QString CompleteDialog::messageText() const
{
    if (!m_success)
        return tr("An error occurred during erasure.\nPlease check the log for details.");
    if (m_certificateId.isEmpty())
        return tr("All selected data has been securely erased.");
    return tr("All selected data has been securely erased.\nAn erasure certificate has been generated.");
}

void CompleteDialog::addTexts(QBoxLayout *layout)
{
    auto *const title = new QLabel(m_success ? tr("Data Erased Successfully!") : tr("Erase Failed"));
    title->setObjectName(u"dialogTitle"_s);
    title->setWordWrap(true);
    title->setAlignment(Qt::AlignCenter);
    title->setStyleSheet(u"font-size: 22px; font-weight: bold; color: %1;"_s.arg(
        (m_success ? palette::Success : palette::Error).name()));
    layout->addWidget(title);

    auto *const message = new QLabel(messageText());
    message->setObjectName(u"dialogMessage"_s);
    message->setAlignment(Qt::AlignCenter);
    message->setWordWrap(true);
    message->setStyleSheet(u"color: #64748b; font-size: 14px; line-height: 1.5;"_s);
    layout->addWidget(message);
}

// The dialog keeps its size, so a long text is cut. The tip has the whole text.
void CompleteDialog::addWarning(const QString &name, const QString &text, const QString &tip)
{
    auto *const label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setWordWrap(true);
    label->setToolTip(plainTip(tip));
    label->setAccessibleDescription(tip);
    auto *const column = qobject_cast<QBoxLayout *>(layout());
    column->insertWidget(column->indexOf(findChild<QLabel *>(u"dialogMessage"_s)) + 1, label);
}

void CompleteDialog::addLeftUnmounted(const QStringList &volumes)
{
    if (volumes.isEmpty())
        return;
    const QString text = tr("Left unmounted: %1").arg(displayText(volumes.join(u", "_s)));
    addWarning(u"leftUnmountedLabel"_s, text, text);
}

void CompleteDialog::addNotStored(const QString &cause)
{
    if (cause.isEmpty())
        return;
    const QString text = tr("The report is not stored. %1").arg(cause);
    addWarning(u"notStoredLabel"_s, text, text);
}

void CompleteDialog::addCertificateId(QBoxLayout *layout)
{
    auto *const box = new QWidget;
    box->setObjectName(u"certIdWidget"_s);
    box->setFixedHeight(50);
    box->setStyleSheet(u"background-color: #f1f5f9; border-radius: 8px;"_s);

    auto *const label = new QLabel(tr("Certificate: "));
    label->setStyleSheet(u"color: #64748b; font-size: 13px;"_s);
    auto *const id = new QLabel(m_certificateId);
    id->setObjectName(u"certIdLabel"_s);
    id->setTextFormat(Qt::PlainText);
    id->setStyleSheet(
        u"color: #1e293b; font-weight: bold; font-family: Consolas, monospace; font-size: 13px;"_s);

    auto *const row = new QHBoxLayout(box);
    row->addStretch();
    row->addWidget(label);
    row->addWidget(id);
    row->addStretch();
    layout->addWidget(box);
}

void CompleteDialog::addButtons(QBoxLayout *layout)
{
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    if (offersCertificate()) {
        QPushButton *const view =
            buttons::make(tr("View Certificate"), look(u"viewCertificateBtn"_s, viewButtonStyle));
        connect(view, &QPushButton::clicked, this, &CompleteDialog::onViewCertificateClicked);
        row->addWidget(view);
    }
    QPushButton *const close =
        buttons::make(m_success ? tr("Done") : tr("Close"), look(u"closeBtn"_s, closeButtonStyle));
    close->setDefault(true);
    close->setFocus();
    connect(close, &QPushButton::clicked, this, &CompleteDialog::accept);
    row->addWidget(close);
    row->addStretch();
    layout->addLayout(row);
}

void CompleteDialog::onViewCertificateClicked()
{
    emit viewCertificateClicked();
    accept();
}
