#include "gallery.h"

#include "certificate/certificaterenderer.h"
#include "model/joboutcome.h"
#include "model/wipereport.h"
#include "ui/certificate/certificatedialog.h"

#include <QDebug>
#include <QImage>
#include <QPainter>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace {

WipeReport diskReport()
{
    WipeReport report;
    report.certificateId = u"QVX-2026-0305-4821"_s;
    report.operationType = DiskWipe;
    report.method = WipeMethod::fromType(WipeMethod::Dod522022M);
    report.startTime = QDateTime(QDate(2026, 3, 5), QTime(14, 7, 9));
    report.endTime = QDateTime(QDate(2026, 3, 5), QTime(16, 0, 0));
    report.status = WipeStatus::Completed;
    report.disk.diskNumber = 2;
    report.disk.model = u"Contoso Fast SSD 970"_s;
    report.disk.serialNumber = u"S4EWNX0M512345"_s;
    report.disk.sizeBytes = 1000204886016;
    report.disk.diskType = DiskType::SSD;
    report.disk.busType = BusType::SATA;
    report.totalSectors = 1953525168;
    report.wipedSectors = 1953525168;
    report.bytesWritten = 7001434202112;
    report.verificationPassed = true;
    report.dataHash = u"9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08"_s;
    report.operatorName = u"anna"_s;
    report.computerName = u"BENCH-7"_s;
    return report;
}

WipeReport fileReport()
{
    WipeReport report = diskReport();
    report.operationType = FileWipe;
    report.fileCount = 1482;
    report.bytesWritten = 73400320;
    report.dataHash.clear();
    return report;
}

WipeReport failedReport()
{
    WipeReport report = diskReport();
    report.status = WipeStatus::Failed;
    report.verificationPassed = false;
    report.wipedSectors = 0;
    report.badSectors = 17;
    return report;
}

WipeReport cancelledReport()
{
    WipeReport report = fileReport();
    report.status = WipeStatus::Cancelled;
    report.verificationPassed = false;
    report.verificationSampleSize = 0;
    return report;
}

WipeReport longReport()
{
    WipeReport report = diskReport();
    report.disk.model =
        u"Contoso Enterprise Ultra Performance NVMe <b>Datacenter</b> & Archive Edition 30.72TB"_s;
    report.disk.serialNumber = u"S4EWNX0M512345S4EWNX0M512345S4EWNX0M512345S4EWNX0M512345S4EWNX0M512345"_s;
    report.operatorName = u"龙门長城 국립중앙박물관 ありがとう Größenwahnsinniger Überprüfer"_s;
    return report;
}

OutcomeRecord partial(const QList<ShortfallKind> &kinds)
{
    OutcomeRecord outcome(JobOutcome::Complete);
    for (const ShortfallKind kind : kinds)
        outcome.note({kind, u"/media/anna/Backup"_s});
    outcome.addWritten(73400320);
    return outcome;
}

struct Job
{
    QString name;
    WipeReport report;
    std::optional<OutcomeRecord> outcome;
};

void page(Gallery &gallery, const Job &job)
{
    constexpr int dpi = 150;
    // Twice as high as the paper, so that content below its end is visible.
    QImage image(qRound(210 / 25.4 * dpi), qRound(400 / 25.4 * dpi), QImage::Format_ARGB32_Premultiplied);
    const int paperHeight = qRound(297 / 25.4 * dpi);
    image.setDotsPerMeterX(qRound(dpi / 0.0254));
    image.setDotsPerMeterY(qRound(dpi / 0.0254));
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    painter.fillRect(0, 0, image.width(), paperHeight, Qt::white);
    CertificateRenderer().render(painter, job.report, image.width(), paperHeight, dpi, job.outcome);
    painter.end();
    gallery.save(image, u"certificate-page-"_s + job.name);
}

void dialog(Gallery &gallery, const Job &job)
{
    CertificateDialog shown(job.report, nullptr, job.outcome);
    gallery.picture(shown, u"certificate-dialog-"_s + job.name);
    // The whole sheet, as in a window of that height.
    auto *const sheet = shown.findChild<QScrollArea *>()->widget();
    gallery.save(sheet->grab().toImage(), u"certificate-sheet-"_s + job.name);
}

void paint(Gallery &gallery)
{
    const QList<Job> jobs{
        {u"disk"_s, diskReport(), {}},
        {u"files"_s, fileReport(), OutcomeRecord(JobOutcome::Complete)},
        {u"failed"_s, failedReport(), OutcomeRecord(JobOutcome::Failed)},
        {u"cancelled"_s, cancelledReport(), OutcomeRecord(JobOutcome::Cancelled)},
        {u"long"_s, longReport(), OutcomeRecord(JobOutcome::Complete)},
        {u"unread"_s, diskReport(), partial({ShortfallKind::OnlyVolumes, ShortfallKind::NotReadBack})},
        {u"partial"_s, diskReport(), partial(allShortfallKinds())},
    };
    for (const Job &job : jobs) {
        page(gallery, job);
        dialog(gallery, job);
        const QString pdf = gallery.pathFor(u"certificate-"_s + job.name, u"pdf"_s);
        if (!CertificateRenderer().exportToPdf(job.report, pdf, job.outcome))
            qWarning() << "cannot write" << pdf;
    }
}

const GalleryRoom room("certificate", &paint);

} // namespace
