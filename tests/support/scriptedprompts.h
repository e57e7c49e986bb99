#pragma once

#include "ui/prompts/prompts.h"

#include <QList>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <functional>

// Answers in the place of dialogs. What was asked is kept; a question without an answer left is answered as
// if the user had closed the dialog, so a test that forgets one fails and does not hang.
class ScriptedPrompts : public Prompts
{
public:
    QList<QMessageBox::StandardButton> buttons; // answers to the boxes, first to last
    QStringList filesToSaveAnswers;
    QList<QStringList> filesToOpenAnswers;
    QStringList folderAnswers;
    std::function<bool(QPrinter &)> printAnswer;

    QList<Box> boxes;      // as they were shown
    QStringList asked;     // captions of the file, folder and print dialogs
    QStringList proposals; // of fileToSave, and starts of folder
    QStringList filters;

    // Called while a box is shown, before it is answered.
    std::function<void()> whileShown;
    bool isWithdrawn = false; // the latest box, which then was answered as if closed

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
