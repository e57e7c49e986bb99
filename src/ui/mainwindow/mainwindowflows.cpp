// From the home page through a job to its end.
#include "ui/mainwindow/mainwindow.h"

#include "jobs/jobcontroller.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/reportdatabase.h"
#include "ui/certificate/certificatedialog.h"
#include "ui/dialogs/completedialog.h"
#include "ui/disks/diskselectpage.h"
#include "ui/files/fileselectpage.h"
#include "ui/history/historypage.h"
#include "ui/history/storedreport.h"
#include "ui/mainwindow/jobquestion.h"
#include "ui/mainwindow/recordkeeping.h"
#include "ui/mainwindow/recyclebinflow.h"
#include "ui/mainwindow/waitnotice.h"
#include "ui/methods/methodselectpage.h"
#include "ui/progress/progresspage.h"
#include "ui/prompts/prompts.h"

#include <QDebug>
#include <QStackedWidget>

namespace {

// Those that have not vanished. What cannot be examined stays: the job then fails on it, instead of telling
// that all was erased.
QStringList existing(QStringList paths)
{
    platform::Files &files = platform::Platform::current().files();
    paths.removeIf([&files](const QString &path) { return files.info(path).status().isAbsent(); });
    return paths;
}

} // namespace

void MainWindow::onDiskWipeClicked()
{
    // The menu leads home without a way back through the bin.
    m_bin->leave();
    m_job->newTask(DiskWipe);
    showDisks(DiskSelectPage::WipeDisk);
}

void MainWindow::onFreeSpaceWipeClicked()
{
    m_bin->leave();
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
    m_bin->leave();
    m_job->newTask(FileWipe);
    m_filePage->clearFiles();
    showPage(FileSelect);
}

void MainWindow::onRecycleBinWipeClicked()
{
    m_bin->begin();
    showPage(FileSelect);
    m_bin->scan();
}

void MainWindow::onRecycleBinScanFinished()
{
    m_filePage->hideLoading();
    // The user left meanwhile.
    if (m_currentPage != FileSelect || !m_bin->isActive())
        return;
    const RecycleBinInfo found = m_bin->result();
    if (found.fileCount < 1 && found.unrecorded.isEmpty())
        offerFreeSpaceWipeOfEmptyBin(found);
    else
        takeRecycleBin(found);
}

void MainWindow::offerFreeSpaceWipeOfEmptyBin(const RecycleBinInfo &found)
{
    m_bin->leave();
    showHome();
    const QString question = tr("The Recycle Bin is already empty.\n\n"
                                "However, previously deleted files may still be recoverable.\n"
                                "Would you like to wipe free space to ensure they cannot be recovered?");
    const QStringList texts = QStringList{question} + RecycleBinFlow::besideItems(found);
    if (Prompts::current().confirms(this, QMessageBox::Question, tr("Recycle Bin is Empty"),
                                    texts.join(QStringLiteral("\n\n"))))
        onFreeSpaceWipeClicked();
}

void MainWindow::takeRecycleBin(const RecycleBinInfo &found)
{
    WipeTask &task = m_job->newTask(FileWipe);
    task.setFiles(existing(found.doomedPaths()));
    task.setTargetsAreNamed(false);
    task.setOmissions(found.omissions());
    m_bin->show(found);
}

void MainWindow::loadMoreRecycleBinItems()
{
    m_bin->showMore();
}

void MainWindow::onRecycleBinListScrolled()
{
    m_bin->onScrolled();
}

void MainWindow::onBackClicked()
{
    switch (m_currentPage) {
    case DiskSelect:
    case FileSelect:
        m_bin->leave();
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
        if (m_job->task() && !m_bin->isActive()) {
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

void MainWindow::onStartWipe()
{
    if (!m_job->task())
        return;
    JobQuestion question(*m_job, *this);
    if (question.isRefused(m_job->pendingJob()) || !question.isPossible())
        return;
    const WipeMethod method = m_methodPage->selectedMethod();
    m_job->task()->setMethod(method);
    if (!question.isConfirmed(m_bin->isActive() ? m_bin->lines() : QStringList()) ||
        !question.isReady(recordkeeping::isWanted()))
        return;
    m_progressPage->reset();
    m_progressPage->setMethod(method.name);
    m_progressPage->setTotalPasses(method.passCount());
    setMenuEnabled(false);
    showPage(Progress);
    m_job->setWindow(winId());
    const QString refusal = m_job->start();
    if (refusal.isEmpty())
        return;
    setMenuEnabled(true);
    showPage(MethodSelect);
    question.isRefused(refusal);
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

void MainWindow::onWipeCompleted(bool success)
{
    if (!m_job->task()) {
        setMenuEnabled(true);
        qWarning() << "m_currentTask is null";
        showHome();
        return;
    }
    m_job->complete(success);
}

// What every end has, also one that nobody is there to see.
void MainWindow::keepRecords(JobEnd &end)
{
    setMenuEnabled(true);
    if (m_bin->isActive())
        m_bin->updateRecords();
    recordkeeping::store(end);
    if (end.isStored)
        m_historyPage->loadHistory();
    recordkeeping::exportCertificate(end);
}

void MainWindow::showEnd(const JobEnd &end)
{
    // The question would be about a job that there is no more.
    if (m_asksAboutJob)
        Prompts::current().withdraw();
    CompleteDialog dialog(end.success, end.hasRecord ? end.report.certificateId : QString(), this,
                          end.outcome);
    if (!end.success)
        dialog.addLeftUnmounted(end.leftUnmounted);
    dialog.addNotStored(end.notStoredBecause);
    if (end.hasRecord) {
        connect(&dialog, &CompleteDialog::viewCertificateClicked, this,
                [this, &end] { viewCertificate(end); });
    }
    dialog.exec();
    leaveCompletedJob(end.success);
}

// The stored record where there is one: that is what an auditor will see.
void MainWindow::viewCertificate(const JobEnd &end)
{
    if (end.isStored)
        onViewCertificate(end.report.certificateId);
    else
        CertificateDialog(end.report, this, end.outcome).exec();
}

void MainWindow::leaveCompletedJob(bool success)
{
    const bool offersFreeSpace = m_bin->isActive() && success;
    m_bin->leave();
    if (offersFreeSpace &&
        Prompts::current().confirms(this, QMessageBox::Question, tr("Wipe Free Space?"),
                                    tr("Recycle Bin files have been securely wiped!\n\n"
                                       "Would you also like to wipe free space to ensure previously\n"
                                       "emptied files cannot be recovered?\n\n"
                                       "This may take longer depending on available free space."))) {
        onFreeSpaceWipeClicked();
        return;
    }
    showHome();
}

void MainWindow::onViewCertificate(const QString &certificateId)
{
    if (const std::optional<WipeReport> report = storedReport(certificateId, this))
        CertificateDialog(*report, this, ReportDatabase::instance().outcome(certificateId)).exec();
}
