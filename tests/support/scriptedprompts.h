#pragma once

#include "ui/prompts/prompts.h"

#include <QList>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <functional>

// Answers in place of dialogs and records the questions. A question without an answer left is answered as if
// the user had closed the dialog, so that a forgotten answer fails the test instead of hanging it.
class ScriptedPrompts : public Prompts
{
public:
    QList<QMessageBox::StandardButton> buttons; // answers to the boxes, first to last
    QStringList filesToSaveAnswers;
    QList<QStringList> filesToOpenAnswers;
    QStringList folderAnswers;
    std::function<bool(QPrinter &)> printAnswer;

    QList<Box> boxes;      // in the order shown
    QStringList asked;     // captions of the file, folder and print dialogs
    QStringList proposals; // of fileToSave, and start folders of folder
    QStringList filters;

    // Called while a box is shown, before it is answered.
    std::function<void()> whileShown;
    bool isWithdrawn = false; // the latest box was withdrawn and answered as if closed

    QMessageBox::StandardButton show(QWidget *, const Box &box) override;
    void withdraw() override { isWithdrawn = true; }
    QString fileToSave(QWidget *, const QString &caption, const QString &proposal,
                       const QString &filter) override;
    QStringList filesToOpen(QWidget *, const QString &caption, const QString &filter) override;
    QString folder(QWidget *, const QString &caption, const QString &start) override;
    bool print(QWidget *, const QString &title, QPrinter &printer) override;

private:
    ScopedPrompts m_scope{*this};
};
