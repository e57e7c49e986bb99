#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Stands between the choice of a method and the start of a job: accepted only after the user has typed the
/// word ERASE, in whatever case.
class ConfirmDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ConfirmDialog(QWidget *parent = nullptr);

    /// What will be destroyed, line by line, plain text, under the message. The dialog grows by what it
    /// takes, up to a limit; behind that it is scrolled.
    void showTarget(const QStringList &lines);

    /// One more line under the message, plain text; the dialog grows by what it takes.
    void addNotice(const QString &text);

    /// A box to check, off at first, above the prompt: erase the whole disk and not its volumes alone, which
    /// leaves so many bytes of it; below 0 nobody knows how many. The dialog grows by what it takes.
    void offerWholeDrive(qint64 bytesLeft);
    /// Whether it was checked.
    bool wantsWholeDrive() const;

private slots:
    void onTextChanged(const QString &text);
    void onConfirmClicked();

private:
    static QString promptText();
    void addTexts(QBoxLayout *layout);
    void insertAbovePrompt(QWidget *widget, int itsHeight, Qt::Alignment alignment = {});
    void addInput(QBoxLayout *layout);
    void addButtons(QBoxLayout *layout);
    void tightenSpacing();

    const QString m_confirmText = QStringLiteral("ERASE");
    QCheckBox *m_wholeDrive = nullptr; ///< when it is offered
    QLineEdit *m_input = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_confirmButton = nullptr;
};
