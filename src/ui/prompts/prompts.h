#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QPrinter)
QT_FORWARD_DECLARE_CLASS(QWidget)

/// All dialogs that wait for an answer of the user: message boxes, file dialogs, the print dialog. The
/// program shows those of the platform; tests replace them by prepared answers. Interface thread.
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
        QString styleSheet;                                            ///< for this box only
        Qt::TextFormat format = Qt::PlainText; ///< plain, so that paths and names are not read as markup
    };

    Prompts() = default;
    virtual ~Prompts() = default;
    Prompts(const Prompts &) = delete;
    Prompts &operator=(const Prompts &) = delete;

    /// The prompts in use.
    static Prompts &current();

    /// The button that was pressed, or the escape button when the box was closed.
    virtual QMessageBox::StandardButton show(QWidget *parent, const Box &box) = 0;

    /// Closes the innermost box that show() waits for, like the Escape key. Does nothing without one.
    virtual void withdraw() = 0;

    /// The four functions below return empty (false) when the user cancelled. Filters have the form of
    /// QFileDialog.
    virtual QString fileToSave(QWidget *parent, const QString &caption, const QString &proposal,
                               const QString &filter) = 0;
    virtual QStringList filesToOpen(QWidget *parent, const QString &caption, const QString &filter) = 0;
    /// Chooses a folder, starting in `start`, or in the platform's default when it is empty.
    virtual QString folder(QWidget *parent, const QString &caption, const QString &start) = 0;
    /// Lets the user choose printer and options, and stores them in the printer.
    virtual bool print(QWidget *parent, const QString &title, QPrinter &printer) = 0;

    void information(QWidget *parent, const QString &title, const QString &text);
    void warning(QWidget *parent, const QString &title, const QString &text);
    /// Asks Yes or No. byDefault: the default button, chosen by the toolkit unless given.
    bool confirms(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
                  QMessageBox::StandardButton byDefault = QMessageBox::NoButton);
};

/// Replaces the platform's prompts for the lifetime of the object; the prompts must outlive it.
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
