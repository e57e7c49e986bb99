// From the home page to the start of a job.
#include "ui/mainwindow/mainwindow.h"

#include "jobs/jobcontroller.h"
#include "model/wipetask.h"
#include "prompts/prompts.h"
#include "services/diskmanager.h"
#include "services/loopfiles.h"
#include "ui/disks/diskselectpage.h"
#include "ui/disks/obstaclestext.h"
#include "ui/files/fileselectpage.h"
#include "ui/mainwindow/waitnotice.h"
#include "ui/methods/methodselectpage.h"
#include "ui/progress/progresspage.h"

#include <QGuiApplication>
#include <QStackedWidget>

void MainWindow::onDiskWipeClicked()
{
    // The menu leads home without a way back through the bin.
    leaveRecycleBin();
    m_job->newTask(DiskWipe);
    showDisks(DiskSelectPage::WipeDisk);
}

void MainWindow::onFreeSpaceWipeClicked()
{
    leaveRecycleBin();
    m_job->newTask(FreeSpaceWipe);
    showDisks(DiskSelectPage::WipeFreeSpace);
}

// A drive that is asleep takes seconds to answer.
void MainWindow::showDisks(int mode)
{
    const WaitNotice notice(*m_pages, tr("Reading drives..."));
    m_diskPage->setMode(mode);
    m_diskPage->refresh();
    showPage(DiskSelect);
}

void MainWindow::onFileWipeClicked()
{
    leaveRecycleBin();
    m_job->newTask(FileWipe);
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
        backFromMethods();
        break;
    case Progress:
        break;
    default:
        showHome();
        break;
    }
}

void MainWindow::backFromMethods()
{
    if (m_job->task() && m_job->task()->operationType() == FileWipe) {
        showPage(FileSelect);
        return;
    }
    // The page reads the drives again whenever it is shown.
    const WaitNotice notice(*m_pages, tr("Reading drives..."));
    showPage(DiskSelect);
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
        if (m_job->task() && !m_isRecycleBinMode) {
            m_job->task()->setFiles(m_filePage->files());
            m_job->task()->setOperationType(FileWipe);
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
    if (!m_job->task())
        return;
    const bool isWholeDisk = m_diskPage->selectionType() == DiskSelectPage::DiskSelected;
    m_job->task()->setDisk(m_diskPage->selectedDisk());
    // What an earlier choice left must not stay.
    m_job->task()->setPartition(isWholeDisk ? PartitionInfo() : m_diskPage->selectedPartition());
    // The flow that began decides; a choice on the page only changes what is wiped within it.
    if (m_job->task()->operationType() != FreeSpaceWipe)
        m_job->task()->setOperationType(isWholeDisk ? DiskWipe : PartitionWipe);
}

// Tells what is in the way of erasing the disk of the current task.
bool MainWindow::hasObstacles()
{
    const OperationType type = m_job->task()->operationType();
    if (type != DiskWipe && type != PartitionWipe)
        return false;
    const DiskInfo disk = m_job->task()->disk();
    QString obstacles = ObstaclesText::of(DiskManager::obstacles(disk.diskNumber));
    if (obstacles.isEmpty())
        obstacles = LoopFiles::problem({disk.devicePath});
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

// The system writes out what it holds back for a volume, which takes its time.
bool MainWindow::isReady()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString problem = m_job->makeReady(keepsReports());
    QGuiApplication::restoreOverrideCursor();
    if (problem.isEmpty())
        return true;
    const QString title = m_job->task()->operationType() == FreeSpaceWipe ? tr("This Volume Cannot Be Erased")
                                                                          : tr("This Disk Cannot Be Erased");
    Prompts::current().warning(this, title, problem);
    return false;
}

bool MainWindow::isRefused(const QString &reason)
{
    if (!reason.isEmpty())
        Prompts::current().warning(this, tr("The Erasure Cannot Start"), reason);
    return !reason.isEmpty();
}

void MainWindow::onStartWipe()
{
    if (!m_job->task() || isRefused(m_job->pendingJob()) || hasObstacles())
        return;
    const WipeMethod method = m_methodPage->selectedMethod();
    m_job->task()->setMethod(method);
    if (!isConfirmed() || !isReady())
        return;
    m_progressPage->reset();
    m_progressPage->setMethod(method.name);
    m_progressPage->setTotalPasses(method.passCount());
    setMenuEnabled(false);
    showPage(Progress);
    const QString refusal = m_job->start();
    if (refusal.isEmpty())
        return;
    setMenuEnabled(true);
    showPage(MethodSelect);
    isRefused(refusal);
}

// A job that ends meanwhile takes the question back, which counts as closed then.
QMessageBox::StandardButton MainWindow::askAboutJob(const Prompts::Box &box)
{
    m_asksAboutJob = true;
    const auto answer = Prompts::current().show(this, box);
    m_asksAboutJob = false;
    return answer;
}

void MainWindow::onStopClicked()
{
    const auto answer = askAboutJob({QMessageBox::Warning,
                                     tr("Confirm Stop"),
                                     tr("Are you sure you want to stop the wipe task?\n"
                                        "This operation cannot be undone."),
                                     QMessageBox::Ok | QMessageBox::Cancel,
                                     QMessageBox::Cancel,
                                     {},
                                     Qt::PlainText});
    if (answer != QMessageBox::Ok)
        return;
    m_job->stop();
    setMenuEnabled(true);
    showHome();
}
