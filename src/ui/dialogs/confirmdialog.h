#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Asks for a confirmation before a job starts. The dialog can be accepted only after the user has typed the
/// word ERASE, in upper or lower case. Interface thread.
class ConfirmDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ConfirmDialog(QWidget *parent = nullptr);

    /// Shows the targets of the job as lines of plain text under the message. The dialog grows with them up
    /// to a limit, beyond which the lines are scrolled.
    void showTarget(const QStringList &lines);

    /// Adds a text under the message, as plain text. The dialog grows with it.
    void addNotice(const QString &text);

    /// Adds a check box, off at first, for erasing the whole disk and not only its volumes. `bytesLeft` is
    /// the part of the disk outside the volumes, below 0 when it is not known. The dialog grows with the box.
    void offerWholeDrive(qint64 bytesLeft);
    /// Returns whether the box was offered and is checked.
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
    QCheckBox *m_wholeDrive = nullptr; ///< null unless it is offered
    QLineEdit *m_input = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_confirmButton = nullptr;
};
