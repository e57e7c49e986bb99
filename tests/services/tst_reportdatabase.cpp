#include "model/wipereport.h"
#include "services/reportdatabase.h"
#include "support/filledreport.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "support/userdata.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSemaphore>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

#include <atomic>
#include <cstdio>
#include <limits>
#include <memory>
#include <thread>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
constexpr int NoLimit = 1000000;

// The exit codes of the child process; they differ from those of a crash or of a sanitizer.
enum ChildExit { Done = 0, WrongUse = 41, WrongFolder = 42, NotStored = 43 };

ReportDatabase &database()
{
    return ReportDatabase::instance();
}

QString databasePath()
{
    return userdata::folder() + u"/quorvex.db"_s;
}

// Another program's connection to the file. Created and used on one thread.
class OtherProgram
{
public:
    explicit OtherProgram(const QString &name = u"other program"_s)
        : m_name(name)
    {
        m_db = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
        m_db.setDatabaseName(databasePath());
        m_db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
        if (!m_db.open())
            qCritical() << "cannot open the file as another program:" << m_db.lastError();
    }
    ~OtherProgram()
    {
        m_db.close();
        m_db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    bool execute(const QString &statement, const QVariantList &values = {})
    {
        QSqlQuery query(m_db);
        bool executed = query.prepare(statement);
        for (const QVariant &value : values)
            query.addBindValue(value);
        executed = executed && query.exec();
        if (!executed)
            qCritical() << statement.left(60) << query.lastError();
        return executed;
    }
    // The first column of all rows.
    QVariantList column(const QString &statement)
    {
        QVariantList values;
        QSqlQuery query(m_db);
        if (!query.exec(statement))
            qCritical() << statement << query.lastError();
        while (query.next())
            values.append(query.value(0));
        return values;
    }
    QVariant value(const QString &statement) { return column(statement).value(0); }
    // Inserts a row as an older or damaged program would have left it.
    bool insertRaw(const QString &id, const QVariant &json)
    {
        return execute(u"INSERT INTO wipe_reports (certificate_id, operation_type, method_name, method_type,"
                       " pass_count, start_time, status, report_json) VALUES (?, 3, 'm', 0, 1, ?, 3, ?)"_s,
                       {id, u"2026-03-05T14:07:09"_s, json});
    }

private:
    QString m_name;
    QSqlDatabase m_db;
};

// Runs a statement on the connection that the database itself uses.
QVariant onOwnConnection(const QString &statement)
{
    QSqlQuery query(QSqlDatabase::database());
    if (!query.exec(statement))
        return query.lastError().text();
    return query.next() ? query.value(0) : QVariant();
}

WipeReport reportOf(const QString &id, const QDateTime &start = QDateTime(QDate(2026, 3, 5), QTime(14, 0)))
{
    WipeReport report = filledReport();
    report.certificateId = id;
    report.startTime = start;
    return report;
}

// The report after it was stored and read; items and most of the disk are not read.
WipeReport readBack(const WipeReport &report)
{
    return WipeReport::fromJson(report.toJson());
}

QStringList idsOf(const QList<WipeReport> &reports)
{
    QStringList ids;
    for (const WipeReport &report : reports)
        ids.append(report.certificateId);
    return ids;
}

OutcomeRecord partialOutcome()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.note({ShortfallKind::VolumeInUse, u"E: \U0001F4BE"_s, 4096, 2});
    outcome.note({ShortfallKind::NotReadBack});
    return outcome;
}

// A report with its number in every part, large enough to fill many pages of the file.
WipeReport numberedReport(int number)
{
    WipeReport report = reportOf(u"QVX-%1"_s.arg(number));
    report.totalBytes = quint64(number);
    report.errorMessage = QString::number(number).repeated(20000);
    return report;
}

void tell(const QString &word)
{
    std::printf("%s\n", qPrintable(word));
    std::fflush(stdout);
}

// Stores reports until the process is killed.
int storeForEver(int number)
{
    while (true) {
        if (!database().saveReport(numberedReport(number)))
            return NotStored;
        tell(QString::number(number++));
    }
}

// A transaction that has written half of its data to the file and then waits.
int stopInTransaction()
{
    onOwnConnection(u"PRAGMA cache_size = 4"_s);
    onOwnConnection(u"BEGIN"_s);
    for (int number = 1000; number < 1010; ++number) {
        if (!database().saveReport(numberedReport(number)))
            return NotStored;
    }
    tell(u"within"_s);
    std::getchar(); // no input ever comes
    return WrongUse;
}

int runChild(const QStringList &arguments)
{
    userdata::useProgramIdentity();
    if (!userdata::isOfTests())
        return WrongFolder;
    if (!database().initialize())
        return NotStored;
    const QString what = arguments.value(0);
    if (what == u"for-ever")
        return storeForEver(arguments.value(1).toInt());
    if (what == u"within")
        return stopInTransaction();
    if (what == u"one")
        return database().saveReport(reportOf(arguments.value(1))) ? Done : NotStored;
    return WrongUse;
}

// One run of this program in its own process, with the same data folder.
class Run
{
public:
    explicit Run(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(),
                        QStringList{u"tst_reportdatabase"_s, u"--run"_s} + arguments);
    }
    ~Run()
    {
        if (m_process.state() != QProcess::NotRunning)
            kill();
    }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    // The next line of output; empty when the process has ended.
    QString line()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(60000))
                return {};
        }
        return QString::fromLatin1(m_process.readLine()).trimmed();
    }
    bool kill()
    {
        m_process.kill();
        return m_process.waitForFinished(60000);
    }
    QStringList rest()
    {
        QStringList lines = QString::fromLatin1(m_process.readAllStandardOutput()).split(u'\n');
        lines.removeLast(); // cut by the kill, or empty
        for (QString &line : lines)
            line = line.trimmed();
        return lines;
    }
    int exitCode()
    {
        if (!m_process.waitForFinished(60000) || m_process.exitStatus() != QProcess::NormalExit)
            return -1;
        return m_process.exitCode();
    }

private:
    QProcess m_process;
};

// A small tmpfs mounted over the data folder, for tests that need a separate volume.
class TmpfsVolume
{
public:
    static QString unavailableReason()
    {
#ifdef Q_OS_LINUX
        return ::geteuid() == 0 ? QString() : u"SKIPPED: mounting a volume needs root"_s;
#else
        return u"SKIPPED: volumes in memory are mounted on Linux only"_s;
#endif
    }
    TmpfsVolume(const QString &folder, const QString &options)
        : m_folder(folder)
        , m_mounted(QDir().mkpath(folder) &&
                    mount({u"-t"_s, u"tmpfs"_s, u"-o"_s, options, u"tmpfs"_s, folder}))
    {}
    ~TmpfsVolume()
    {
        database().close();
        if (m_mounted && QProcess::execute(u"umount"_s, {m_folder}) != 0)
            QTest::qFail("the volume stays mounted", __FILE__, __LINE__);
    }
    TmpfsVolume(const TmpfsVolume &) = delete;
    TmpfsVolume &operator=(const TmpfsVolume &) = delete;

    bool isMounted() const
    {
        return m_mounted;
    }
    bool remount(const QString &options)
    {
        return mount({u"-o"_s, u"remount,"_s + options, m_folder});
    }

private:
    static bool mount(const QStringList &arguments)
    {
        return QProcess::execute(u"mount"_s, arguments) == 0;
    }

    QString m_folder;
    bool m_mounted;
};
} // namespace

class tst_ReportDatabase : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void thereIsOneInstance();
    void nothingWorksBeforeInitialize();
    void initializeMakesFolderFileTableAndIndexes();
    void initializeTwiceOpensTheFileOnce();
    void theConnectionIsTheDefaultOne();
    void aFileOfAnEarlierRunIsReused();
    void aTableWithOtherColumnsStaysAndRefusesReports();

    void everyColumnHoldsItsField();
    void emptyFieldsAreStoredAsEmptyText();
    void numbersOf64BitsStayNumbers();
    void aReportComesBack();
    void savingTwiceLeavesOneRow();
    void savingAgainReplacesTheRow();

    void pagesComeLatestStartFirst();
    void pagesAreCutByLimitAndOffset_data();
    void pagesAreCutByLimitAndOffset();
    void reportsOfOneStartAllAppear();
    void anUnknownIdGivesAFreshReport();
    void deletingRemovesThatReportOnly();
    void deletingWhatIsNotThereSucceeds();
    void theBytesOfADeletedReportLeaveTheFile();

    void anOutcomeIsStoredWithItsReport();
    void theAnnexStandsBesideTheRecord();
    void anOutcomeIsReplacedWithItsReport();
    void anOutcomeGoesWithItsReport();
    void aReportWithoutAnOutcomeHasNone();
    void aFileOfAnEarlierVersionGetsOutcomes();
    void aDamagedOutcomeIsUnknown();
    void reportAndOutcomeAreStoredTogetherOrNot();
    void reportAndOutcomeAreDeletedTogetherOrNot();
    void storingWithinATransactionCommitsNothing();
    void anEarlierFileOnAReadOnlyVolumeIsRead();

    void idsAreNeverTakenForStatements_data();
    void idsAreNeverTakenForStatements();
    void anyTextComesBack_data();
    void anyTextComesBack();
    void damagedJsonReadsAsAFreshReport_data();
    void damagedJsonReadsAsAFreshReport();
    void jsonOfAnotherShapeReadsAsEmptyFields_data();
    void jsonOfAnotherShapeReadsAsEmptyFields();
    void numbersInPlaceOfTextReadAsZero();

    void aKilledProgramLeavesWholeReportsOnly();
    void aKillWithinATransactionLeavesNothingOfIt();
    void anOrdinaryEndLeavesOneFile();
    void aSecondProgramWaits_data();
    void aSecondProgramWaits();
    void callsWaitTenSeconds();

    void aFileThatIsNoDatabaseIsRefused_data();
    void aFileThatIsNoDatabaseIsRefused();
    void aFolderInPlaceOfTheFileIsRefused();
    void aFileInPlaceOfTheFolderIsRefused();
    void aLinkIsNotFollowed_data();
    void aLinkIsNotFollowed();
    void aFileThatIsHeldIsOpenedLater();
    void idsAreCountedByTheirBeginning();
    void aReadOnlyFileIsRefused();
    void onAReadOnlyVolumeReportsAreReadButNotStored();
    void onAReadOnlyVolumeNoFileIsMade();
    void aFullFileRefusesReportsAndKeepsTheRest();
    void aFullVolumeRefusesReportsAndKeepsTheRest();
    void onAFullVolumeNoDatabaseIsMade();
    void onlyTheOwnerReadsTheFile();
    void onlyTheOwnerReadsAFileThatWasThere();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_ReportDatabase::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    userdata::moveTo(m_dir->path());
    // The user's own reports are not touched.
    QVERIFY(userdata::isOfTests());
    userdata::clear();
    QVERIFY(!QFileInfo::exists(userdata::folder()));
}

void tst_ReportDatabase::cleanup()
{
    database().close();
#ifdef Q_OS_WIN
    QVERIFY(QDir(userdata::folder()).removeRecursively());
#endif
    QVERIFY(m_dir->remove());
}

void tst_ReportDatabase::thereIsOneInstance()
{
    QCOMPARE(&ReportDatabase::instance(), &ReportDatabase::instance());
}

void tst_ReportDatabase::nothingWorksBeforeInitialize()
{
    const WipeReport report = filledReport();
    QVERIFY(!database().saveReport(report));
    QCOMPARE(database().lastError(), u"数据库未初始化"_s);
    QVERIFY(database().getReports(NoLimit, 0).isEmpty());
    QVERIFY(database().getReport(report.certificateId).certificateId != report.certificateId);
    QVERIFY(!database().deleteReport(report.certificateId));
    QCOMPARE(database().lastError(), u"数据库未初始化"_s);
    QVERIFY(!QFileInfo::exists(userdata::folder()));
}

void tst_ReportDatabase::initializeMakesFolderFileTableAndIndexes()
{
    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
    OtherProgram other;
    QCOMPARE(
        other.column(u"SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'"_s),
        (QVariantList{u"wipe_reports"_s, u"report_annex"_s}));
    const QString columns =
        u"id INTEGER PRIMARY KEY AUTOINCREMENT,|certificate_id TEXT UNIQUE NOT NULL,|"
        "operation_type INTEGER NOT NULL,|method_name TEXT NOT NULL,|method_type INTEGER NOT NULL,|"
        "pass_count INTEGER NOT NULL,|start_time TEXT NOT NULL,|end_time TEXT,|status INTEGER NOT NULL,|"
        "disk_model TEXT,|disk_serial TEXT,|disk_size INTEGER,|total_sectors INTEGER,|"
        "wiped_sectors INTEGER,|bytes_written INTEGER,|bad_sectors INTEGER,|verification_passed INTEGER,|"
        "verification_method TEXT,|verification_sample_size INTEGER,|data_hash TEXT,|operator_name TEXT,|"
        "computer_name TEXT,|error_message TEXT,|report_json TEXT,|"
        "created_at TEXT DEFAULT CURRENT_TIMESTAMP"_s;
    QStringList lines{u"CREATE TABLE wipe_reports ("_s};
    for (const QString &column : columns.split(u'|'))
        lines.append(QString(12, u' ') + column);
    lines.append(u"        )"_s);
    QCOMPARE(other.value(u"SELECT sql FROM sqlite_master WHERE name = 'wipe_reports'"_s).toString(),
             lines.join(u'\n'));
    QCOMPARE(other.column(
                 u"SELECT sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL ORDER BY sql"_s),
             (QVariantList{u"CREATE INDEX idx_certificate_id ON wipe_reports(certificate_id)"_s,
                           u"CREATE INDEX idx_start_time ON wipe_reports(start_time)"_s}));
}

void tst_ReportDatabase::initializeTwiceOpensTheFileOnce()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(filledReport()));
    onOwnConnection(u"CREATE TEMP TABLE of_this_connection (x)"_s);
    QVERIFY(database().initialize());
    QCOMPARE(onOwnConnection(u"SELECT count(*) FROM of_this_connection"_s), QVariant(0));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 1);
}

void tst_ReportDatabase::theConnectionIsTheDefaultOne()
{
    QVERIFY(!QSqlDatabase::contains());
    QVERIFY(database().initialize());
    QVERIFY(QSqlDatabase::contains());
    const QSqlDatabase connection = QSqlDatabase::database();
    QCOMPARE(connection.driverName(), u"QSQLITE"_s);
    QCOMPARE(connection.databaseName(), databasePath());
    QVERIFY(connection.isOpen());
}

void tst_ReportDatabase::aFileOfAnEarlierRunIsReused()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"first"_s)));
    database().close();
    QVERIFY(!QSqlDatabase::contains());
    QVERIFY(!database().saveReport(reportOf(u"between"_s)));
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"second"_s)));
    const QStringList ids = idsOf(database().getReports(NoLimit, 0));
    QCOMPARE(QSet<QString>(ids.begin(), ids.end()), (QSet<QString>{u"first"_s, u"second"_s}));
}

void tst_ReportDatabase::aTableWithOtherColumnsStaysAndRefusesReports()
{
    QVERIFY(QDir().mkpath(userdata::folder()));
    const QString table =
        u"CREATE TABLE wipe_reports (certificate_id TEXT, start_time TEXT, report_json TEXT)"_s;
    {
        OtherProgram other;
        QVERIFY(other.execute(table));
        QVERIFY(other.execute(u"INSERT INTO wipe_reports VALUES ('QVX-2026-0305-4821', '2026', ?)"_s,
                              {QString::fromUtf8(filledReport().toJson())}));
    }
    QVERIFY(database().initialize());
    QCOMPARE(onOwnConnection(u"SELECT sql FROM sqlite_master WHERE type = 'table'"_s).toString(), table);
    QCOMPARE(database().getReports(NoLimit, 0), QList<WipeReport>{readBack(filledReport())});
    QVERIFY(!database().saveReport(filledReport()));
    QVERIFY2(database().lastError().contains(u"operation_type"_s), qPrintable(database().lastError()));
}

void tst_ReportDatabase::everyColumnHoldsItsField()
{
    QVERIFY(database().initialize());
    const WipeReport report = filledReport();
    QVERIFY2(database().saveReport(report), qPrintable(database().lastError()));
    const QList<std::pair<QString, QVariant>> columns{
        {u"certificate_id"_s, u"QVX-2026-0305-4821"_s},
        {u"operation_type"_s, 0},
        {u"method_name"_s, report.method.name},
        {u"method_type"_s, 2},
        {u"pass_count"_s, 7},
        {u"start_time"_s, u"2026-03-05T14:07:09"_s},
        {u"end_time"_s, u"2026-03-05T16:00:00"_s},
        {u"status"_s, 3},
        {u"disk_model"_s, u"Contoso \"Fast\" SSD"_s},
        {u"disk_serial"_s, u"S\\1\t2"_s},
        {u"disk_size"_s, 1000204886016LL},
        {u"total_sectors"_s, 1953525168},
        {u"wiped_sectors"_s, 1953525160},
        {u"bytes_written"_s, 7001434202112LL},
        {u"bad_sectors"_s, 8},
        {u"verification_passed"_s, 1},
        {u"verification_method"_s, u"random sampling, 1000 sectors"_s},
        {u"verification_sample_size"_s, 999},
        {u"data_hash"_s, u"e3b0c442"_s},
        {u"operator_name"_s, u"anna"_s},
        {u"computer_name"_s, u"BENCH-7"_s},
        {u"error_message"_s, u"line 1\nline 2"_s},
        {u"report_json"_s, QString::fromUtf8(report.toJson())},
    };
    OtherProgram other;
    for (const auto &[name, value] : columns) {
        const QString type = value.typeId() == QMetaType::QString ? u"text"_s : u"integer"_s;
        QCOMPARE(other.value(u"SELECT typeof(%1) FROM wipe_reports"_s.arg(name)).toString(), type);
        QCOMPARE(other.value(u"SELECT %1 FROM wipe_reports"_s.arg(name)).toString(), value.toString());
    }
    QCOMPARE(other.value(u"SELECT id FROM wipe_reports"_s), QVariant(1));
    QCOMPARE(other.value(u"SELECT created_at LIKE '20__-__-__ __:__:__' FROM wipe_reports"_s), QVariant(1));
}

void tst_ReportDatabase::emptyFieldsAreStoredAsEmptyText()
{
    QVERIFY(database().initialize());
    WipeReport report;
    report.certificateId = QString();
    report.computerName = QString();
    report.startTime = QDateTime();
    QVERIFY2(database().saveReport(report), qPrintable(database().lastError()));
    OtherProgram other;
    for (const QString &name :
         {u"certificate_id"_s, u"start_time"_s, u"end_time"_s, u"disk_model"_s, u"disk_serial"_s,
          u"verification_method"_s, u"data_hash"_s, u"computer_name"_s, u"error_message"_s})
        QCOMPARE(other.value(u"SELECT typeof(%1) || length(%1) FROM wipe_reports"_s.arg(name)), u"text0"_s);
    QCOMPARE(other.value(u"SELECT disk_size FROM wipe_reports"_s), QVariant(0));
    QCOMPARE(other.value(u"SELECT verification_passed FROM wipe_reports"_s), QVariant(0));
    QCOMPARE(database().getReport({}), readBack(report));
    QVERIFY(database().deleteReport({}));
    QVERIFY(database().getReports(NoLimit, 0).isEmpty());
}

void tst_ReportDatabase::numbersOf64BitsStayNumbers()
{
    QVERIFY(database().initialize());
    WipeReport report = filledReport();
    report.disk.sizeBytes = std::numeric_limits<qint64>::max();
    report.totalSectors = quint64(std::numeric_limits<qint64>::max());
    report.wipedSectors = (1ULL << 53) + 1;
    report.bytesWritten = std::numeric_limits<quint64>::max();
    QVERIFY(database().saveReport(report));
    OtherProgram other;
    const QString row = u"SELECT typeof(%1) || ' ' || %1 FROM wipe_reports"_s;
    QCOMPARE(other.value(row.arg(u"disk_size"_s)), u"integer 9223372036854775807"_s);
    QCOMPARE(other.value(row.arg(u"total_sectors"_s)), u"integer 9223372036854775807"_s);
    QCOMPARE(other.value(row.arg(u"wiped_sectors"_s)), u"integer 9007199254740993"_s);
    // All bits are stored; the column is signed.
    QCOMPARE(other.value(row.arg(u"bytes_written"_s)), u"integer -1"_s);
    const WipeReport back = database().getReport(report.certificateId);
    QCOMPARE(back.bytesWritten, std::numeric_limits<quint64>::max());
    QCOMPARE(back.disk.sizeBytes, std::numeric_limits<qint64>::max());
}

void tst_ReportDatabase::aReportComesBack()
{
    QVERIFY(database().initialize());
    const WipeReport report = filledReport();
    QVERIFY(database().saveReport(report));
    const WipeReport back = database().getReport(report.certificateId);
    QCOMPARE(back, readBack(report));
    QCOMPARE(back.disk.model, report.disk.model);
    QCOMPARE(back.totalBytes, report.totalBytes);
    QVERIFY(back.wipeItems.isEmpty());
    QCOMPARE(database().getReports(NoLimit, 0), QList<WipeReport>{back});
}

void tst_ReportDatabase::savingTwiceLeavesOneRow()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(filledReport()));
    QVERIFY(database().saveReport(filledReport()));
    QCOMPARE(onOwnConnection(u"SELECT count(*) FROM wipe_reports"_s), QVariant(1));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 1);
}

void tst_ReportDatabase::savingAgainReplacesTheRow()
{
    QVERIFY(database().initialize());
    WipeReport report = filledReport();
    QVERIFY(database().saveReport(report));
    report.status = WipeStatus::Failed;
    report.errorMessage = u"later"_s;
    QVERIFY(database().saveReport(report));
    QCOMPARE(database().getReport(report.certificateId), readBack(report));
    QCOMPARE(onOwnConnection(u"SELECT id FROM wipe_reports"_s), QVariant(2));
    QCOMPARE(onOwnConnection(u"SELECT status FROM wipe_reports"_s), QVariant(4));
}

void tst_ReportDatabase::pagesComeLatestStartFirst()
{
    QVERIFY(database().initialize());
    const QDateTime noon(QDate(2026, 3, 5), QTime(12, 0));
    QVERIFY(database().saveReport(reportOf(u"noon"_s, noon)));
    QVERIFY(database().saveReport(reportOf(u"a year before"_s, noon.addYears(-1))));
    QVERIFY(database().saveReport(reportOf(u"a second later"_s, noon.addSecs(1))));
    QVERIFY(database().saveReport(reportOf(u"a month later"_s, noon.addMonths(7))));
    QVERIFY(database().saveReport(reportOf(u"never started"_s, QDateTime())));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)),
             (QStringList{u"a month later"_s, u"a second later"_s, u"noon"_s, u"a year before"_s,
                          u"never started"_s}));
}

void tst_ReportDatabase::pagesAreCutByLimitAndOffset_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("first") << 2 << 0 << QStringList{u"4"_s, u"3"_s};
    QTest::newRow("second") << 2 << 2 << QStringList{u"2"_s, u"1"_s};
    QTest::newRow("the last, not full") << 2 << 4 << QStringList{u"0"_s};
    QTest::newRow("offset at the end") << 2 << 5 << QStringList();
    QTest::newRow("offset beyond the end") << 10 << 1000 << QStringList();
    QTest::newRow("nothing") << 0 << 0 << QStringList();
    QTest::newRow("no limit") << -1 << 3 << QStringList{u"1"_s, u"0"_s};
    QTest::newRow("negative offset") << 1 << -7 << QStringList{u"4"_s};
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 4 << QStringList{u"0"_s};
}

void tst_ReportDatabase::pagesAreCutByLimitAndOffset()
{
    QFETCH(int, limit);
    QFETCH(int, offset);
    QFETCH(QStringList, ids);
    QVERIFY(database().initialize());
    const QDateTime start(QDate(2026, 3, 5), QTime(12, 0));
    for (int number = 0; number < 5; ++number)
        QVERIFY(database().saveReport(reportOf(QString::number(number), start.addDays(number))));
    QCOMPARE(idsOf(database().getReports(limit, offset)), ids);
}

void tst_ReportDatabase::reportsOfOneStartAllAppear()
{
    QVERIFY(database().initialize());
    for (const QString &id : {u"b"_s, u"a"_s, u"c"_s})
        QVERIFY(database().saveReport(reportOf(id)));
    // In SQLite's own order.
    OtherProgram other;
    QStringList order;
    for (const QVariant &id :
         other.column(u"SELECT certificate_id FROM wipe_reports ORDER BY start_time DESC"_s))
        order.append(id.toString());
    QCOMPARE(order.size(), 3);
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), order);
}

void tst_ReportDatabase::anUnknownIdGivesAFreshReport()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(filledReport()));
    const WipeReport report = database().getReport(u"QVX-2026-0305-4822"_s);
    QVERIFY(report.certificateId.startsWith(u"QVX-"_s));
    WipeReport fresh;
    fresh.certificateId = report.certificateId;
    QCOMPARE(report, fresh);
}

void tst_ReportDatabase::deletingRemovesThatReportOnly()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s)));
    QVERIFY(database().saveReport(reportOf(u"two"_s)));
    QVERIFY(database().deleteReport(u"one"_s));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"two"_s});
}

void tst_ReportDatabase::deletingWhatIsNotThereSucceeds()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s)));
    QVERIFY(database().deleteReport(u"two"_s));
    QVERIFY(database().deleteReport(u"%"_s));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 1);
}

void tst_ReportDatabase::theBytesOfADeletedReportLeaveTheFile()
{
    QVERIFY(database().initialize());
    WipeReport report = reportOf(u"one"_s);
    report.errorMessage = u"7f3a-marker "_s.repeated(5000);
    const auto markers = [] { return contentOf(databasePath()).count("7f3a-marker"); };
    QVERIFY(database().saveReport(report));
    QVERIFY(database().saveReport(reportOf(u"two"_s)));
    QVERIFY(markers() >= 9000); // in a column and in the JSON text, except those across two pages
    QVERIFY(database().deleteReport(u"one"_s));
    QCOMPARE(markers(), 0);
    QCOMPARE(QDir(userdata::folder()).entryList(QDir::Files), QStringList{u"quorvex.db"_s});
}

void tst_ReportDatabase::anOutcomeIsStoredWithItsReport()
{
    QVERIFY(!database().outcome(u"one"_s));
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    QVERIFY(database().saveReport(reportOf(u"two"_s), OutcomeRecord(JobOutcome::Complete)));
    QCOMPARE(database().outcome(u"one"_s), partialOutcome());
    QCOMPARE(database().outcome(u"two"_s), OutcomeRecord(JobOutcome::Complete));
    QVERIFY(!database().outcome(u"three"_s));
    database().close();
    QVERIFY(!database().outcome(u"one"_s));
    QVERIFY(database().initialize());
    QCOMPARE(database().outcome(u"one"_s), partialOutcome());
}

void tst_ReportDatabase::theAnnexStandsBesideTheRecord()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    OtherProgram other;
    QCOMPARE(other.value(u"SELECT certificate_id FROM report_annex"_s).toString(), u"one"_s);
    QCOMPARE(other.value(u"SELECT schema_version FROM report_annex"_s).toInt(), 1);
    QCOMPARE(other.value(u"SELECT annex_json FROM report_annex"_s).toString().toUtf8(),
             partialOutcome().toJson());
    // The stored report is byte for byte the same as without an outcome.
    QCOMPARE(other.value(u"SELECT report_json FROM wipe_reports"_s).toString().toUtf8(),
             reportOf(u"one"_s).toJson());
}

void tst_ReportDatabase::anOutcomeIsReplacedWithItsReport()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    QVERIFY(database().saveReport(reportOf(u"one"_s), OutcomeRecord(JobOutcome::Cancelled)));
    QCOMPARE(database().outcome(u"one"_s), OutcomeRecord(JobOutcome::Cancelled));
    // The outcome of an earlier job does not apply to this one.
    QVERIFY(database().saveReport(reportOf(u"one"_s)));
    QVERIFY(!database().outcome(u"one"_s));
}

void tst_ReportDatabase::anOutcomeGoesWithItsReport()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    QVERIFY(database().saveReport(reportOf(u"two"_s), partialOutcome()));
    QVERIFY(database().deleteReport(u"one"_s));
    QVERIFY(!database().outcome(u"one"_s));
    QVERIFY(database().outcome(u"two"_s));
    QCOMPARE(onOwnConnection(u"SELECT count(*) FROM report_annex"_s), QVariant(1));
}

void tst_ReportDatabase::aReportWithoutAnOutcomeHasNone()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s)));
    QVERIFY(!database().outcome(u"one"_s));
    QCOMPARE(onOwnConnection(u"SELECT count(*) FROM report_annex"_s), QVariant(0));
}

void tst_ReportDatabase::aFileOfAnEarlierVersionGetsOutcomes()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"old"_s)));
    onOwnConnection(u"DROP TABLE report_annex"_s);
    QVERIFY(!database().outcome(u"old"_s));
    database().close();

    QVERIFY(database().initialize());
    QCOMPARE(onOwnConnection(u"SELECT count(*) FROM report_annex"_s), QVariant(0));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"old"_s});
    QVERIFY(database().saveReport(reportOf(u"new"_s), partialOutcome()));
    QCOMPARE(database().outcome(u"new"_s), partialOutcome());
    QVERIFY(!database().outcome(u"old"_s));
    // The table may also vanish while the database is open.
    onOwnConnection(u"DROP TABLE report_annex"_s);
    QVERIFY(database().saveReport(reportOf(u"newer"_s), partialOutcome()));
    onOwnConnection(u"DROP TABLE report_annex"_s);
    QVERIFY(database().deleteReport(u"old"_s));
}

void tst_ReportDatabase::aDamagedOutcomeIsUnknown()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    for (const QString &text : {u""_s, u"{}"_s, u"[1]"_s, u"{\"schemaVersion\":1,\"outcome\":\"comp"_s}) {
        OtherProgram other;
        QVERIFY(other.execute(u"UPDATE report_annex SET annex_json = ?"_s, {text}));
        QVERIFY2(!database().outcome(u"one"_s), qPrintable(text));
    }
}

void tst_ReportDatabase::reportAndOutcomeAreStoredTogetherOrNot()
{
    QVERIFY(database().initialize());
    onOwnConnection(u"CREATE TRIGGER refuse BEFORE INSERT ON report_annex BEGIN "
                    "SELECT RAISE(ABORT, 'refused for a test'); END"_s);
    QVERIFY(!database().saveReport(reportOf(u"one"_s), partialOutcome()));
    QVERIFY2(database().lastError().contains(u"refused for a test"_s), qPrintable(database().lastError()));
    QVERIFY(database().getReports(NoLimit, 0).isEmpty());
    onOwnConnection(u"DROP TRIGGER refuse"_s);
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    QCOMPARE(database().outcome(u"one"_s), partialOutcome());
}

void tst_ReportDatabase::reportAndOutcomeAreDeletedTogetherOrNot()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    onOwnConnection(u"CREATE TRIGGER refuse BEFORE DELETE ON report_annex BEGIN "
                    "SELECT RAISE(ABORT, 'refused for a test'); END"_s);
    QVERIFY(!database().deleteReport(u"one"_s));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"one"_s});
    QCOMPARE(database().outcome(u"one"_s), partialOutcome());
    // The transaction has ended.
    onOwnConnection(u"DROP TRIGGER refuse"_s);
    QVERIFY(database().deleteReport(u"one"_s));
    QVERIFY(database().getReports(NoLimit, 0).isEmpty());
}

void tst_ReportDatabase::storingWithinATransactionCommitsNothing()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"one"_s), partialOutcome()));
    onOwnConnection(u"BEGIN"_s);
    QVERIFY(database().saveReport(reportOf(u"two"_s), partialOutcome()));
    onOwnConnection(u"ROLLBACK"_s);
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"one"_s});
    QVERIFY(!database().outcome(u"two"_s));
}

void tst_ReportDatabase::anEarlierFileOnAReadOnlyVolumeIsRead()
{
    if (const QString reason = TmpfsVolume::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    TmpfsVolume volume(userdata::folder(), u"size=4m"_s);
    QVERIFY(volume.isMounted());
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"old"_s)));
    onOwnConnection(u"DROP TABLE report_annex"_s);
    database().close();
    QVERIFY(volume.remount(u"ro"_s));
    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"old"_s});
    QVERIFY(!database().outcome(u"old"_s));
}

void tst_ReportDatabase::idsAreNeverTakenForStatements_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("quote") << u"QVX-'1'"_s;
    QTest::newRow("statement") << u"x'); DROP TABLE wipe_reports; --"_s;
    QTest::newRow("always true") << u"x' OR '1'='1"_s;
    QTest::newRow("semicolons") << u";;;"_s;
    QTest::newRow("double quote") << u"\"certificate_id\""_s;
    QTest::newRow("place holders") << u"? :1 @id $id %1"_s;
    QTest::newRow("pattern") << u"%_*"_s;
    QTest::newRow("zero character") << u"a"_s + QChar(u'\0') + u"b"_s;
    QTest::newRow("beyond 16 bits") << u"\U0001F4BE \u202e"_s;
    QTest::newRow("long") << QString(1 << 20, u'\'');
}

void tst_ReportDatabase::idsAreNeverTakenForStatements()
{
    QFETCH(QString, id);
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(reportOf(u"other"_s)));
    QVERIFY2(database().saveReport(reportOf(id)), qPrintable(database().lastError()));
    QCOMPARE(database().getReport(id).certificateId, id);
    QCOMPARE(database().getReports(NoLimit, 0).size(), 2);
    QVERIFY(database().deleteReport(id));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"other"_s});
}

void tst_ReportDatabase::anyTextComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("other scripts") << u"\u64e6\u9664 J\u00f6rg \U0001F4BE"_s;
    QTest::newRow("control characters") << u"\t\r\n\x01\x1f\x7f"_s;
    QTest::newRow("zero character") << u"a"_s + QChar(u'\0') + u"b"_s;
    QTest::newRow("quotes") << u"\\\"'\\u0000"_s;
    QTest::newRow("ten million") << QString(10 * 1024 * 1024, u'\u64e6');
}

void tst_ReportDatabase::anyTextComesBack()
{
    QFETCH(QString, text);
    QVERIFY(database().initialize());
    WipeReport report = filledReport();
    report.errorMessage = text;
    report.disk.model = text;
    QVERIFY2(database().saveReport(report), qPrintable(database().lastError()));
    QVERIFY(database().getReport(report.certificateId) == readBack(report));
    QVERIFY(database().getReport(report.certificateId).errorMessage == text);
}

void tst_ReportDatabase::damagedJsonReadsAsAFreshReport_data()
{
    QTest::addColumn<QVariant>("json");
    QByteArray garbage(10 * 1024 * 1024, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : garbage) {
        state = state * 1664525 + 1013904223;
        byte = char(state >> 24);
    }
    QTest::newRow("nothing") << QVariant(QMetaType::fromType<QString>());
    QTest::newRow("empty") << QVariant(u""_s);
    QTest::newRow("cut") << QVariant(QString::fromUtf8(filledReport().toJson().chopped(3)));
    QTest::newRow("ten million garbled characters") << QVariant(QString::fromLatin1(garbage));
    QTest::newRow("ten million bytes that are no text") << QVariant(garbage);
    QTest::newRow("ten million brackets") << QVariant(QString(10 * 1024 * 1024, u'['));
    QTest::newRow("a number") << QVariant(42);
}

void tst_ReportDatabase::damagedJsonReadsAsAFreshReport()
{
    QFETCH(QVariant, json);
    QVERIFY(database().initialize());
    {
        OtherProgram other;
        QVERIFY(other.insertRaw(u"damaged"_s, json));
    }
    QVERIFY(database().saveReport(filledReport()));
    const QList<WipeReport> reports = database().getReports(NoLimit, 0);
    QCOMPARE(reports.size(), 2); // the damaged row is not left out
    QCOMPARE(idsOf(reports).count(u"QVX-2026-0305-4821"_s), 1);
    const WipeReport damaged = database().getReport(u"damaged"_s);
    WipeReport fresh;
    fresh.certificateId = damaged.certificateId;
    QCOMPARE(damaged, fresh);
    QVERIFY(damaged.certificateId.startsWith(u"QVX-"_s));
    QVERIFY(database().deleteReport(u"damaged"_s));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 1);
}

void tst_ReportDatabase::jsonOfAnotherShapeReadsAsEmptyFields_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("empty object") << u"{}"_s;
    QTest::newRow("array") << u"[1, 2, {\"certificateId\": \"x\"}]"_s;
    QTest::newRow("other keys") << u"{\"id\": \"x\", \"CERTIFICATEID\": \"y\"}"_s;
    QTest::newRow("other types") << u"{\"certificateId\": 7, \"status\": \"3\", \"diskInfo\": [],"
                                    " \"startTime\": {}, \"verificationPassed\": \"yes\","
                                    " \"errorMessage\": null, \"totalBytes\": true, \"badSectors\": \"9\"}"_s;
}

void tst_ReportDatabase::jsonOfAnotherShapeReadsAsEmptyFields()
{
    QFETCH(QString, json);
    QVERIFY(database().initialize());
    {
        OtherProgram other;
        QVERIFY(other.insertRaw(u"shape"_s, json));
    }
    const WipeReport report = database().getReport(u"shape"_s);
    QVERIFY(report.certificateId.isEmpty());
    QCOMPARE(report.status, WipeStatus::Pending);
    QVERIFY(!report.startTime.isValid());
    QVERIFY(!report.verificationPassed);
    QCOMPARE(report.totalBytes, 0U);
    QCOMPARE(report.badSectors, 0);
    QVERIFY(report.errorMessage.isEmpty());
    QCOMPARE(database().getReports(NoLimit, 0), QList<WipeReport>{report});
}

void tst_ReportDatabase::numbersInPlaceOfTextReadAsZero()
{
    QVERIFY(database().initialize());
    QJsonObject json = QJsonDocument::fromJson(filledReport().toJson()).object();
    for (const QString &key : {u"totalSectors"_s, u"wipedSectors"_s, u"bytesWritten"_s, u"totalBytes"_s})
        json[key] = 123456789012LL;
    QJsonObject disk = json[u"diskInfo"].toObject();
    disk[u"totalSize"] = 1e300;
    json[u"diskInfo"] = disk;
    {
        OtherProgram other;
        QVERIFY(other.insertRaw(u"numbers"_s, QString::fromUtf8(QJsonDocument(json).toJson())));
    }
    WipeReport expected = readBack(filledReport());
    expected.totalSectors = 0;
    expected.wipedSectors = 0;
    expected.bytesWritten = 0;
    expected.totalBytes = 0;
    expected.disk.sizeBytes = 0;
    QCOMPARE(database().getReport(u"numbers"_s), expected);
}

void tst_ReportDatabase::aKilledProgramLeavesWholeReportsOnly()
{
    int next = 0;
    for (int round = 0; round < 8; ++round) {
        Run run({u"for-ever"_s, QString::number(next)});
        QString last;
        for (int told = 0; told <= round; ++told)
            last = run.line();
        QVERIFY(!last.isEmpty());
        QVERIFY(run.kill());
        const QStringList rest = run.rest();
        const int stored = (rest.isEmpty() ? last : rest.last()).toInt() + 1;

        QVERIFY2(database().initialize(), qPrintable(database().lastError()));
        QCOMPARE(onOwnConnection(u"PRAGMA integrity_check"_s).toString(), u"ok"_s);
        const int rows = onOwnConnection(u"SELECT count(*) FROM wipe_reports"_s).toInt();
        // All reported rows are stored, and at most one whose report was cut off.
        QVERIFY2(rows == stored || rows == stored + 1, qPrintable(u"%1 %2"_s.arg(rows).arg(stored)));
        for (int number = 0; number < rows; ++number) {
            QVERIFY(database().getReport(u"QVX-%1"_s.arg(number)) == readBack(numberedReport(number)));
        }
        next = rows;
        database().close();
    }
}

void tst_ReportDatabase::aKillWithinATransactionLeavesNothingOfIt()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(numberedReport(1)));
    database().close();
    const qint64 size = QFileInfo(databasePath()).size();
    Run run({u"within"_s});
    QCOMPARE(run.line(), u"within"_s);
    QVERIFY(run.kill());
    // Half of the transaction is in the file.
    QVERIFY(QFileInfo(databasePath()).size() > size);
    QVERIFY(QFileInfo(databasePath() + u"-journal"_s).size() > 0);

    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
    QCOMPARE(onOwnConnection(u"PRAGMA integrity_check"_s).toString(), u"ok"_s);
    QCOMPARE(database().getReports(NoLimit, 0), QList<WipeReport>{readBack(numberedReport(1))});
    QVERIFY(database().saveReport(numberedReport(2)));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 2);
}

void tst_ReportDatabase::anOrdinaryEndLeavesOneFile()
{
    Run run({u"one"_s, u"x"_s});
    QCOMPARE(run.exitCode(), Done);
    QCOMPARE(QDir(userdata::folder()).entryList(QDir::Files | QDir::Hidden), QStringList{u"quorvex.db"_s});
    QVERIFY(database().initialize());
    QCOMPARE(database().getReport(u"x"_s), readBack(reportOf(u"x"_s)));
}

void tst_ReportDatabase::aSecondProgramWaits_data()
{
    QTest::addColumn<QString>("lock");
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("while another writes") << u"BEGIN IMMEDIATE"_s << true;
    QTest::newRow("while another keeps readers out") << u"BEGIN EXCLUSIVE"_s << true;
    QTest::newRow("at start") << u"BEGIN EXCLUSIVE"_s << false;
}

void tst_ReportDatabase::aSecondProgramWaits()
{
    QFETCH(QString, lock);
    QFETCH(bool, isOpen);
    QVERIFY(database().initialize());
    if (!isOpen)
        database().close();
    QSemaphore locked;
    std::atomic<bool> released = false;
    std::atomic<bool> written = false;
    std::thread thread([&] {
        OtherProgram other;
        bool ok = other.execute(lock) && other.insertRaw(u"theirs"_s, u"{}"_s);
        locked.release();
        // The other thread is in its call by then, or soon will be.
        QTest::qSleep(500);
        released = true;
        ok = other.execute(u"COMMIT"_s) && ok;
        written = ok;
    });
    locked.acquire();
    const bool wasReleased = released;
    const bool saved = database().initialize() && database().saveReport(reportOf(u"ours"_s));
    const bool isReleased = released;
    thread.join();
    QVERIFY(written);
    QVERIFY2(saved, qPrintable(database().lastError()));
    QVERIFY(!wasReleased);
    QVERIFY(isReleased);
    QVERIFY(database().deleteReport(u"theirs"_s));
    QCOMPARE(idsOf(database().getReports(NoLimit, 0)), QStringList{u"ours"_s});
}

void tst_ReportDatabase::callsWaitTenSeconds()
{
    QVERIFY(database().initialize());
    QCOMPARE(onOwnConnection(u"PRAGMA busy_timeout"_s), QVariant(10000));
    QCOMPARE(onOwnConnection(u"PRAGMA synchronous"_s), QVariant(3));
    QCOMPARE(onOwnConnection(u"PRAGMA journal_mode"_s), QVariant(u"delete"_s));
}

void tst_ReportDatabase::aFileThatIsNoDatabaseIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("this is no database. ").repeated(1000);
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("only the beginning is right")
        << QByteArray("SQLite format 3\0", 16) + QByteArray(9000, '\xff');
}

void tst_ReportDatabase::aFileThatIsNoDatabaseIsRefused()
{
    QFETCH(QByteArray, content);
    writeFile(databasePath(), content);

    QVERIFY(!database().initialize());
    QVERIFY2(database().lastError().contains(u"file is not a database"_s),
             qPrintable(database().lastError()));
    QVERIFY(!QSqlDatabase::contains());
    QVERIFY(!database().saveReport(filledReport()));
    QCOMPARE(database().lastError(), u"数据库未初始化"_s);
    QVERIFY(database().getReports(NoLimit, 0).isEmpty());
    QCOMPARE(contentOf(databasePath()), content);

    // The file is no longer held, and opening is tried again after the user has moved it away.
    QVERIFY(QFile::rename(databasePath(), databasePath() + u".old"_s));
    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
    QVERIFY(database().saveReport(filledReport()));
}

void tst_ReportDatabase::aFolderInPlaceOfTheFileIsRefused()
{
    QVERIFY(QDir().mkpath(databasePath()));
    QVERIFY(!database().initialize());
    QVERIFY2(database().lastError().contains(u"unable to open database file"_s),
             qPrintable(database().lastError()));
    QVERIFY(!database().saveReport(filledReport()));
}

void tst_ReportDatabase::aFileInPlaceOfTheFolderIsRefused()
{
    writeFile(userdata::folder(), {});
    QVERIFY(!database().initialize());
    QVERIFY2(database().lastError().contains(u"unable to open database file"_s),
             qPrintable(database().lastError()));
    QVERIFY(QFile::remove(userdata::folder()));
    QVERIFY(database().initialize());
}

void tst_ReportDatabase::aLinkIsNotFollowed_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {u"quorvex.db"_s, u"quorvex.db-journal"_s, u"quorvex.db-wal"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void tst_ReportDatabase::aLinkIsNotFollowed()
{
    QFETCH(const QString, name);
    QVERIFY(QDir().mkpath(userdata::folder()));
    const QString target = writeFile(m_dir->filePath(u"somebody's"_s), {});
    const QFile::Permissions everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(target, everybody));
    const QFile::Permissions before = QFile::permissions(target);
    if (!makeLink(target, userdata::folder() + u'/' + name))
        QSKIP("SKIPPED: the system makes no symbolic links here");
    QVERIFY(!database().initialize());
    QCOMPARE(database().lastProblem(), ReportDatabase::Problem::IsLink);
    QVERIFY2(database().lastError().endsWith(name + u" is a link"_s), qPrintable(database().lastError()));
    QCOMPARE(QFile::permissions(target), before);
    QCOMPARE(contentOf(target), QByteArray());
}

// The window does not wait for another program at its start.
void tst_ReportDatabase::aFileThatIsHeldIsOpenedLater()
{
    QVERIFY(database().initialize());
    database().close();
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"other"_s);
        other.setDatabaseName(databasePath());
        QVERIFY(other.open());
        QVERIFY(QSqlQuery(other).exec(u"BEGIN EXCLUSIVE"_s));
        QVERIFY(!database().initialize({}, 0ms));
        QCOMPARE(database().lastProblem(), ReportDatabase::Problem::InUse);
        QVERIFY(QSqlQuery(other).exec(u"COMMIT"_s));
        QVERIFY(database().initialize({}, 0ms));
        other.close();
    }
    QSqlDatabase::removeDatabase(u"other"_s);
    // Later calls wait.
    QCOMPARE(onOwnConnection(u"PRAGMA busy_timeout"_s), QVariant(10000));
}

void tst_ReportDatabase::idsAreCountedByTheirBeginning()
{
    QCOMPARE(database().holds(u"QVX-2026-0305-1001"_s), std::nullopt);
    QCOMPARE(database().countBeginningWith(u"QVX"_s), std::nullopt);
    QVERIFY(database().initialize());
    for (const QString &id : {u"QVX-2026-0305-1001"_s, u"QVX-2026-0305-1002"_s, u"QVX-2026-0306-1001"_s}) {
        WipeReport report;
        report.certificateId = id;
        QVERIFY(database().saveReport(report));
    }
    QCOMPARE(database().holds(u"QVX-2026-0305-1001"_s), true);
    QCOMPARE(database().holds(u"QVX-2026-0305-1003"_s), false);
    QCOMPARE(database().countBeginningWith(u"QVX-2026-0305-"_s), 2);
    QCOMPARE(database().countBeginningWith(u"%"_s), 0);
}

void tst_ReportDatabase::aReadOnlyFileIsRefused()
{
    QFile file(writeFile(databasePath(), {}));
    QVERIFY(file.setPermissions(QFile::ReadOwner));
    const bool isWritable = file.open(QIODevice::ReadWrite);
    file.close();
    if (isWritable)
        QSKIP("SKIPPED: root writes to files that are read-only");
    const bool initialized = database().initialize();
    const QString error = database().lastError();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(!initialized);
    QVERIFY2(error.contains(u"readonly"_s), qPrintable(error));
    QVERIFY(database().initialize());
}

void tst_ReportDatabase::onAReadOnlyVolumeReportsAreReadButNotStored()
{
    if (const QString reason = TmpfsVolume::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    TmpfsVolume volume(userdata::folder(), u"size=4m"_s);
    QVERIFY(volume.isMounted());
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(filledReport()));
    database().close();
    QVERIFY(volume.remount(u"ro"_s));
    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
    QCOMPARE(database().getReports(NoLimit, 0), QList<WipeReport>{readBack(filledReport())});
    QVERIFY(!database().saveReport(reportOf(u"new"_s)));
    QVERIFY2(database().lastError().contains(u"readonly"_s), qPrintable(database().lastError()));
    QVERIFY(!database().deleteReport(filledReport().certificateId));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 1);
}

void tst_ReportDatabase::onAReadOnlyVolumeNoFileIsMade()
{
    if (const QString reason = TmpfsVolume::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    TmpfsVolume volume(userdata::folder(), u"size=4m,ro"_s);
    QVERIFY(volume.isMounted());
    QVERIFY(!database().initialize());
    QVERIFY2(database().lastError().contains(u"unable to open database file"_s),
             qPrintable(database().lastError()));
    QVERIFY(volume.remount(u"rw"_s));
    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
}

void tst_ReportDatabase::aFullFileRefusesReportsAndKeepsTheRest()
{
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(numberedReport(1)));
    const int pages = onOwnConnection(u"PRAGMA page_count"_s).toInt();
    QCOMPARE(onOwnConnection(u"PRAGMA max_page_count = %1"_s.arg(pages + 5)), QVariant(pages + 5));
    QVERIFY(!database().saveReport(numberedReport(2)));
    QVERIFY2(database().lastError().contains(u"full"_s), qPrintable(database().lastError()));
    // Replacing a report needs room for the new one.
    WipeReport larger = numberedReport(1);
    larger.errorMessage = larger.errorMessage.repeated(20);
    QVERIFY(!database().saveReport(larger));
    QCOMPARE(database().getReports(NoLimit, 0), QList<WipeReport>{readBack(numberedReport(1))});
    onOwnConnection(u"PRAGMA max_page_count = 100000"_s);
    QVERIFY(database().saveReport(numberedReport(2)));
    QCOMPARE(onOwnConnection(u"PRAGMA integrity_check"_s).toString(), u"ok"_s);
    QCOMPARE(database().getReports(NoLimit, 0).size(), 2);
}

void tst_ReportDatabase::aFullVolumeRefusesReportsAndKeepsTheRest()
{
    if (const QString reason = TmpfsVolume::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    TmpfsVolume volume(userdata::folder(), u"size=1m"_s);
    QVERIFY(volume.isMounted());
    QVERIFY(database().initialize());
    int stored = 0;
    while (stored < 100 && database().saveReport(numberedReport(stored)))
        ++stored;
    QVERIFY(stored > 0 && stored < 100);
    QVERIFY2(database().lastError().contains(u"full"_s), qPrintable(database().lastError()));
    QCOMPARE(database().getReports(NoLimit, 0).size(), stored);
    QVERIFY(volume.remount(u"size=8m"_s));
    QVERIFY2(database().saveReport(numberedReport(stored)), qPrintable(database().lastError()));
    QCOMPARE(onOwnConnection(u"PRAGMA integrity_check"_s).toString(), u"ok"_s);
    for (int number = 0; number <= stored; ++number)
        QVERIFY(database().getReport(u"QVX-%1"_s.arg(number)) == readBack(numberedReport(number)));
}

void tst_ReportDatabase::onAFullVolumeNoDatabaseIsMade()
{
    if (const QString reason = TmpfsVolume::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    TmpfsVolume volume(userdata::folder(), u"size=64k"_s);
    QVERIFY(volume.isMounted());
    QFile filler(userdata::folder() + u"/filler"_s);
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray page(4096, 'x');
    while (filler.write(page) == page.size()) {
    }
    filler.close();
    QVERIFY(!database().initialize());
    QVERIFY2(database().lastError().contains(u"full"_s), qPrintable(database().lastError()));
    QVERIFY(filler.remove());
    QVERIFY2(database().initialize(), qPrintable(database().lastError()));
    QVERIFY(database().saveReport(filledReport()));
}

void tst_ReportDatabase::onlyTheOwnerReadsTheFile()
{
#ifdef Q_OS_UNIX
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const auto permissionsAreRight = [others](const QString &name) {
        const QFile::Permissions permissions = QFile::permissions(databasePath() + name);
        return permissions.testFlags(QFile::ReadOwner | QFile::WriteOwner) && !(permissions & others) &&
               !permissions.testFlag(QFile::ExeOwner);
    };
    QVERIFY(database().initialize());
    QVERIFY(permissionsAreRight({}));
    onOwnConnection(u"BEGIN"_s);
    QVERIFY(database().saveReport(filledReport()));
    QVERIFY(permissionsAreRight(u"-journal"_s));
    onOwnConnection(u"COMMIT"_s);
    QVERIFY(!QFileInfo::exists(databasePath() + u"-journal"_s));
    // A tool may have switched the file to a write-ahead log, which stays.
    QCOMPARE(onOwnConnection(u"PRAGMA journal_mode = WAL"_s), QVariant(u"wal"_s));
    QVERIFY(database().saveReport(filledReport()));
    for (const QString &name : {u""_s, u"-wal"_s, u"-shm"_s})
        QVERIFY2(permissionsAreRight(name), qPrintable(name));
#else
    QSKIP("SKIPPED: Windows has no permission bits; the access list of the user's own folder guards what is "
          "in it");
#endif
}

void tst_ReportDatabase::onlyTheOwnerReadsAFileThatWasThere()
{
#ifdef Q_OS_UNIX
    QVERIFY(database().initialize());
    QVERIFY(database().saveReport(filledReport()));
    database().close();
    const QFile::Permissions all = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(databasePath(), all));
    QVERIFY(database().initialize());
    QVERIFY(!(QFile::permissions(databasePath()) & (QFile::ReadGroup | QFile::ReadOther)));
    QCOMPARE(database().getReports(NoLimit, 0).size(), 1);
#else
    QSKIP("SKIPPED: Windows has no permission bits; the access list of the user's own folder guards what is "
          "in it");
#endif
}

static int runSuite(int argc, char *argv[])
{
    userdata::hide();
    const QCoreApplication application(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--run") == 0)
        return runChild(QCoreApplication::arguments().mid(2));
    userdata::useProgramIdentity();
    tst_ReportDatabase test;
    return QTest::qExec(&test, argc, argv);
}
QUORVEX_SUITE_RUN(tst_ReportDatabase, runSuite)
#include "tst_reportdatabase.moc"
