// The end of a job: report, certificate, and what comes after.
#include "ui/mainwindow/mainwindow.h"

#include "certificate/certificatedialog.h"
#include "certificate/certificaterenderer.h"
#include "engine/wipeengine.h"
#include "model/usersettings.h"
#include "prompts/prompts.h"
#include "services/binrecords.h"
#include "services/reportdatabase.h"
#include "ui/dialogs/completedialog.h"
#include "ui/history/historypage.h"

#include <QDebug>
#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

void MainWindow::onWipeCompleted(bool success)
{
    setMenuEnabled(true);
    if (!m_currentTask) {
        qWarning() << "m_currentTask is null";
        showHome();
        return;
    }
    if (m_isRecycleBinMode)
        updateRecycleBinRecords();
    const WipeReport report = m_engine->report();
    const OutcomeRecord outcome = m_engine->outcome();
    const bool keepsReport =
        usersettings::readBool(*usersettings::open(), usersettings::GenerateReport, true);
    bool isStored = false;
    if (keepsReport)
        isStored = keepReport(report, outcome);
    else
        qDebug() << "[Certificate] Skipped saving to database (disabled in settings)";
    if (success && keepsReport)
        exportCertificate(report, outcome);

    CompleteDialog dialog(success, keepsReport ? report.certificateId : QString(), this, outcome);
    if (!success)
        dialog.addLeftUnmounted(m_engine->dismountedVolumes());
    if (keepsReport) {
        connect(&dialog, &CompleteDialog::viewCertificateClicked, this,
                [this, isStored, &report, &outcome] { viewCertificate(isStored, report, outcome); });
    }
    dialog.exec();
    leaveCompletedJob(success);
}

// The stored record where there is one: that is what an auditor will see.
void MainWindow::viewCertificate(bool isStored, const WipeReport &report, const OutcomeRecord &outcome)
{
    if (isStored)
        onViewCertificate(report.certificateId);
    else
        CertificateDialog(report, this, outcome).exec();
}

bool MainWindow::keepReport(const WipeReport &report, const OutcomeRecord &outcome)
{
    if (ReportDatabase::instance().saveReport(report, outcome)) {
        m_historyPage->loadHistory();
        qDebug() << "[Certificate] Report saved to database:" << report.certificateId;
        return true;
    }
    qWarning() << "[Certificate] Report not saved to database:" << ReportDatabase::instance().lastError();
    // Whoever needs the record must know that there is none.
    Prompts::current().warning(this, tr("Report Not Saved"),
                               tr("The erasure report could not be stored in the database.\n%1")
                                   .arg(ReportDatabase::instance().lastError()));
    return false;
}

// The bins' own records of what they hold name what was erased.
void MainWindow::updateRecycleBinRecords()
{
    const platform::Status updated = updateBinRecords(m_recycleBin);
    if (!updated)
        qWarning() << "[RecycleBin] The bin's own list still names what was erased:" << updated.diagnostic();
}

void MainWindow::exportCertificate(const WipeReport &report, const OutcomeRecord &outcome) const
{
    const auto store = usersettings::open();
    const QString folder = usersettings::readString(*store, usersettings::ExportPath);
    if (!usersettings::readBool(*store, usersettings::AutoExport, false) || folder.isEmpty() ||
        !QDir(folder).exists())
        return;
    const QString file = folder + u'/' + report.certificateId + u".pdf"_s;
    if (CertificateRenderer().exportToPdf(report, file, outcome))
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
    const WipeReport report = ReportDatabase::instance().getReport(certificateId);
    // A report that is not there reads as a new one, whose certificate would be false.
    if (report.certificateId != certificateId) {
        Prompts::current().warning(this, tr("Report Not Found"),
                                   tr("There is no report %1 in the database.").arg(certificateId));
        return;
    }
    CertificateDialog(report, this, ReportDatabase::instance().outcome(certificateId)).exec();
}
