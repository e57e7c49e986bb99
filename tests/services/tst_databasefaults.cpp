#include "services/reportdatabase.h"
#include "support/faultyfolder.h"
#include "support/filledreport.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString OldId = u"QVX-OLD"_s;

ReportDatabase &database()
{
    return ReportDatabase::instance();
}

WipeReport reportOf(const QString &id)
{
    WipeReport report = filledReport();
    report.certificateId = id;
    // Several pages of the file.
    report.errorMessage = u"content of "_s + id + QString(u'x').repeated(9000);
    return report;
}

OutcomeRecord partialOutcome()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.note({ShortfallKind::VolumeInUse, u"E:"_s, 4096, 2});
    return outcome;
}

// Asks SQLite itself, on a connection of its own.
QString integrityOf(const QString &file)
{
    const QString name = u"integrity"_s;
    QString result;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
        connection.setDatabaseName(file);
        QSqlQuery query(connection);
        result = connection.open() && query.exec(u"PRAGMA integrity_check"_s) && query.next()
                     ? query.value(0).toString()
                     : u"not opened"_s;
    }
    QSqlDatabase::removeDatabase(name);
    return result;
}

} // namespace

// The database on a volume of which each operation fails in its turn: what it accepted is kept, what it
// denies is not there, and a failure harms no other report.
class tst_DatabaseFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void acceptedReportsAreKept_data() { errors(); }
    void acceptedReportsAreKept();
    void deletedReportsAreGone_data() { errors(); }
    void deletedReportsAreGone();
    void nothingStoredIsDenied_data() { errors(); }
    void nothingStoredIsDenied();
    void aFailedStartLosesNothing_data() { errors(); }
    void aFailedStartLosesNothing();

private:
    static void errors();
    QString data() const { return m_faulty->path() + u"/data"_s; }
    // Opens the database anew, without faults.
    void reopen();
    void verifyOldReport(int nth);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FaultyFolder> m_faulty;
    QByteArray m_oldJson;
};

void tst_DatabaseFaults::errors()
{
    QTest::addColumn<int>("error");
    QTest::newRow("EIO") << EIO;
    QTest::newRow("ENOSPC") << ENOSPC;
    QTest::newRow("EROFS") << EROFS;
}

void tst_DatabaseFaults::initTestCase()
{
    if (const QString reason = FaultyFolder::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_DatabaseFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_faulty = std::make_unique<FaultyFolder>(m_folder->path());
    QVERIFY(m_faulty->isReady());
    QVERIFY(database().initialize(data(), 1ms));
    QVERIFY(database().saveReport(reportOf(OldId), partialOutcome()));
    m_oldJson = database().storedJson(OldId).value_or(QByteArray());
    QVERIFY(!m_oldJson.isEmpty());
}

void tst_DatabaseFaults::cleanup()
{
    database().close();
    m_faulty.reset();
    m_folder.reset();
}

void tst_DatabaseFaults::reopen()
{
    m_faulty->heal();
    database().close();
    QVERIFY2(database().initialize(data(), 1ms), qPrintable(database().lastError()));
}

void tst_DatabaseFaults::verifyOldReport(int nth)
{
    const QString which = u"operation %1"_s.arg(nth);
    QVERIFY2(database().storedJson(OldId) == m_oldJson, qPrintable(which));
    QVERIFY2(database().outcome(OldId) == partialOutcome(), qPrintable(which));
    QVERIFY2(integrityOf(data() + u"/quorvex.db"_s) == u"ok"_s, qPrintable(which));
}

void tst_DatabaseFaults::acceptedReportsAreKept()
{
    QFETCH(const int, error);
    int refused = 0;
    for (int nth = 1;; ++nth) {
        const QString which = u"operation %1"_s.arg(nth);
        const QString id = u"QVX-%1"_s.arg(nth);
        const WipeReport report = reportOf(id);
        m_faulty->failOperation(nth, error);
        const bool isSaved = database().saveReport(report, partialOutcome());
        QVERIFY2(isSaved || !database().lastError().isEmpty(), qPrintable(which));
        refused += isSaved ? 0 : 1;
        const bool hasFailed = m_faulty->hasFailedOperation();
        reopen();
        const std::optional<QByteArray> stored = database().storedJson(id);
        QVERIFY2(stored.has_value(), qPrintable(which));
        QVERIFY2(!isSaved || !stored->isEmpty(), qPrintable(which));
        // A refused report is whole as well, or not there.
        if (!stored->isEmpty()) {
            QCOMPARE(*stored, report.toJson());
            QVERIFY2(database().outcome(id) == partialOutcome(), qPrintable(which));
        }
        verifyOldReport(nth);
        if (!hasFailed) {
            qInfo("%d operations failed in their turn", nth - 1);
            QVERIFY2(isSaved, qPrintable(database().lastError()));
            break;
        }
    }
    QVERIFY2(refused > 3, qPrintable(QString::number(refused)));
}

void tst_DatabaseFaults::deletedReportsAreGone()
{
    QFETCH(const int, error);
    int refused = 0;
    for (int nth = 1;; ++nth) {
        const QString which = u"operation %1"_s.arg(nth);
        const QString id = u"QVX-%1-"_s.arg(nth);
        QVERIFY(database().saveReport(reportOf(id), partialOutcome()));
        m_faulty->failOperation(nth, error);
        const bool isDeleted = database().deleteReport(id);
        refused += isDeleted ? 0 : 1;
        const bool hasFailed = m_faulty->hasFailedOperation();
        reopen();
        QVERIFY2(!isDeleted || database().holds(id) == false, qPrintable(which));
        if (isDeleted) {
            QVERIFY2(!database().outcome(id), qPrintable(which));
            QVERIFY2(!contentOf(data() + u"/quorvex.db"_s).contains("content of " + id.toUtf8()),
                     qPrintable(which));
        }
        verifyOldReport(nth);
        if (!hasFailed) {
            qInfo("%d operations failed in their turn", nth - 1);
            QVERIFY(isDeleted);
            break;
        }
    }
    QVERIFY2(refused > 3, qPrintable(QString::number(refused)));
}

void tst_DatabaseFaults::nothingStoredIsDenied()
{
    QFETCH(const int, error);
    int unknown = 0;
    for (int nth = 1;; ++nth) {
        reopen();
        m_faulty->failOperation(nth, error);
        const std::optional<bool> holds = database().holds(OldId);
        const std::optional<int> count = database().countBeginningWith(u"QVX-"_s);
        const std::optional<QByteArray> json = database().storedJson(OldId);
        const auto page = database().storedReports(10, 0);
        const std::optional<OutcomeRecord> outcome = database().outcome(OldId);
        unknown += !holds || !count || !json || !page || !outcome ? 1 : 0;
        const QByteArray which = "operation " + QByteArray::number(nth);
        QVERIFY2(holds.value_or(true), which.constData());
        QVERIFY2(count.value_or(1) == 1, which.constData());
        QVERIFY2(json.value_or(m_oldJson) == m_oldJson, which.constData());
        QVERIFY2(!page || page->size() == 1, which.constData());
        QVERIFY2(outcome.value_or(partialOutcome()) == partialOutcome(), which.constData());
        if (!m_faulty->hasFailedOperation()) {
            qInfo("%d operations failed in their turn", nth - 1);
            QVERIFY(holds && count && json && page && outcome);
            break;
        }
    }
    QVERIFY2(unknown > 1, qPrintable(QString::number(unknown)));
}

void tst_DatabaseFaults::aFailedStartLosesNothing()
{
    QFETCH(const int, error);
    int refused = 0;
    for (int nth = 1;; ++nth) {
        database().close();
        m_faulty->failOperation(nth, error);
        const bool isOpen = database().initialize(data(), 1ms);
        QVERIFY2(isOpen || !database().lastError().isEmpty(), qPrintable(QString::number(nth)));
        refused += isOpen ? 0 : 1;
        const bool hasFailed = m_faulty->hasFailedOperation();
        reopen();
        verifyOldReport(nth);
        if (!hasFailed) {
            qInfo("%d operations failed in their turn", nth - 1);
            QVERIFY(isOpen);
            break;
        }
    }
    QVERIFY2(refused > 1, qPrintable(QString::number(refused)));
}

QUORVEX_SUITE(tst_DatabaseFaults, QCoreApplication)
#include "tst_databasefaults.moc"
