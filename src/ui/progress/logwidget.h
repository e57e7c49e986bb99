#pragma once

#include <QString>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QTextEdit)

/// A log that the user can copy, save and clear. Markup in messages is shown literally. Interface thread.
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
    /// Copies the log as plain text to the clipboard.
    void onCopyClicked();
    /// Asks for a file and writes the log into it as plain text.
    void onSaveClicked();

private:
    void addLine(const QString &message, int level);

    QTextEdit *m_view = nullptr;
};
