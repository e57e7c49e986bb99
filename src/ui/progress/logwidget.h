#pragma once

#include <QString>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QTextEdit)

/// A log to look at, copy, save and clear. Messages are shown literally, whatever they contain.
class LogWidget : public QWidget
{
    Q_OBJECT

public:
    explicit LogWidget(QWidget *parent = nullptr);

public slots:
    void addInfo(const QString &message);
    void addWarning(const QString &message);
    void addError(const QString &message);
    void onClearClicked();
    /// The log as plain text to the clipboard.
    void onCopyClicked();
    /// The log as plain text to a file of the user's choice.
    void onSaveClicked();

private:
    void addLine(const QString &message, int level);

    QTextEdit *m_view = nullptr;
};
