#include "model/wipereport.h"
#include "services/reportdatabase.h"
#include "services/trash/recyclebinscanner.h"
#ifdef Q_OS_UNIX
#include "services/trash/trashscan.h"
#endif

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlDatabase>
#include <QtEndian>

#include <cstdio>

// quorvex-bench-services fill-reports FOLDER COUNT   a database with that many reports
// quorvex-bench-services read-reports FOLDER TIMES   reads its first page of 100
// quorvex-bench-services fill-bin ROOT COUNT         a Recycle Bin of Windows with that many items
// quorvex-bench-services scan-bin ROOT TIMES         scans all of it
// quorvex-bench-services fill-trash, scan-trash      the same for a Trash folder of the desktop, not on
// Windows
//
// The readers run once more before the TIMES counted runs and print the total seconds of the latter, without
// the start of the program, which would hide the difference. With 0 TIMES only the first run is left. Exit
// code 0 when all runs succeeded.

using namespace Qt::StringLiterals;

namespace {
constexpr int PageSize = 100;
constexpr int ItemsOfReport = 20;

WipeReport reportNumber(int number)
{
    WipeReport report;
    report.certificateId = u"QVX-2026-01-01-%1"_s.arg(number);
    // The stored order differs from the order of the times.
    report.startTime =
        QDateTime(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC).addSecs(number * 7919LL % 100003 * 60);
    report.endTime = report.startTime.addSecs(600);
    report.status = WipeStatus::Completed;
    report.disk.model = u"Practice drive"_s;
    report.disk.serialNumber = u"SN%1"_s.arg(number);
    for (int i = 0; i < ItemsOfReport; ++i)
        report.wipeItems.append(
            {u"/data/letters/report %1 of %2.odt"_s.arg(i).arg(number), false, quint64(i) << 12, true});
    return report;
}

bool fillReports(const QString &folder, int count)
{
    ReportDatabase &database = ReportDatabase::instance();
    if (!database.initialize(folder))
        return false;
    // A single transaction, because each transaction waits for the medium.
    QSqlDatabase connection = QSqlDatabase::database();
    bool isDone = connection.transaction();
    for (int i = 0; isDone && i < count; ++i)
        isDone = database.saveReport(reportNumber(i));
    isDone = isDone && connection.commit();
    database.close();
    return isDone;
}

// Prints the total seconds of the counted runs. One uncounted run comes first.
template <typename Work>
bool timed(int times, Work work)
{
    if (!work())
        return false;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < times; ++i) {
        if (!work())
            return false;
    }
    std::printf("seconds %.6f\n", double(clock.nsecsElapsed()) / 1e9);
    return true;
}

bool readReports(const QString &folder, int times)
{
    ReportDatabase &database = ReportDatabase::instance();
    const bool isDone = database.initialize(folder) && timed(times, [&database] {
                            return database.getReports(PageSize, 0).size() == PageSize;
                        });
    database.close();
    return isDone;
}

QByteArray infoFile(const QString &path, quint64 size)
{
    constexpr qsizetype PathAt = 28;
    const QString stored = path + QChar::Null;
    QByteArray file(PathAt + 2 * stored.size(), '\0');
    qToLittleEndian<quint64>(2, file.data());
    qToLittleEndian<quint64>(size, file.data() + 8);
    qToLittleEndian<quint32>(static_cast<quint32>(stored.size()), file.data() + 24);
    qToLittleEndian<char16_t>(stored.utf16(), stored.size(), file.data() + PathAt);
    return file;
}

bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

bool fillBin(const QString &root, int count)
{
    const QString bin = root + u"/$Recycle.Bin/S-1-5-21-1-2-3-1001/"_s;
    bool isDone = QDir().mkpath(bin);
    for (int i = 0; isDone && i < count; ++i) {
        const QString name = u"%1.docx"_s.arg(i, 6, 36, QChar(u'0')).toUpper();
        const QByteArray data(i % 512 + 1, 'x');
        const QString path = u"C:\\Users\\someone\\Documents\\Letter number %1.docx"_s.arg(i);
        isDone = writeFile(bin + u"$I"_s + name, infoFile(path, quint64(data.size()))) &&
                 writeFile(bin + u"$R"_s + name, data);
    }
    return isDone;
}

bool scanBin(const QString &root, int times)
{
    return timed(times, [&root] { return RecycleBinScanner().scanRoots({root}).fileCount > 0; });
}

#ifdef Q_OS_UNIX
bool fillTrash(const QString &folder, int count)
{
    bool isDone = QDir().mkpath(folder + u"/files"_s) && QDir().mkpath(folder + u"/info"_s);
    for (int i = 0; isDone && i < count; ++i) {
        const QString name = u"Letter number %1.odt"_s.arg(i);
        const QByteArray record = "[Trash Info]\nPath=/data/letters/Letter%20number%20" +
                                  QByteArray::number(i) + ".odt\nDeletionDate=2026-01-02T03:04:05\n";
        isDone = writeFile(folder + u"/info/"_s + name + u".trashinfo"_s, record) &&
                 writeFile(folder + u"/files/"_s + name, QByteArray(i % 512 + 1, 'x'));
    }
    return isDone;
}

bool scanTrashFolder(const QString &folder, int times)
{
    return timed(times, [&folder] {
        RecycleBinInfo found;
        scanTrash({folder, folder, {}}, found);
        return found.fileCount > 0;
    });
}
#endif
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QStringList arguments = QCoreApplication::arguments();
    const QString work = arguments.value(1);
    const QString folder = arguments.value(2);
    const int number = arguments.value(3).toInt();
    if (folder.isEmpty() || number < 0)
        return 2;
    if (work == u"fill-reports")
        return fillReports(folder, number) ? 0 : 1;
    if (work == u"read-reports")
        return readReports(folder, number) ? 0 : 1;
    if (work == u"fill-bin")
        return fillBin(folder, number) ? 0 : 1;
    if (work == u"scan-bin")
        return scanBin(folder, number) ? 0 : 1;
#ifdef Q_OS_UNIX
    if (work == u"fill-trash")
        return fillTrash(folder, number) ? 0 : 1;
    if (work == u"scan-trash")
        return scanTrashFolder(folder, number) ? 0 : 1;
#endif
    return 2;
}
