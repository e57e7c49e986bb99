// From the home page to the start of a job.
#include "ui/mainwindow/mainwindow.h"

#include "engine/filesurvey.h"
#include "engine/filetargets.h"
#include "engine/foreseeable.h"
#include "engine/wipeengine.h"
#include "model/displaytext.h"
#include "model/wipetask.h"
#include "prompts/prompts.h"
#include "services/diskmanager.h"
#include "ui/dialogs/confirmdialog.h"
#include "ui/disks/diskselectpage.h"
#include "ui/disks/obstaclestext.h"
#include "ui/files/fileselectpage.h"
#include "ui/methods/methodselectpage.h"
#include "ui/progress/progresspage.h"

#include <QGuiApplication>
#include <QScopeGuard>

// The task before is deleted here, not when its job ends: the engine has its report until then.
WipeTask &MainWindow::newTask(OperationType type)
{
    m_engine->deleteTask(m_currentTask);
    m_currentTask = new WipeTask(this);
    m_currentTask->setOperationType(type);
    return *m_currentTask;
}

void MainWindow::onDiskWipeClicked()
{
    // The menu leads home without a way back through the bin.
    leaveRecycleBin();
    newTask(DiskWipe);
    m_diskPage->setMode(DiskSelectPage::WipeDisk);
    m_diskPage->refresh();
    showPage(DiskSelect);
}

void MainWindow::onFreeSpaceWipeClicked()
{
    leaveRecycleBin();
    newTask(FreeSpaceWipe);
    m_diskPage->setMode(DiskSelectPage::WipeFreeSpace);
    m_diskPage->refresh();
    showPage(DiskSelect);
}

void MainWindow::onFileWipeClicked()
{
    leaveRecycleBin();
    newTask(FileWipe);
    m_filePage->clearFiles();
    showPage(FileSelect);
}

void MainWindow::onBackClicked()
{
    switch (m_currentPage) {
    case DiskSelect:
    case FileSelect:
        leaveRecycleBin();
        showHome();
        break;
    case MethodSelect:
        showPage(m_currentTask && m_currentTask->operationType() == FileWipe ? FileSelect : DiskSelect);
        break;
    case Progress:
        break;
    default:
        showHome();
        break;
    }
}

void MainWindow::onNextClicked()
{
    switch (m_currentPage) {
    case DiskSelect:
        takeDiskSelection();
        showPage(MethodSelect);
        break;
    case FileSelect:
        // The content of the bin was handed over when the scan ended.
        if (m_currentTask && !m_isRecycleBinMode) {
            m_currentTask->setFiles(m_filePage->files());
            m_currentTask->setOperationType(FileWipe);
        }
        showPage(MethodSelect);
        break;
    case MethodSelect:
        onStartWipe();
        break;
    default:
        break;
    }
}

void MainWindow::takeDiskSelection()
{
    if (!m_currentTask)
        return;
    const bool isWholeDisk = m_diskPage->selectionType() == DiskSelectPage::DiskSelected;
    m_currentTask->setDisk(m_diskPage->selectedDisk());
    // What an earlier choice left must not stay.
    m_currentTask->setPartition(isWholeDisk ? PartitionInfo() : m_diskPage->selectedPartition());
    // The flow that began decides; a choice on the page only changes what is wiped within it.
    if (m_currentTask->operationType() != FreeSpaceWipe)
        m_currentTask->setOperationType(isWholeDisk ? DiskWipe : PartitionWipe);
}

// Tells what is in the way of erasing the disk of the current task.
bool MainWindow::hasObstacles()
{
    const OperationType type = m_currentTask->operationType();
    if (type != DiskWipe && type != PartitionWipe)
        return false;
    const QString obstacles = ObstaclesText::of(DiskManager::obstacles(m_currentTask->disk().diskNumber));
    if (obstacles.isEmpty())
        return false;
    Prompts::current().show(this, {QMessageBox::Warning,
                                   tr("This Disk Cannot Be Erased"),
                                   obstacles,
                                   QMessageBox::Ok,
                                   QMessageBox::NoButton,
                                   {},
                                   Qt::PlainText});
    return true;
}

// A job on one partition goes over all volumes of its disk; empty when that says nothing new.
QString MainWindow::erasedVolumesText() const
{
    const QList<PartitionInfo> partitions = m_currentTask->disk().partitions;
    if (m_currentTask->operationType() != PartitionWipe || partitions.size() < 2)
        return {};
    QStringList names;
    for (const PartitionInfo &partition : partitions)
        names.append(displayText(partition.driveLetter));
    return tr("All of these will be erased, not only %1\n%2")
        .arg(displayText(m_currentTask->partition().driveLetter), names.join(QStringLiteral(", ")));
}

// A walk through all the folders takes its time. What asks of every file where its content lies takes more,
// and is left to the job.
FileSurvey MainWindow::lookAtFiles()
{
    if (m_currentTask->operationType() != FileWipe)
        return {};
    rememberTargets(*m_currentTask);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    return surveyFiles(
        *m_currentTask, [] { return false; }, 0);
}

bool MainWindow::isConfirmed()
{
    // What an earlier confirmation has left.
    m_currentTask->setWholeDrive(false);
    const FileSurvey survey = lookAtFiles();
    if (const QString problem = survey.roomProblem(); !problem.isEmpty()) {
        Prompts::current().warning(this, tr("These Files Cannot Be Erased"), problem);
        return false;
    }
    ConfirmDialog confirmation(this);
    if (const QString volumes = erasedVolumesText(); !volumes.isEmpty())
        confirmation.addNotice(volumes);
    if (m_currentTask->operationType() == FreeSpaceWipe) {
        const OutcomeRecord foreseen = foreseeableShortfalls(*m_currentTask);
        if (const QStringList lines = foreseen.shortfallLines() + foreseen.noteLines(); !lines.isEmpty())
            confirmation.addNotice(lines.join(u'\n'));
    }
    if (m_currentTask->operationType() == FileWipe) {
        QStringList lines = foreseeableShortfalls(*m_currentTask, survey).shortfallLines();
        if (const QString others = survey.otherNamesText(); !others.isEmpty())
            lines.append(others);
        if (!lines.isEmpty())
            confirmation.addNotice(lines.join(u'\n'));
    }
    if (m_currentTask->operationType() == DiskWipe) {
        const QList<Shortfall> foreseen = foreseeableShortfalls(*m_currentTask).shortfalls();
        if (!foreseen.isEmpty())
            confirmation.offerWholeDrive(foreseen.constFirst().bytes);
    }
    if (confirmation.exec() != QDialog::Accepted)
        return false;
    m_currentTask->setWholeDrive(confirmation.wantsWholeDrive());
    return true;
}

// The system writes out what it holds back for a volume, which takes its time.
bool MainWindow::isReady()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString problem = m_engine->makeReady();
    QGuiApplication::restoreOverrideCursor();
    if (problem.isEmpty())
        return true;
    const QString title = m_currentTask->operationType() == FreeSpaceWipe ? tr("This Volume Cannot Be Erased")
                                                                          : tr("This Disk Cannot Be Erased");
    Prompts::current().warning(this, title, problem);
    return false;
}

void MainWindow::onStartWipe()
{
    if (!m_currentTask || hasObstacles())
        return;
    const WipeMethod method = m_methodPage->selectedMethod();
    m_currentTask->setMethod(method);
    if (!isConfirmed())
        return;
    m_engine->setTask(m_currentTask);
    if (!isReady())
        return;
    m_progressPage->reset();
    m_progressPage->setMethod(method.name);
    m_progressPage->setTotalPasses(method.passCount());
    setMenuEnabled(false);
    showPage(Progress);
    m_engine->start();
}

void MainWindow::onStopClicked()
{
    const auto answer = Prompts::current().show(this, {QMessageBox::Warning,
                                                       tr("Confirm Stop"),
                                                       tr("Are you sure you want to stop the wipe task?\n"
                                                          "This operation cannot be undone."),
                                                       QMessageBox::Ok | QMessageBox::Cancel,
                                                       QMessageBox::Cancel,
                                                       {},
                                                       Qt::PlainText});
    if (answer != QMessageBox::Ok)
        return;
    m_engine->stop();
    setMenuEnabled(true);
    showHome();
}
