#pragma once

#include "prompts/prompts.h"

#include <QList>

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

    QMessageBox::StandardButton show(QWidget *, const Box &box) override
    {
        boxes.append(box);
        if (box.buttons == QMessageBox::Ok)
            return QMessageBox::Ok;
        if (!buttons.isEmpty())
            return buttons.takeFirst();
        return box.buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Cancel : QMessageBox::No;
    }

    QString fileToSave(QWidget *, const QString &caption, const QString &proposal,
                       const QString &filter) override
    {
        asked.append(caption);
        proposals.append(proposal);
        filters.append(filter);
        return filesToSaveAnswers.isEmpty() ? QString() : filesToSaveAnswers.takeFirst();
    }

    QStringList filesToOpen(QWidget *, const QString &caption, const QString &filter) override
    {
        asked.append(caption);
        filters.append(filter);
        return filesToOpenAnswers.isEmpty() ? QStringList() : filesToOpenAnswers.takeFirst();
    }

    QString folder(QWidget *, const QString &caption, const QString &start) override
    {
        asked.append(caption);
        proposals.append(start);
        return folderAnswers.isEmpty() ? QString() : folderAnswers.takeFirst();
    }

    bool print(QWidget *, const QString &title, QPrinter &printer) override
    {
        asked.append(title);
        return printAnswer && printAnswer(printer);
    }

private:
    ScopedPrompts m_scope{*this};
};
