#include "diskwipejob.h"
#include "model/units.h"
#include "model/wipereport.h"
#include "model/wipetask.h"
#include "support/deviceplatform.h"
#include "support/faultplan.h"
#include "support/faultydevices.h"
#include "support/interposeddevices.h"
#include "support/memorydevices.h"
#include "support/powercutdevices.h"
#include "support/slowdevices.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 DriveSize = MiB + 131072; // two chunks
constexpr int Number = 2;
constexpr int Patience = 60'000; // ms, reached only by failures

struct Stretch
{
    QString name;
    qint64 start;
    qint64 length;
};

// A drive without volumes, or with two of different size.
struct Scenario
{
    explicit Scenario(bool withVolumes)
    {
        memory.addDrive(markedDrive(Number, DriveSize));
        if (!withVolumes) {
            targets = {{u"drive"_s, 0, DriveSize}};
            return;
        }
        targets = {{u"E:"_s, 4096, MiB + 4096}, {u"F:"_s, MiB + 16384, 65536}};
        for (const Stretch &target : targets)
            memory.addVolume(target.name, Number, target.start, target.length);
        // The lock needs a second attempt, so that every run includes a failed one.
        memory.volume(u"F:"_s).failingLocks = 1;
    }

    // The number of 512-byte units that hold neither the old content nor the zeros of the first pass.
    quint64 overwritten(const Stretch &target) const
    {
        static const QByteArray before = markedMedium(DriveSize);
        static const QByteArray zeros(512, '\0');
        quint64 count = 0;
        for (qint64 at = target.start; at < target.start + target.length; at += 512) {
            const QByteArrayView now = QByteArrayView(memory.medium(Number)).sliced(at, 512);
            count += now != QByteArrayView(before).sliced(at, 512) && now != zeros ? 1 : 0;
        }
        return count;
    }
    quint64 overwritten() const
    {
        quint64 count = 0;
        for (const Stretch &target : targets)
            count += overwritten(target);
        return count;
    }
    bool restIsUntouched() const
    {
        QByteArray medium = memory.medium(Number);
        const QByteArray before = markedMedium(medium.size());
        for (const Stretch &target : targets)
            medium.replace(target.start, target.length, before.sliced(target.start, target.length));
        return medium == before;
    }

    MemoryDevices memory;
    QList<Stretch> targets;
};

// Whether the log names a target that the job did not cover or find.
bool isToldAsIncomplete(const QStringList &log, const Stretch &target)
{
    return !log.contains(u"0 找到卷: "_s + target.name) ||
           !log.filter(QRegularExpression(u"^2 无法打开卷 "_s + target.name)).isEmpty() ||
           !log.filter(QRegularExpression(u"未被覆写$|^0 使用估算卷大小"_s)).isEmpty();
}

// Checks the invariants of every run, whatever call failed. Returns the violation, empty without one.
QString complaint(const Scenario &scenario, const DiskWipeJob &job)
{
    if (!job.endedProperly())
        return u"finished did not come once and last"_s;
    if (scenario.memory.openHandles() != 0 || scenario.memory.heldLocks() != 0)
        return u"a handle or a lock is left"_s;
    if (!scenario.restIsUntouched())
        return u"something outside the target was written"_s;
    const WipeReport report = job.report();
    if (report.wipedSectors > scenario.overwritten())
        return u"%1 sectors reported, %2 overwritten"_s.arg(report.wipedSectors).arg(scenario.overwritten());
    if (report.dataHash.isEmpty() != (report.verificationSampleSize == 0))
        return u"hash and samples disagree"_s;
    if (!job.finished.first())
        return job.errors().isEmpty() && job.log().last() != u"1 擦除已取消"_s ? u"failed silently"_s
                                                                               : QString();
    if (!job.errors().isEmpty())
        return u"success with an error"_s;
    for (const Stretch &target : scenario.targets) {
        if (scenario.overwritten(target) * 512 < quint64(target.length) &&
            !isToldAsIncomplete(job.log(), target))
            return u"%1 is not overwritten, and nothing says so"_s.arg(target.name);
    }
    return {};
}

void prepare(DiskWipeJob &job, Scenario &scenario)
{
    job.task.setVerifySampleSize(4);
    job.chooseDrive(scenario.memory.drive(Number));
}
} // namespace

class tst_DiskWipeFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyCallFailing_data();
    void everyCallFailing();
    void powerCutAfterAJob_data();
    void powerCutAfterAJob();
    void powerCutAfterAStop();
    void powerCutAfterAFailedFlush();
    void stopInEveryStage_data();
    void stopInEveryStage();
    void stopDuringLockAttempts();
    void stopBeforeTheStart();
    void stopAtAnyTime();
    void stopOfAPausedWorker();
};

void tst_DiskWipeFaults::initTestCase()
{
    // Thousands of planned faults, each with its diagnostics, would fill the log.
    QLoggingCategory::setFilterRules(u"default.debug=false"_s);
}

void tst_DiskWipeFaults::everyCallFailing_data()
{
    QTest::addColumn<bool>("withVolumes");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("forEver");
    for (const bool withVolumes : {false, true}) {
        for (const int error : {5, 21, 27, 87, 1117}) {
            for (const bool forEver : {false, true})
                QTest::addRow("%s, error %d, %s", withVolumes ? "volumes" : "drive", error,
                              forEver ? "from then on" : "once")
                    << withVolumes << error << forEver;
        }
    }
}

void tst_DiskWipeFaults::everyCallFailing()
{
    QFETCH(bool, withVolumes);
    QFETCH(int, error);
    QFETCH(bool, forEver);
    int call = 0;
    int fired = 0;
    do {
        ++call;
        QVERIFY2(call < 500, "the loop does not end");
        Scenario scenario(withVolumes);
        // The claims of the report must survive a power cut too.
        PowerCutDevices powerCut(scenario.memory);
        FaultPlan plan(FaultPlan::Every, call, static_cast<platform::ErrorCode>(error),
                       forEver ? FaultPlan::FromThenOn : FaultPlan::Once);
        FaultyDevices devices(powerCut, plan);
        DiskWipeJob job(WipeMethod::BritishHmgIs5);
        prepare(job, scenario);
        const bool success = job.run(devices);
        fired = plan.fired();
        const QString wrong = complaint(scenario, job);
        QVERIFY2(wrong.isEmpty(),
                 qPrintable(u"call %1: %2\n%3"_s.arg(call).arg(wrong, job.events.join(u'\n'))));
        if (fired == 0) {
            QVERIFY(success);
            QVERIFY(call > 10);
            for (const Stretch &target : scenario.targets)
                QCOMPARE(scenario.overwritten(target), quint64(target.length / 512));
            QCOMPARE(job.report().wipedSectors, scenario.overwritten());
        }
    } while (fired > 0);
}

void tst_DiskWipeFaults::powerCutAfterAJob_data()
{
    QTest::addColumn<bool>("withVolumes");
    QTest::newRow("drive") << false;
    QTest::newRow("volumes") << true;
}

void tst_DiskWipeFaults::powerCutAfterAJob()
{
    QFETCH(bool, withVolumes);
    Scenario scenario(withVolumes);
    PowerCutDevices devices(scenario.memory);
    DiskWipeJob job(WipeMethod::Dod522022M);
    prepare(job, scenario);
    QVERIFY(job.run(devices));
    QVERIFY(complaint(scenario, job).isEmpty());
    QCOMPARE(job.report().wipedSectors, scenario.overwritten());
}

void tst_DiskWipeFaults::powerCutAfterAStop()
{
    Scenario scenario(false);
    PowerCutDevices powerCut(scenario.memory);
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    prepare(job, scenario);
    int writes = 0;
    InterposedDevices devices(powerCut, [&](const DeviceCall &call) {
        if (call.kind == FaultPlan::Write && ++writes == 3) // the first chunk of the second pass
            job.worker.stop();
        return platform::Status{};
    });
    QVERIFY(!job.run(devices));
    QCOMPARE(job.report().wipedSectors, quint64(MiB / 512));
    QVERIFY(complaint(scenario, job).isEmpty());
}

void tst_DiskWipeFaults::powerCutAfterAFailedFlush()
{
    Scenario scenario(false);
    PowerCutDevices powerCut(scenario.memory);
    FaultPlan plan(FaultPlan::Flush, 1, platform::IoDevice);
    FaultyDevices devices(powerCut, plan);
    DiskWipeJob job;
    prepare(job, scenario);
    QVERIFY(!job.run(devices));
    QVERIFY(scenario.memory.medium(Number) == markedMedium(DriveSize));
    QCOMPARE(job.report().wipedSectors, 0ULL);
}

void tst_DiskWipeFaults::stopInEveryStage_data()
{
    QTest::addColumn<bool>("withVolumes");
    QTest::addColumn<QString>("method");
    QTest::addColumn<int>("call");
    QTest::addColumn<bool>("mayWrite");
    const auto row = [](bool withVolumes, const QString &method, int call, bool mayWrite) {
        QTest::addRow("%s, %s %d", withVolumes ? "volumes" : "drive", qPrintable(method), call)
            << withVolumes << method << call << mayWrite;
    };
    for (const int call : {1, 2}) {
        for (const QString &method : {u"queryVolume"_s, u"extents"_s, u"openVolume"_s, u"lock"_s,
                                      u"dismount"_s, u"allowExtendedIo"_s})
            row(true, method, call, false);
    }
    for (const bool withVolumes : {false, true}) {
        row(withVolumes, u"openDrive"_s, 1, false);
        row(withVolumes, u"geometry"_s, 1, false);
        for (const int call : {1, 2, 3, 4})
            row(withVolumes, u"write"_s, call, true);
        for (const QString &method : {u"seek"_s, u"flush"_s, u"read"_s}) {
            row(withVolumes, method, 1, true);
            row(withVolumes, method, 2, true);
        }
    }
    row(true, u"length"_s, 2, true);
    row(true, u"unlock"_s, 1, true);
}

void tst_DiskWipeFaults::stopInEveryStage()
{
    QFETCH(bool, withVolumes);
    QFETCH(QString, method);
    QFETCH(int, call);
    QFETCH(bool, mayWrite);
    Scenario scenario(withVolumes);
    const QByteArray name = method.toLatin1();
    QSemaphore reached;
    QSemaphore go;
    int seen = 0;
    InterposedDevices devices(scenario.memory, [&](const DeviceCall &deviceCall) {
        if (deviceCall.method == QLatin1String(name) && ++seen == call) {
            reached.release();
            go.acquire();
        }
        return platform::Status{};
    });
    DiskWipeJob job(WipeMethod::BritishHmgIs5);
    prepare(job, scenario);
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        job.run(devices);
        reached.release(); // wakes the test when the call never came
    }));
    thread->start();
    reached.tryAcquire(1, Patience);
    job.worker.stop();
    go.release(100);
    thread->wait();

    QVERIFY(seen >= call);
    QVERIFY(job.endedProperly());
    QCOMPARE(job.finished, QList<bool>({false}));
    QCOMPARE(job.log().last(), u"1 擦除已取消"_s);
    QVERIFY(job.errors().isEmpty());
    const QString wrong = complaint(scenario, job);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QVERIFY(mayWrite || scenario.memory.writes() == 0);
}

void tst_DiskWipeFaults::stopDuringLockAttempts()
{
    Scenario scenario(true);
    scenario.memory.volume(u"E:"_s).failingLocks = -1;
    DiskWipeJob job;
    prepare(job, scenario);
    // Longer than the patience of the test, so that a stop that does not end the wait is detected.
    job.worker.setLockRetryDelay(std::chrono::milliseconds(2 * Patience));
    QSemaphore reached;
    InterposedDevices devices(scenario.memory, [&](const DeviceCall &call) {
        if (call.kind == FaultPlan::Lock)
            reached.release();
        return platform::Status{};
    });
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        job.run(devices);
        reached.release();
    }));
    thread->start();
    reached.tryAcquire(1, Patience);
    QThread::msleep(100); // time for a second attempt that does not wait
    job.worker.stop();
    const bool ended = thread->wait(Patience);
    thread->wait();

    QVERIFY(ended);
    QCOMPARE(job.events.sliced(job.events.size() - 3),
             QStringList({u"log 0 正在锁定卷 E:..."_s, u"log 1 擦除已取消"_s, u"finished 0"_s}));
    QVERIFY(scenario.memory.lockAttempts() == 1);
    QCOMPARE(scenario.memory.dismounts(), 0);
    QCOMPARE(scenario.memory.writes(), 0);
    QCOMPARE(scenario.memory.openHandles(), 0);
    QVERIFY(job.errors().isEmpty());
}

void tst_DiskWipeFaults::stopBeforeTheStart()
{
    for (const bool withVolumes : {false, true}) {
        Scenario scenario(withVolumes);
        DiskWipeJob job;
        prepare(job, scenario);
        job.worker.stop();
        QVERIFY(!job.run(scenario.memory));
        QVERIFY(job.endedProperly());
        QCOMPARE(job.log().last(), u"1 擦除已取消"_s);
        QVERIFY(job.errors().isEmpty());
        QCOMPARE(scenario.memory.openings(), 0);
    }
}

void tst_DiskWipeFaults::stopAtAnyTime()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator choice(seed);
    for (int i = 0; i < 60; ++i) {
        Scenario scenario(i % 2 == 0);
        SlowDevices slow(scenario.memory, std::chrono::microseconds(200));
        PowerCutDevices devices(slow);
        DiskWipeJob job(WipeMethod::BritishHmgIs5);
        prepare(job, scenario);
        const std::unique_ptr<QThread> thread(QThread::create([&] { job.run(devices); }));
        thread->start();
        QThread::usleep(choice.bounded(20000));
        job.worker.stop();
        thread->wait();
        const QString wrong = complaint(scenario, job);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong + u'\n' + job.events.join(u'\n')));
    }
}

namespace {
// Paused from the start until it is stopped.
class PausedWorker : public DiskWipeWorker
{
public:
    explicit PausedWorker(WipeTask *task)
        : DiskWipeWorker(task)
    {
        m_paused.store(true);
    }
};
} // namespace

void tst_DiskWipeFaults::stopOfAPausedWorker()
{
    Scenario scenario(false);
    DiskWipeJob settings; // only its task is used
    prepare(settings, scenario);
    PausedWorker worker(&settings.task);
    QStringList ends;
    QSemaphore begun;
    const auto direct = Qt::DirectConnection;
    connect(
        &worker, &BaseWipeWorker::passChanged, this, [&] { begun.release(); }, direct);
    connect(
        &worker, &BaseWipeWorker::errorOccurred, this, [&](const QString &error) { ends += error; }, direct);
    connect(
        &worker, &BaseWipeWorker::finished, this, [&](bool success) { ends += QString::number(success); },
        direct);
    DevicePlatform platform(scenario.memory);
    const platform::ScopedPlatform scope(platform);
    const std::unique_ptr<QThread> thread(QThread::create([&] { worker.process(); }));
    thread->start();
    const bool arrived = begun.tryAcquire(1, Patience);
    const bool ended = thread->wait(50);
    const int writes = scenario.memory.writes();
    worker.stop();
    thread->wait();

    QVERIFY(arrived);
    QVERIFY(!ended);
    QCOMPARE(writes, 0);
    // A stop during a pause fails the pass; a stop between chunks only ends it.
    QCOMPARE(ends, QStringList({u"覆写失败"_s, u"0"_s}));
    QCOMPARE(scenario.memory.writes(), 0);
    QCOMPARE(scenario.memory.openHandles(), 0);
}

QUORVEX_SUITE(tst_DiskWipeFaults, QCoreApplication)
#include "tst_diskwipefaults.moc"
