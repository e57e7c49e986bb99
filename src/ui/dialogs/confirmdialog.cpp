#include "ui/dialogs/confirmdialog.h"

#include "model/formatsize.h"
#include "ui/style/buttons.h"
#include "ui/style/tooltip.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTextOption>
#include <QVBoxLayout>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize DialogSize(400, 320);
constexpr int Margin = 30;
constexpr int Spacing = 20;
constexpr int TargetFrame = 2 * (4 + 1);
constexpr int MostTargetHeight = 160;

QLabel *centredLabel(const QString &text, const QString &style = {})
{
    auto *const label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(style);
    return label;
}

buttons::Look look(const QString &name)
{
    return {.name = name, .width = 120, .height = 40};
}

// The height at which the whole text is seen. The field itself lays out its document for the width that it
// has before it is shown.
int heightOf(const QTextEdit &field, int width)
{
    QTextDocument document;
    document.setDefaultFont(field.font());
    document.setDefaultTextOption(field.document()->defaultTextOption());
    document.setPlainText(field.toPlainText());
    document.setTextWidth(width - TargetFrame);
    return qCeil(document.size().height()) + TargetFrame;
}

// A check box does not wrap its text. Lines of the text that are longer than the dialog is wide are broken
// between words.
QString brokenIntoLines(const QCheckBox &box, int width)
{
    const int besideText =
        box.sizeHint().width() - box.fontMetrics().size(Qt::TextShowMnemonic, box.text()).width();
    const int room = width - besideText;
    QStringList lines;
    for (const QString &given : box.text().split(u'\n')) {
        QString line;
        for (const QString &word : given.split(u' ')) {
            const QString longer = line.isEmpty() ? word : line + u' ' + word;
            if (!line.isEmpty() && box.fontMetrics().horizontalAdvance(longer) > room) {
                lines.append(line);
                line = word;
            } else {
                line = longer;
            }
        }
        lines.append(line);
    }
    return lines.join(u'\n');
}

} // namespace

ConfirmDialog::ConfirmDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Confirm Erase"));
    setModal(true);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    addTexts(layout);
    addInput(layout);
    addButtons(layout);
    setFixedSize(DialogSize);
    tightenSpacing();
    m_input->setFocus();
}

QString ConfirmDialog::promptText()
{
    return tr("Type <b>ERASE</b> to confirm:");
}

void ConfirmDialog::addTexts(QBoxLayout *layout)
{
    QLabel *const icon = centredLabel(u"⚠️"_s, u"font-size: 48px;"_s);
    icon->setObjectName(u"dialogIcon"_s);
    icon->setAccessibleName(tr("Warning"));
    layout->addWidget(icon);

    QLabel *const title = centredLabel(tr("Warning: Irreversible Operation"),
                                       u"font-size: 18px; font-weight: bold; color: #dc2626;"_s);
    title->setObjectName(u"dialogTitle"_s);
    title->setWordWrap(true);
    layout->addWidget(title);

    QLabel *const message = centredLabel(
        tr("The selected data will be permanently erased and cannot be recovered."), u"color: #4b5563;"_s);
    message->setObjectName(u"dialogMessage"_s);
    message->setWordWrap(true);
    layout->addWidget(message);

    QLabel *const prompt = centredLabel(promptText());
    prompt->setObjectName(u"dialogPrompt"_s);
    prompt->setTextFormat(Qt::RichText);
    layout->addWidget(prompt);
}

// Lines may break anywhere, as a path may be one long word.
void ConfirmDialog::showTarget(const QStringList &lines)
{
    auto *const target = new QTextEdit(this);
    target->setObjectName(u"dialogTarget"_s);
    target->setAccessibleName(tr("This will be destroyed"));
    target->setReadOnly(true);
    target->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    target->setTabChangesFocus(true);
    target->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    target->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    target->setPlainText(lines.join(u'\n'));
    target->ensurePolished();
    target->setFixedHeight(qMin(heightOf(*target, width() - 2 * Margin), MostTargetHeight));
    insertAbovePrompt(target, target->height());
}

void ConfirmDialog::addNotice(const QString &text)
{
    QLabel *const notice = centredLabel(text);
    notice->setObjectName(u"dialogNotice"_s);
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    insertAbovePrompt(notice, notice->heightForWidth(width() - 2 * Margin));
}

void ConfirmDialog::insertAbovePrompt(QWidget *widget, int itsHeight, Qt::Alignment alignment)
{
    auto *const column = qobject_cast<QBoxLayout *>(layout());
    column->insertWidget(column->indexOf(findChild<QLabel *>(u"dialogPrompt"_s)), widget, 0, alignment);
    setFixedHeight(height() + itsHeight + column->spacing());
}

void ConfirmDialog::offerWholeDrive(qint64 bytesLeft)
{
    m_wholeDrive = new QCheckBox(
        bytesLeft < 0
            ? tr("Erase the whole disk\n(otherwise all outside its volumes stays)")
            : tr("Erase the whole disk\n(otherwise %1 outside its volumes stay)").arg(formatSize(bytesLeft)),
        this);
    m_wholeDrive->setObjectName(u"wholeDriveBox"_s);
    m_wholeDrive->ensurePolished();
    m_wholeDrive->setText(brokenIntoLines(*m_wholeDrive, width() - 2 * Margin));
    m_wholeDrive->setToolTip(plainTip(tr("Every sector is overwritten, the partition table too. All volumes "
                                         "of the disk are unmounted before.")));
    insertAbovePrompt(m_wholeDrive, m_wholeDrive->sizeHint().height(), Qt::AlignHCenter);
}

bool ConfirmDialog::wantsWholeDrive() const
{
    return m_wholeDrive != nullptr && m_wholeDrive->isChecked();
}

void ConfirmDialog::addInput(QBoxLayout *layout)
{
    m_input = new QLineEdit;
    m_input->setObjectName(u"confirmInput"_s);
    m_input->setPlaceholderText(tr("ERASE"));
    m_input->setAccessibleName(QTextDocumentFragment::fromHtml(promptText()).toPlainText());
    m_input->setAlignment(Qt::AlignCenter);
    m_input->setFixedSize(200, 40);
    m_input->setStyleSheet(u"QLineEdit { border: 2px solid #e5e7eb; border-radius: 8px; padding: 8px; "
                           "font-size: 14px; }QLineEdit:focus { border-color: #3b82f6; }"_s);
    connect(m_input, &QLineEdit::textChanged, this, &ConfirmDialog::onTextChanged);
    layout->addWidget(m_input, 0, Qt::AlignHCenter);
}

void ConfirmDialog::addButtons(QBoxLayout *layout)
{
    m_cancelButton = buttons::make(tr("Cancel"), look(u"secondaryBtn"_s));
    connect(m_cancelButton, &QPushButton::clicked, this, &ConfirmDialog::reject);

    m_confirmButton = buttons::make(tr("Confirm"), look(u"dangerBtn"_s));
    m_confirmButton->setEnabled(false);
    // Without a default button the dialog takes the first one, and Enter after the word would cancel.
    m_confirmButton->setDefault(true);
    connect(m_confirmButton, &QPushButton::clicked, this, &ConfirmDialog::onConfirmClicked);

    auto *const row = new QHBoxLayout;
    row->setSpacing(12); // by default it follows the gaps above
    row->addStretch();
    row->addWidget(m_cancelButton);
    row->addWidget(m_confirmButton);
    row->addStretch();
    layout->addLayout(row);
}

// Large fonts and long translations need more than the fixed height of the dialog. The gaps shrink then, not
// the texts.
void ConfirmDialog::tightenSpacing()
{
    const int excess = layout()->totalHeightForWidth(width()) - height();
    const int gaps = layout()->count() - 1;
    if (excess > 0)
        layout()->setSpacing(qMax(0, Spacing - (excess + gaps - 1) / gaps));
}

void ConfirmDialog::onTextChanged(const QString &text)
{
    m_confirmButton->setEnabled(text.toUpper() == m_confirmText);
}

void ConfirmDialog::onConfirmClicked()
{
    accept();
}
