#include "support/scriptedprompts.h"

#include <QPrinter>
#include <QWidget>

QMessageBox::StandardButton ScriptedPrompts::show(QWidget *, const Box &box)
{
    boxes.append(box);
    isWithdrawn = false;
    if (box.buttons == QMessageBox::Ok)
        return QMessageBox::Ok;
    if (whileShown)
        whileShown();
    if (!buttons.isEmpty() && !isWithdrawn)
        return buttons.takeFirst();
    return box.buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Cancel : QMessageBox::No;
}

QString ScriptedPrompts::fileToSave(QWidget *, const QString &caption, const QString &proposal,
                                    const QString &filter)
{
    asked.append(caption);
    proposals.append(proposal);
    filters.append(filter);
    return filesToSaveAnswers.isEmpty() ? QString() : filesToSaveAnswers.takeFirst();
}

QStringList ScriptedPrompts::filesToOpen(QWidget *, const QString &caption, const QString &filter)
{
    asked.append(caption);
    filters.append(filter);
    return filesToOpenAnswers.isEmpty() ? QStringList() : filesToOpenAnswers.takeFirst();
}

QString ScriptedPrompts::folder(QWidget *, const QString &caption, const QString &start)
{
    asked.append(caption);
    proposals.append(start);
    return folderAnswers.isEmpty() ? QString() : folderAnswers.takeFirst();
}

bool ScriptedPrompts::print(QWidget *, const QString &title, QPrinter &printer)
{
    asked.append(title);
    return printAnswer && printAnswer(printer);
}
