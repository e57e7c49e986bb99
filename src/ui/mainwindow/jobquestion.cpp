#include "ui/mainwindow/jobquestion.h"

#include "engine/filesurvey.h"
#include "engine/filetargets.h"
#include "engine/foreseeable.h"
#include "jobs/jobcontroller.h"
#include "model/displaytext.h"
#include "model/targettext.h"
#include "model/wipetask.h"
#include "services/diskmanager.h"
#include "services/loopfiles.h"
#include "ui/dialogs/confirmdialog.h"
#include "ui/disks/obstaclestext.h"
#include "ui/prompts/prompts.h"

#include <QGuiApplication>
#include <QScopeGuard>

JobQuestion::JobQuestion(JobController &job, QWidget &window)
    : m_job(job)
    , m_task(*job.task())
    , m_window(window)
{}

bool JobQuestion::isRefused(const std::optional<Refusal> &refusal)
{
    if (refusal)
        Prompts::current().warning(&m_window, tr("The Erasure Cannot Start"), refusal->message);
    return refusal.has_value();
}

bool JobQuestion::isPossible()
{
    const OperationType type = m_task.operationType();
    if (type != DiskWipe && type != PartitionWipe)
        return true;
    const DiskInfo disk = m_task.disk();
    QString obstacles = ObstaclesText::of(DiskManager::obstacles(disk.diskNumber));
    if (obstacles.isEmpty())
        obstacles = LoopFiles::problem({disk.devicePath}).value_or(Refusal()).message;
    if (obstacles.isEmpty())
        return true;
    Prompts::current().show(&m_window, {QMessageBox::Warning,
                                        tr("This Disk Cannot Be Erased"),
                                        obstacles,
                                        QMessageBox::Ok,
                                        QMessageBox::NoButton,
                                        {},
                                        Qt::PlainText});
    return false;
}

// A job on one partition erases all volumes of its disk. Empty when the disk has only that one.
QString JobQuestion::erasedVolumesText() const
{
    const QList<PartitionInfo> partitions = m_task.disk().partitions;
    if (m_task.operationType() != PartitionWipe || partitions.size() < 2)
        return {};
    QStringList names;
    for (const PartitionInfo &partition : partitions)
        names.append(displayText(partition.driveLetter));
    return tr("All of these will be erased, not only %1\n%2")
        .arg(displayText(m_task.partition().driveLetter), names.join(QStringLiteral(", ")));
}

// Walking through all folders takes time. Finding the place of every file on the disk takes more time and is
// left to the job.
FileSurvey JobQuestion::lookAtFiles()
{
    if (m_task.operationType() != FileWipe)
        return {};
    rememberTargets(m_task);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    return surveyFiles(
        m_task, [] { return false; }, 0);
}

QStringList JobQuestion::targetLines(const FileSurvey &survey, const QStringList &binLines) const
{
    switch (m_task.operationType()) {
    case DiskWipe:
    case PartitionWipe:
        return TargetText::driveWithVolumes(m_task.disk());
    case FreeSpaceWipe:
        return TargetText::freeSpace(m_task.disk(), m_task.partition());
    case FileWipe:
        break;
    }
    if (!binLines.isEmpty())
        return binLines;
    const QStringList paths = m_task.files();
    const QStringList names =
        TargetText::beginningOf(paths.size(), [&paths](qsizetype i) { return displayText(paths.at(i)); });
    return QStringList{TargetText::amount(survey.files, survey.bytes, survey.isComplete)} + names;
}

bool JobQuestion::isConfirmed(const QStringList &binLines)
{
    // An earlier confirmation may have set it.
    m_task.setWholeDrive(false);
    const FileSurvey survey = lookAtFiles();
    std::optional<Refusal> refusal = survey.roomProblem();
    if (!refusal && m_task.operationType() == FileWipe)
        refusal = LoopFiles::problem(m_task.files());
    if (refusal) {
        Prompts::current().warning(&m_window, tr("These Files Cannot Be Erased"), refusal->message);
        return false;
    }
    ConfirmDialog confirmation(&m_window);
    if (const QStringList lines = targetLines(survey, binLines); !lines.isEmpty())
        confirmation.showTarget(lines);
    if (const QString volumes = erasedVolumesText(); !volumes.isEmpty())
        confirmation.addNotice(volumes);
    if (m_task.operationType() == FreeSpaceWipe) {
        const OutcomeRecord foreseen = foreseeableShortfalls(m_task);
        if (const QStringList lines = foreseen.shortfallLines() + foreseen.noteLines(); !lines.isEmpty())
            confirmation.addNotice(lines.join(u'\n'));
    }
    if (m_task.operationType() == FileWipe) {
        QStringList lines = foreseeableShortfalls(m_task, survey).shortfallLines();
        if (const QString others = survey.otherNamesText(); !others.isEmpty())
            lines.append(others);
        if (!lines.isEmpty())
            confirmation.addNotice(lines.join(u'\n'));
    }
    if (m_task.operationType() == DiskWipe) {
        const QList<Shortfall> foreseen = foreseeableShortfalls(m_task).shortfalls();
        if (!foreseen.isEmpty())
            confirmation.offerWholeDrive(foreseen.constFirst().bytes);
    }
    if (confirmation.exec() != QDialog::Accepted)
        return false;
    m_task.setWholeDrive(confirmation.wantsWholeDrive());
    return true;
}

// The system flushes its caches of the volume, which takes time.
bool JobQuestion::isReady(bool storesReport)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto refusal = m_job.makeReady(storesReport);
    QGuiApplication::restoreOverrideCursor();
    if (!refusal)
        return true;
    const QString title = m_task.operationType() == FreeSpaceWipe ? tr("This Volume Cannot Be Erased")
                                                                  : tr("This Disk Cannot Be Erased");
    Prompts::current().warning(&m_window, title, refusal->message);
    return false;
}
