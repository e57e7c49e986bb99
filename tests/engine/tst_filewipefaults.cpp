#include "filejob.h"
#include "support/faultplan.h"
#include "support/faultyfiles.h"
#include "support/powercutfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using platform::Status;

namespace {

const QByteArray marker = QByteArrayLiteral("MARKER-OF-A-SECRET");

struct FaultKind
{
    const char *name;
    quint32 kinds;
};

constexpr FaultKind faultKinds[] = {
    {"open", FaultPlan::Open},
    {"info", FaultPlan::Info},
    {"seek", FaultPlan::Seek},
    {"read", FaultPlan::Read},
    {"write", FaultPlan::Write},
    {"setEnd", FaultPlan::SetEnd},
    {"flush", FaultPlan::Flush},
    {"clearReadOnly", FaultPlan::ClearReadOnly},
    {"rename", FaultPlan::Rename},
    {"remove", FaultPlan::Remove},
    {"identify", FaultPlan::Identify},
    {"locate", FaultPlan::Locate},
    {"rename and remove", FaultPlan::Rename | FaultPlan::Remove},
    {"list", FaultPlan::List},
    {"remove folder", FaultPlan::RemoveFolder},
    {"begin a group", FaultPlan::BeginGroup},
    {"close a group", FaultPlan::CloseGroup},
    {"everything", FaultPlan::Every},
};

// One job over a tree with every kind of file, with planned faults.
struct Scenario
{
    FaultPlan plan;
    PowerCutFiles drive{platform::Platform::current().files()}; // supports groups on every system
    FaultyFiles faultyFiles;
    FaultyFolders faultyFolders;
    FileJob job;
    QString folder;
    QString single;
    QString outside;
    QByteArray outsideContent = marker + QByteArrayLiteral(" that stays");

    Scenario(quint32 kinds, int call, platform::ErrorCode error, FaultPlan::Repeat repeat, int threads)
        : plan(kinds, call, error, repeat)
        , faultyFiles(drive, plan)
        , faultyFolders(platform::Platform::current().folders(), plan)
        , job(faultyFiles, faultyFolders)
    {
        job.task.setThreadCount(threads);
        job.task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
        outside = job.makeFile(QStringLiteral("outside/other"), outsideContent);
        job.makeFile(QStringLiteral("t/a"), marker.repeated(100));
        job.makeFile(QStringLiteral("t/sub/b"), marker);
        job.makeFile(QStringLiteral("t/sub/empty"), QByteArray());
        folder = job.path(QStringLiteral("t"));
        single = job.makeFile(QStringLiteral("single"), marker + marker);
        if (!QFile::link(outside, folder + QStringLiteral("/link.lnk")))
            qFatal("cannot make a link");
    }

    bool run() { return job.run({folder, single}); }

    // The number of files that still hold a secret, without the one outside.
    int secretsLeft() const
    {
        int secrets = 0;
        QDirIterator files(job.path({}), QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            if (file != outside && contentOf(file).contains(marker))
                ++secrets;
        }
        return secrets;
    }
};

} // namespace

class tst_FileWipeFaults : public QObject
{
    Q_OBJECT

private slots:
    void theScenarioWithoutFaults();
    void everyFaultInTurn_data();
    void everyFaultInTurn();
    void everyFaultWithSeveralThreads_data();
    void everyFaultWithSeveralThreads();

private:
    static void loop(quint32 kinds, platform::ErrorCode error, FaultPlan::Repeat repeat, int threads);
};

void tst_FileWipeFaults::theScenarioWithoutFaults()
{
    Scenario scenario(FaultPlan::Every, 1'000'000, platform::IoDevice, FaultPlan::Once, 1);
    QCOMPARE(scenario.secretsLeft(), 3);
    QVERIFY(scenario.run());
    QCOMPARE(scenario.plan.fired(), 0);
    QVERIFY(scenario.plan.seen() > 50);
    QCOMPARE(scenario.secretsLeft(), 0);
    QVERIFY(!QFileInfo::exists(scenario.folder));
    QVERIFY(!QFileInfo::exists(scenario.single));
}

void tst_FileWipeFaults::everyFaultInTurn_data()
{
    QTest::addColumn<quint32>("kinds");
    QTest::addColumn<quint32>("error");
    QTest::addColumn<bool>("forEver");
    for (const auto &[name, kinds] : faultKinds) {
        QTest::addRow("%s, I/O error, once", name) << kinds << quint32(platform::IoDevice) << false;
        QTest::addRow("%s, I/O error, for ever", name) << kinds << quint32(platform::IoDevice) << true;
        QTest::addRow("%s, access denied, once", name) << kinds << quint32(platform::AccessDenied) << false;
    }
}

void tst_FileWipeFaults::everyFaultWithSeveralThreads_data()
{
    QTest::addColumn<quint32>("kinds");
    for (const auto &[name, kinds] : faultKinds)
        QTest::newRow(name) << kinds;
}

void tst_FileWipeFaults::loop(quint32 kinds, platform::ErrorCode error, FaultPlan::Repeat repeat, int threads)
{
    int runsWithFaults = 0;
    for (int call = 1;; ++call) {
        Scenario scenario(kinds, call, error, repeat, threads);
        const bool success = scenario.run();
        const QByteArray context = "call " + QByteArray::number(call) + ":\n" +
                                   scenario.job.lines().join(QLatin1Char('\n')).toUtf8();

        QVERIFY2(scenario.job.said.finishedCount() == 1, context.constData());
        QVERIFY2(scenario.job.lines().last().startsWith(QStringLiteral("finished ")), context.constData());
        QVERIFY2(contentOf(scenario.outside) == scenario.outsideContent, context.constData());
        const QStringList beside = QDir(scenario.job.path(QStringLiteral("outside"))).entryList(QDir::Files);
        QVERIFY2(beside == QStringList{QStringLiteral("other")}, context.constData());
        QVERIFY2(scenario.drive.premature().isEmpty(), context.constData());
        if (success) {
            QVERIFY2(scenario.secretsLeft() == 0, context.constData());
            QVERIFY2(!QFileInfo::exists(scenario.single), context.constData());
        } else {
            QVERIFY2(scenario.plan.fired() > 0, context.constData());
            // Every failure is logged.
            const bool isSaid = scenario.job.lines().contains(said::nothingFound) ||
                                !scenario.job.lines().filter(QStringLiteral("2 擦除完成")).isEmpty();
            QVERIFY2(isSaid, context.constData());
        }
        if (scenario.plan.fired() == 0) {
            QVERIFY2(success, context.constData());
            break;
        }
        ++runsWithFaults;
    }
    QVERIFY(runsWithFaults > 0);
}

void tst_FileWipeFaults::everyFaultInTurn()
{
    QFETCH(quint32, kinds);
    QFETCH(quint32, error);
    QFETCH(bool, forEver);
    loop(kinds, static_cast<platform::ErrorCode>(error), forEver ? FaultPlan::FromThenOn : FaultPlan::Once,
         1);
}

void tst_FileWipeFaults::everyFaultWithSeveralThreads()
{
    QFETCH(quint32, kinds);
    loop(kinds, platform::IoDevice, FaultPlan::Once, 3);
}

QUORVEX_SUITE(tst_FileWipeFaults, QCoreApplication)
#include "tst_filewipefaults.moc"
