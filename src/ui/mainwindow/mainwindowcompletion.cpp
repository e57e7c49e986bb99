// The end of a job: report, certificate, and what comes after.
#include "ui/mainwindow/mainwindow.h"

#include "certificate/certificatedialog.h"
#include "certificate/certificaterenderer.h"
#include "jobs/jobcontroller.h"
#include "jobs/reportstorage.h"
#include "model/usersettings.h"
#include "prompts/prompts.h"
#include "services/applog.h"
#include "services/binrecords.h"
#include "services/reportdatabase.h"
#include "ui/dialogs/completedialog.h"
#include "ui/history/historypage.h"
#include "ui/history/storedreport.h"

#include <QDebug>
#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

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

bool MainWindow::keepsReports()
{
    return usersettings::readBool(*usersettings::open(), usersettings::GenerateReport, true);
}

// What every end has, also one that nobody is there to see.
void MainWindow::keepRecords(JobEnd &end)
{
    setMenuEnabled(true);
    if (m_isRecycleBinMode)
        updateRecycleBinRecords();
    end.hasRecord = keepsReports();
    const QString outcome = machineName(end.outcome.outcome());
    if (!end.hasRecord) {
        qDebug() << "[Certificate] Skipped saving to database (disabled in settings)";
        AppLog::instance().info(u"Job ended: %1, no report is kept"_s.arg(outcome));
        return;
    }
    keepReport(end);
    if (end.isStored)
        AppLog::instance().info(
            u"Job ended: %1, report %2 is stored"_s.arg(outcome, end.report.certificateId));
    else
        AppLog::instance().error(u"Job ended: %1, report %2 is not stored: %3"_s.arg(
            outcome, end.report.certificateId, end.notStoredBecause));
    if (end.success)
        exportCertificate(end);
}

void MainWindow::keepReport(JobEnd &end)
{
    end.notStoredBecause = storeReport(end.report, end.outcome);
    end.isStored = end.notStoredBecause.isEmpty();
    if (end.isStored) {
        m_historyPage->loadHistory();
        qDebug() << "[Certificate] Report saved to database:" << end.report.certificateId;
    } else {
        qWarning() << "[Certificate] Report not saved to database:" << end.notStoredBecause;
    }
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

// The bins' own records of what they hold name what was erased.
void MainWindow::updateRecycleBinRecords()
{
    const platform::Status updated = updateBinRecords(m_recycleBin);
    if (!updated)
        qWarning() << "[RecycleBin] The bin's own list still names what was erased:" << updated.diagnostic();
}

void MainWindow::exportCertificate(const JobEnd &end) const
{
    const auto store = usersettings::open();
    const QString folder = usersettings::readString(*store, usersettings::ExportPath);
    if (!usersettings::readBool(*store, usersettings::AutoExport, false) || folder.isEmpty() ||
        !QDir(folder).exists())
        return;
    const QString file = folder + u'/' + end.report.certificateId + u".pdf"_s;
    if (CertificateRenderer().exportToPdf(end.report, file, end.outcome))
        qDebug() << "[AutoExport] Certificate exported to:" << file;
    else
        qWarning() << "[AutoExport] Failed to export certificate to:" << file;
}

void MainWindow::leaveCompletedJob(bool success)
{
    const bool offersFreeSpace = m_isRecycleBinMode && success;
    leaveRecycleBin();
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
