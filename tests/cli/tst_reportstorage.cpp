#include "jobs/reportstorage.h"
#include "model/joboutcome.h"
#include "model/wipereport.h"
#include "services/reportdatabase.h"
#include "support/filledreport.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "support/userdata.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

// What a user is told when the report of a job cannot be stored. The same report is stored once the hindrance
// is gone.
class tst_ReportStorage : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void init();
    void cleanup() { ReportDatabase::instance().close(); }

    void theCauseIsNamed_data();
    void theCauseIsNamed();
    void aDatabaseInUseIsNamed();
    void whatIsNoDatabaseIsDamaged();
    void aFolderCannotBeOpened();
    void aLinkIsNotFollowed();

private:
    static QString store();
    static QString databasePath() { return userdata::folder() + u"/quorvex.db"_s; }
    static qsizetype stored() { return ReportDatabase::instance().getReports(10, 0).size(); }

    std::unique_ptr<QTemporaryDir> m_home;
};

namespace {

// Too long for the pages that a new database has.
WipeReport longReport()
{
    WipeReport report = filledReport();
    report.errorMessage = QString(200000, u'x');
    return report;
}

bool execute(const QString &statement)
{
    return QSqlQuery(QSqlDatabase::database()).exec(statement);
}

} // namespace

void tst_ReportStorage::initMain()
{
    userdata::hide();
    userdata::useProgramIdentity();
}

void tst_ReportStorage::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    userdata::moveTo(m_home->path());
    QVERIFY(userdata::isOfTests());
    userdata::clear();
}

QString tst_ReportStorage::store()
{
    return storeReport(longReport(), OutcomeRecord(JobOutcome::Complete));
}

void tst_ReportStorage::theCauseIsNamed_data()
{
    QTest::addColumn<QString>("hindrance");
    QTest::addColumn<QString>("remedy");
    QTest::addColumn<QString>("words");
    QTest::newRow("full") << u"PRAGMA max_page_count = 1"_s << u"PRAGMA max_page_count = 100000"_s
                          << u"There is no room left for the report database. ("_s;
    QTest::newRow("read-only") << u"PRAGMA query_only = 1"_s << u"PRAGMA query_only = 0"_s
                               << u"The report database cannot be written. ("_s;
    QTest::newRow("refused")
        << u"CREATE TRIGGER no BEFORE INSERT ON wipe_reports BEGIN SELECT RAISE(ABORT, 'no'); END"_s
        << u"DROP TRIGGER no"_s << u"The report database did not take the report. ("_s;
}

void tst_ReportStorage::theCauseIsNamed()
{
    QFETCH(QString, hindrance);
    QFETCH(QString, remedy);
    QFETCH(QString, words);
    QVERIFY(ReportDatabase::instance().initialize());
    QVERIFY(execute(hindrance));
    const QString told = store();
    QVERIFY2(told.startsWith(words) && told.endsWith(u')'), qPrintable(told));
    QCOMPARE(stored(), 0);
    QVERIFY(execute(remedy));
    QCOMPARE(store(), QString());
    QCOMPARE(stored(), 1);
}

void tst_ReportStorage::aDatabaseInUseIsNamed()
{
    QVERIFY(ReportDatabase::instance().initialize());
    QVERIFY(execute(u"PRAGMA busy_timeout = 0"_s));
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"other"_s);
        other.setDatabaseName(databasePath());
        QVERIFY(other.open());
        QVERIFY(QSqlQuery(other).exec(u"BEGIN EXCLUSIVE"_s));
        const QString told = store();
        QVERIFY2(told.startsWith(u"Another program holds the report database. ("), qPrintable(told));
        QVERIFY(QSqlQuery(other).exec(u"COMMIT"_s));
        other.close();
    }
    QSqlDatabase::removeDatabase(u"other"_s);
    QCOMPARE(store(), QString());
    QCOMPARE(stored(), 1);
}

void tst_ReportStorage::whatIsNoDatabaseIsDamaged()
{
    const QByteArray content(8192, 'x');
    writeFile(databasePath(), content);
    const QString told = store();
    QVERIFY2(told.startsWith(u"The report database is damaged. ("), qPrintable(told));
    QCOMPARE(contentOf(databasePath()), content);
}

void tst_ReportStorage::aFolderCannotBeOpened()
{
    QVERIFY(QDir().mkpath(databasePath()));
    const QString told = store();
    QVERIFY2(told.startsWith(u"The report database cannot be opened. ("), qPrintable(told));
    QVERIFY(QDir().rmdir(databasePath()));
    QCOMPARE(store(), QString());
}

void tst_ReportStorage::aLinkIsNotFollowed()
{
    QVERIFY(QDir().mkpath(userdata::folder()));
    const QString target = writeFile(m_home->filePath(u"somebody's"_s), {});
    if (!makeLink(target, databasePath()))
        QSKIP("SKIPPED: the system makes no symbolic links here");
    const QString told = store();
    QVERIFY2(told.startsWith(u"A link is in the place of the report database. ("), qPrintable(told));
    QCOMPARE(contentOf(target), QByteArray());
}

QUORVEX_SUITE(tst_ReportStorage, QCoreApplication)
#include "tst_reportstorage.moc"
