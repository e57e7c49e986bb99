// What is asked before a job starts.
#include "ui/mainwindow/mainwindow.h"

#include "engine/filesurvey.h"
#include "engine/filetargets.h"
#include "engine/foreseeable.h"
#include "jobs/jobcontroller.h"
#include "model/displaytext.h"
#include "model/targettext.h"
#include "model/wipetask.h"
#include "prompts/prompts.h"
#include "services/loopfiles.h"
#include "ui/dialogs/confirmdialog.h"

#include <QGuiApplication>
#include <QScopeGuard>

// A job on one partition goes over all volumes of its disk; empty when that says nothing new.
QString MainWindow::erasedVolumesText() const
{
    const QList<PartitionInfo> partitions = m_job->task()->disk().partitions;
    if (m_job->task()->operationType() != PartitionWipe || partitions.size() < 2)
        return {};
    QStringList names;
    for (const PartitionInfo &partition : partitions)
        names.append(displayText(partition.driveLetter));
    return tr("All of these will be erased, not only %1\n%2")
        .arg(displayText(m_job->task()->partition().driveLetter), names.join(QStringLiteral(", ")));
}

// A walk through all the folders takes its time. What asks of every file where its content lies takes more,
// and is left to the job.
FileSurvey MainWindow::lookAtFiles()
{
    if (m_job->task()->operationType() != FileWipe)
        return {};
    rememberTargets(*m_job->task());
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    return surveyFiles(
        *m_job->task(), [] { return false; }, 0);
}

QStringList MainWindow::targetLines(const FileSurvey &survey) const
{
    const WipeTask &task = *m_job->task();
    switch (task.operationType()) {
    case DiskWipe:
    case PartitionWipe:
        return TargetText::driveWithVolumes(task.disk());
    case FreeSpaceWipe:
        return TargetText::freeSpace(task.disk(), task.partition());
    case FileWipe:
        break;
    }
    if (m_isRecycleBinMode)
        return recycleBinLines();
    const QStringList paths = task.files();
    const QStringList names =
        TargetText::beginningOf(paths.size(), [&paths](qsizetype i) { return displayText(paths.at(i)); });
    return QStringList{TargetText::amount(survey.files, survey.bytes, survey.isComplete)} + names;
}

bool MainWindow::isConfirmed()
{
    // What an earlier confirmation has left.
    m_job->task()->setWholeDrive(false);
    const FileSurvey survey = lookAtFiles();
    QString problem = survey.roomProblem();
    if (problem.isEmpty() && m_job->task()->operationType() == FileWipe)
        problem = LoopFiles::problem(m_job->task()->files());
    if (!problem.isEmpty()) {
        Prompts::current().warning(this, tr("These Files Cannot Be Erased"), problem);
        return false;
    }
    ConfirmDialog confirmation(this);
    if (const QStringList lines = targetLines(survey); !lines.isEmpty())
        confirmation.showTarget(lines);
    if (const QString volumes = erasedVolumesText(); !volumes.isEmpty())
        confirmation.addNotice(volumes);
    if (m_job->task()->operationType() == FreeSpaceWipe) {
        const OutcomeRecord foreseen = foreseeableShortfalls(*m_job->task());
        if (const QStringList lines = foreseen.shortfallLines() + foreseen.noteLines(); !lines.isEmpty())
            confirmation.addNotice(lines.join(u'\n'));
    }
    if (m_job->task()->operationType() == FileWipe) {
        QStringList lines = foreseeableShortfalls(*m_job->task(), survey).shortfallLines();
        if (const QString others = survey.otherNamesText(); !others.isEmpty())
            lines.append(others);
        if (!lines.isEmpty())
            confirmation.addNotice(lines.join(u'\n'));
    }
    if (m_job->task()->operationType() == DiskWipe) {
        const QList<Shortfall> foreseen = foreseeableShortfalls(*m_job->task()).shortfalls();
        if (!foreseen.isEmpty())
            confirmation.offerWholeDrive(foreseen.constFirst().bytes);
    }
    if (confirmation.exec() != QDialog::Accepted)
        return false;
    m_job->task()->setWholeDrive(confirmation.wantsWholeDrive());
    return true;
}
