#include "ui/mainwindow/recordkeeping.h"

#include "certificate/certificaterenderer.h"
#include "jobs/jobend.h"
#include "jobs/reportstorage.h"
#include "model/usersettings.h"
#include "services/applog.h"

#include <QDebug>
#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace recordkeeping {

bool isWanted()
{
    return usersettings::readBool(*usersettings::open(), usersettings::GenerateReport, true);
}

void store(JobEnd &end)
{
    end.hasRecord = isWanted();
    const QString outcome = machineName(end.outcome.outcome());
    if (!end.hasRecord) {
        qDebug() << "[Certificate] Skipped saving to database (disabled in settings)";
        AppLog::instance().info(u"Job ended: %1, no report is kept"_s.arg(outcome));
        return;
    }
    end.notStoredBecause = storeReport(end.report, end.outcome);
    end.isStored = end.notStoredBecause.isEmpty();
    const QString id = end.report.certificateId;
    if (end.isStored) {
        qDebug() << "[Certificate] Report saved to database:" << id;
        AppLog::instance().info(u"Job ended: %1, report %2 is stored"_s.arg(outcome, id));
    } else {
        qWarning() << "[Certificate] Report not saved to database:" << end.notStoredBecause;
        AppLog::instance().error(
            u"Job ended: %1, report %2 is not stored: %3"_s.arg(outcome, id, end.notStoredBecause));
    }
}

void exportCertificate(const JobEnd &end)
{
    const auto settings = usersettings::open();
    const QString folder = usersettings::readString(*settings, usersettings::ExportPath);
    if (!end.hasRecord || !end.success ||
        !usersettings::readBool(*settings, usersettings::AutoExport, false) || folder.isEmpty() ||
        !QDir(folder).exists())
        return;
    const QString file = folder + u'/' + end.report.certificateId + u".pdf"_s;
    if (CertificateRenderer().exportToPdf(end.report, file, end.outcome))
        qDebug() << "[AutoExport] Certificate exported to:" << file;
    else
        qWarning() << "[AutoExport] Failed to export certificate to:" << file;
}

} // namespace recordkeeping
