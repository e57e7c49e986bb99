#include "gallery.h"
#include "pageframe.h"

#include "model/wipereport.h"
#include "services/reportdatabase.h"
#include "ui/history/historypage.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>

#include <array>

using namespace Qt::StringLiterals;

namespace {

WipeReport reportOf(int number)
{
    constexpr std::array statuses{WipeStatus::Completed, WipeStatus::Failed, WipeStatus::Cancelled,
                                  WipeStatus::Completed};
    constexpr std::array operations{DiskWipe, PartitionWipe, FreeSpaceWipe, FileWipe};
    WipeReport report;
    report.certificateId = u"QVX-2026-0305-%1"_s.arg(1000 + number);
    report.operationType = operations.at(number % operations.size());
    const QList<WipeMethod> methods = WipeMethod::allMethods();
    report.method = methods.at(number % methods.size());
    report.startTime = QDateTime(QDate(2026, 3, 5), QTime(14, 7)).addSecs(-5000LL * number);
    report.status = statuses.at(number % statuses.size());
    report.disk.model =
        number == 1 ? u"Fabrikam Enterprise Capacity 3.5 HDD v7 SAS 12Gb/s 512e"_s : u"Contoso Fast 990"_s;
    report.disk.sizeBytes = 1'000'204'886'016;
    report.fileCount = number * 7;
    return report;
}

void paint(Gallery &gallery)
{
    // A separate database.
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    if (!QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).startsWith(folder.path()))
        qFatal("the pictures would show the reports of this user");
    ReportDatabase &database = ReportDatabase::instance();
    if (!database.initialize())
        qFatal("cannot open a database for the pictures");
    {
        PageFrame frame(new HistoryPage);
        gallery.picture(frame, u"history-empty"_s);
    }
    for (int number = 0; number < 16; ++number) {
        if (!database.saveReport(reportOf(number)))
            qFatal("cannot store a report for the pictures");
    }
    {
        auto *page = new HistoryPage;
        PageFrame frame(page);
        frame.show();
        auto *table = page->findChild<QTableWidget *>();
        table->setCurrentCell(1, 0);
        table->setFocus();
        gallery.picture(frame, u"history-filled"_s);
    }
    database.close();
}

const GalleryRoom room("history", &paint);

} // namespace
