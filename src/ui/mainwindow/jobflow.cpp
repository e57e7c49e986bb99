#include "ui/mainwindow/jobflow.h"

#include "engine/wipeengine.h"
#include "jobs/jobcontroller.h"
#include "model/wipemethod.h"
#include "model/wipetask.h"
#include "ui/certificate/certificatedialog.h"
#include "ui/dialogs/completedialog.h"
#include "ui/history/historypage.h"
#include "ui/mainwindow/jobquestion.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/mainwindow/recordkeeping.h"
#include "ui/mainwindow/recyclebinflow.h"
#include "ui/progress/progresspage.h"

#include <QWidget>

JobFlow::JobFlow(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    connectEngine();
    m_parts.job.setKeep([this](JobEnd &end) { keepRecords(end); });
    connect(&m_parts.job, &JobController::ended, this, &JobFlow::showEnd);
}

void JobFlow::connectEngine()
{
    const WipeEngine *const engine = &m_parts.job.engine();
    ProgressPage *const page = &m_parts.progress;
    // The engine counts whole percents and the page takes a double, a conversion that a plain connection
    // refuses.
    connect(engine, &WipeEngine::progressChanged, page, [page](int percent) { page->setProgress(percent); });
    connect(engine, &WipeEngine::passChanged, page, &ProgressPage::setPass);
    connect(engine, &WipeEngine::speedUpdated, page, &ProgressPage::setSpeed);
    connect(engine, &WipeEngine::logMessage, page, &ProgressPage::addLog);
    // The errors of a running job are lines of its log already. A refused job has no other line.
    connect(engine, &WipeEngine::errorOccurred, page, [engine, page](const QString &error) {
        if (!engine->isRunning())
            page->addLog(error.toHtmlEscaped(), 2);
    });
}

void JobFlow::start(const WipeMethod &method)
{
    JobController &job = m_parts.job;
    if (!job.task())
        return;
    JobQuestion question(job, m_parts.window);
    if (question.isRefused(job.pendingJob()) || !question.isPossible())
        return;
    job.task()->setMethod(method);
    if (!question.isConfirmed(m_parts.bin.isActive() ? m_parts.bin.lines() : QStringList()) ||
        !question.isReady(recordkeeping::isWanted()))
        return;
    m_parts.progress.reset();
    m_parts.progress.setMethod(method.name);
    m_parts.progress.setTotalPasses(method.passCount());
    emit started();
    job.setWindow(m_parts.window.winId());
    const auto refusal = job.start();
    if (!refusal)
        return;
    emit refused();
    question.isRefused(refusal);
}

// A job that ends meanwhile withdraws the question, which then counts as closed.
QMessageBox::StandardButton JobFlow::askAboutJob(const Prompts::Box &box)
{
    m_asksAboutJob = true;
    const auto answer = Prompts::current().show(&m_parts.window, box);
    m_asksAboutJob = false;
    return answer;
}

void JobFlow::stop()
{
    const auto answer = askAboutJob({QMessageBox::Warning,
                                     MainWindow::tr("Confirm Stop"),
                                     MainWindow::tr("Are you sure you want to stop the wipe task?\n"
                                                    "This operation cannot be undone."),
                                     QMessageBox::Ok | QMessageBox::Cancel,
                                     QMessageBox::Cancel,
                                     {},
                                     Qt::PlainText});
    if (answer != QMessageBox::Ok)
        return;
    m_parts.job.stop();
    emit stopped();
}

bool JobFlow::mayClose()
{
    if (m_parts.job.state() != JobController::State::Running)
        return true;
    const auto answer =
        askAboutJob({QMessageBox::Warning,
                     MainWindow::tr("Confirm Exit"),
                     MainWindow::tr("Wipe task is in progress. Are you sure you want to exit?\n"
                                    "Exiting will interrupt the current task."),
                     QMessageBox::Yes | QMessageBox::No,
                     QMessageBox::No,
                     {},
                     Qt::PlainText});
    return answer == QMessageBox::Yes;
}

void JobFlow::keepRecords(JobEnd &end)
{
    emit ended();
    if (m_parts.bin.isActive())
        m_parts.bin.updateRecords();
    recordkeeping::store(end);
    if (end.isStored)
        m_parts.history.loadHistory();
    recordkeeping::exportCertificate(end);
}

void JobFlow::showEnd(const JobEnd &end)
{
    // The job that the question is about has ended.
    if (m_asksAboutJob)
        Prompts::current().withdraw();
    CompleteDialog dialog(end.success, end.hasRecord ? end.report.certificateId : QString(), &m_parts.window,
                          end.outcome);
    if (!end.success)
        dialog.addLeftUnmounted(end.leftUnmounted);
    dialog.addNotStored(end.notStoredBecause);
    if (end.hasRecord) {
        connect(&dialog, &CompleteDialog::viewCertificateClicked, this,
                [this, &end] { viewCertificate(end); });
    }
    dialog.exec();
    leave(end.success);
}

// Shows the stored record where there is one, as an auditor will see that.
void JobFlow::viewCertificate(const JobEnd &end)
{
    if (end.isStored)
        emit certificateWanted(end.report.certificateId);
    else
        CertificateDialog(end.report, &m_parts.window, end.outcome).exec();
}

void JobFlow::leave(bool success)
{
    const bool offersFreeSpace = m_parts.bin.isActive() && success;
    m_parts.bin.leave();
    if (offersFreeSpace && Prompts::current().confirms(
                               &m_parts.window, QMessageBox::Question, MainWindow::tr("Wipe Free Space?"),
                               MainWindow::tr("Recycle Bin files have been securely wiped!\n\n"
                                              "Would you also like to wipe free space to ensure previously\n"
                                              "emptied files cannot be recovered?\n\n"
                                              "This may take longer depending on available free space.")))
        emit freeSpaceWanted();
    else
        emit left();
}
