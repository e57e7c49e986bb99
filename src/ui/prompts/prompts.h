#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QPrinter)
QT_FORWARD_DECLARE_CLASS(QWidget)

/// Everything that stops a user and waits for an answer: message boxes, file dialogs, the print dialog. The
/// program shows the platform's own; a test puts answers in their place. Interface thread.
class Prompts
{
public:
    struct Box
    {
        QMessageBox::Icon icon = QMessageBox::Information;
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons = QMessageBox::Ok;
        QMessageBox::StandardButton byDefault = QMessageBox::NoButton; ///< NoButton: the toolkit's choice
        QString styleSheet;                                            ///< of this box alone
        Qt::TextFormat format = Qt::PlainText; ///< paths and names in a text must not turn into markup
    };

    Prompts() = default;
    virtual ~Prompts() = default;
    Prompts(const Prompts &) = delete;
    Prompts &operator=(const Prompts &) = delete;

    /// The one in force.
    static Prompts &current();

    /// The button that was pressed; one that the escape key stands for when the box was closed.
    virtual QMessageBox::StandardButton show(QWidget *parent, const Box &box) = 0;

    /// Closes the box that show() waits for as the escape key would, the latest of several; nothing without
    /// one.
    virtual void withdraw() = 0;

    /// Of the four below, empty (false) means that the user cancelled. A filter reads as QFileDialog wants
    /// it.
    virtual QString fileToSave(QWidget *parent, const QString &caption, const QString &proposal,
                               const QString &filter) = 0;
    virtual QStringList filesToOpen(QWidget *parent, const QString &caption, const QString &filter) = 0;
    /// Folders only; starts in the folder start, or where the platform likes when that is empty.
    virtual QString folder(QWidget *parent, const QString &caption, const QString &start) = 0;
    /// Lets the user choose printer and options, and leaves them in the printer.
    virtual bool print(QWidget *parent, const QString &title, QPrinter &printer) = 0;

    void information(QWidget *parent, const QString &title, const QString &text);
    void warning(QWidget *parent, const QString &title, const QString &text);
    /// Yes and No; No is the default button where that is asked for.
    bool confirms(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
                  QMessageBox::StandardButton byDefault = QMessageBox::NoButton);
};

/// Puts other prompts in the place of the platform's for as long as it lives. They must outlive it.
class ScopedPrompts
{
public:
    explicit ScopedPrompts(Prompts &prompts);
    ~ScopedPrompts();
    ScopedPrompts(const ScopedPrompts &) = delete;
    ScopedPrompts &operator=(const ScopedPrompts &) = delete;

private:
    Prompts *m_previous;
};
