#include "engine/basewipeworker.h"
#include "support/suite.h"

#include "model/wipetask.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMetaMethod>
#include <QMetaObject>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QtEndian>

#include <atomic>
#include <chrono>
#include <cstring>
#include <functional>
#include <future>
#include <memory>
#include <new>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace {

// Makes protected members accessible.
class OpenWorker : public BaseWipeWorker
{
public:
    OpenWorker()
        : BaseWipeWorker(&m_ownTask)
    {}
    void process() override { runJob(); }
    bool run() override { return job(); }
    void complete() override { steps.append("complete"); }
    void diagnose(const platform::Status &) override {}

    std::function<bool()> job = [] { return true; };
    QByteArrayList steps;

    using BaseWipeWorker::checkPauseStop;
    using BaseWipeWorker::drawSeed;
    using BaseWipeWorker::fillBuffer;
    using BaseWipeWorker::isStopRequested;
    using BaseWipeWorker::m_bytesBeforePass;
    using BaseWipeWorker::m_currentPass;
    using BaseWipeWorker::m_paused;
    using BaseWipeWorker::m_totalPasses;
    using BaseWipeWorker::task;
    using BaseWipeWorker::updateProgress;
    using BaseWipeWorker::verifyBuffer;
    using BaseWipeWorker::waitUnlessStopped;

    WipeTask m_ownTask;
};

std::byte *bytes(QByteArray &data)
{
    return reinterpret_cast<std::byte *>(data.data());
}

// A wait on another thread. A wait that never ends is abandoned with its worker, so that the test fails and
// does not hang.
class Waiting
{
public:
    template <typename Wait>
    Waiting(const std::shared_ptr<OpenWorker> &worker, Wait wait)
    {
        std::packaged_task<bool()> task([worker, wait] { return wait(*worker); });
        m_wentOn = task.get_future();
        std::thread(std::move(task)).detach();
    }
    bool isOver(std::chrono::milliseconds patience) const
    {
        return m_wentOn.wait_for(patience) == std::future_status::ready;
    }
    // Requires that the wait is over.
    bool wentOn() { return m_wentOn.get(); }

private:
    std::future<bool> m_wentOn;
};

bool pauseOf(OpenWorker &worker)
{
    return worker.checkPauseStop();
}

constexpr auto Patience = 60s; // reached only by failures

constexpr PassPattern patternOf(PatternType type, quint8 value = 0)
{
    return {type, value, false};
}

} // namespace

class tst_BaseWipeWorker : public QObject
{
    Q_OBJECT

private slots:
    void signalsStandInTheirOrder();
    void aNewWorkerHasNothingToReport();

    void everyEndOfAJobIsCompletedAndTold_data();
    void everyEndOfAJobIsCompletedAndTold();

    void goesOnWhileNobodyStops();
    void afterAStopGivesUpAtOnce();
    void stopEndsAPause();
    void aPausedWorkerWaitsUntilItIsStopped();
    void aStopBeforeThePauseIsNotMissed();
    void waitsForTheTimeGiven();
    void aWaitEndsWithAStop();

    void fillsTheBuffer_data();
    void fillsTheBuffer();
    void complementInvertsWhatThePreviousFillLeft();
    void aRandomFillOfThirteenBytesTakesTwoDraws();
    void theWorkersOwnGeneratorIsNotReseeded();
    void twoWorkersHaveDifferentSequences();
    void anEmptyFillTouchesNothing();

    void checksTheBuffer_data();
    void checksTheBuffer();

    void aTotalOfNothingReportsZeroPercentOnly();
    void percentCountsTheEarlierPasses_data();
    void percentCountsTheEarlierPasses();
    void bytesCountTheEarlierPasses();
    void speedIsSampledEveryHalfSecond();
    void aSampleWithoutNewBytesOnlyRestartsTheTimer();
    void aSampleOfFewerBytesIsWhereTheNextOneBegins();
    void speedIsOfTheSystemsTimeUnlessSet();
};

void tst_BaseWipeWorker::signalsStandInTheirOrder()
{
    const QMetaObject &meta = BaseWipeWorker::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("BaseWipeWorker"));
    QList<QByteArray> signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(meta.method(i).methodSignature());
    const QList<QByteArray> expected{
        "progressChanged(int)", "passChanged(int,int)",   "bytesWritten(qlonglong)", "speedUpdated(double)",
        "finished(bool)",       "errorOccurred(QString)", "logMessage(QString,int)", "process()"};
    QCOMPARE(signatures.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i)
        QCOMPARE(signatures[i].replace("qint64", "qlonglong"), expected[i]);
    QCOMPARE(meta.method(meta.methodOffset() + 6).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(meta.methodOffset() + 7).methodType(), QMetaMethod::Slot);
}

void tst_BaseWipeWorker::aNewWorkerHasNothingToReport()
{
    OpenWorker worker;
    QCOMPARE(&worker.task(), &worker.m_ownTask);
    QCOMPARE(worker.m_currentPass, 0);
    QCOMPARE(worker.m_totalPasses, 0);
    QCOMPARE(worker.m_bytesBeforePass, 0);
    QVERIFY(!worker.m_paused);
    QVERIFY(!worker.isStopRequested());
    QVERIFY(!worker.parent());
}

void tst_BaseWipeWorker::goesOnWhileNobodyStops()
{
    OpenWorker worker;
    QVERIFY(worker.checkPauseStop());
    QVERIFY(worker.checkPauseStop());
}

void tst_BaseWipeWorker::afterAStopGivesUpAtOnce()
{
    OpenWorker worker;
    worker.stop();
    QVERIFY(worker.isStopRequested());
    QVERIFY(!worker.checkPauseStop());
    QVERIFY(!worker.checkPauseStop());
}

void tst_BaseWipeWorker::stopEndsAPause()
{
    OpenWorker worker;
    worker.m_paused = true;
    worker.stop();
    QVERIFY(!worker.m_paused);
    QVERIFY(!worker.checkPauseStop());
}

void tst_BaseWipeWorker::aPausedWorkerWaitsUntilItIsStopped()
{
    const auto worker = std::make_shared<OpenWorker>();
    worker->m_paused = true;
    Waiting pause(worker, pauseOf);
    // Nothing else may wake the wait. An early return mostly fails here, a correct one never does.
    QVERIFY(!pause.isOver(30ms));
    worker->stop();
    QVERIFY(pause.isOver(Patience));
    QVERIFY(!pause.wentOn());
}

void tst_BaseWipeWorker::aStopBeforeThePauseIsNotMissed()
{
    // The stop may come at any moment between the waiter's look at the flag and its wait.
    for (int round = 0; round < 500; ++round) {
        const auto worker = std::make_shared<OpenWorker>();
        worker->m_paused = true;
        const Waiting pause(worker, pauseOf);
        worker->stop();
        QVERIFY2(pause.isOver(Patience), qPrintable(QStringLiteral("missed in round %1").arg(round)));
    }
}

void tst_BaseWipeWorker::waitsForTheTimeGiven()
{
    OpenWorker worker;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(worker.waitUnlessStopped(20ms));
    QVERIFY(timer.elapsed() >= 19);
}

void tst_BaseWipeWorker::aWaitEndsWithAStop()
{
    const auto worker = std::make_shared<OpenWorker>();
    for (int round = 0; round < 2; ++round) {
        Waiting wait(worker, [](OpenWorker &waiter) { return waiter.waitUnlessStopped(1h); });
        worker->stop();
        QVERIFY(wait.isOver(Patience));
        QVERIFY(!wait.wentOn());
    }
}

void tst_BaseWipeWorker::fillsTheBuffer_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("zeros") << 0 << 0 << QByteArray(13, '\0');
    QTest::newRow("zeros, whatever the value") << 0 << 0x77 << QByteArray(13, '\0');
    QTest::newRow("ones") << 1 << 0 << QByteArray(13, '\xFF');
    QTest::newRow("custom") << 3 << 0xAA << QByteArray(13, '\xAA');
    QTest::newRow("custom 0") << 3 << 0 << QByteArray(13, '\0');
    QTest::newRow("complement") << 4 << 0 << QByteArray(13, '\xA5');
    QTest::newRow("unknown 5") << 5 << 0x11 << QByteArray(13, '\x5A');
    QTest::newRow("unknown -1") << -1 << 0x11 << QByteArray(13, '\x5A');
}

void tst_BaseWipeWorker::fillsTheBuffer()
{
    QFETCH(int, type);
    QFETCH(int, value);
    QFETCH(QByteArray, expected);
    OpenWorker worker;
    // The buffer has one byte more than the fill on both sides.
    QByteArray buffer(15, '\x5A');
    worker.fillBuffer(bytes(buffer) + 1, 13,
                      patternOf(static_cast<PatternType>(type), static_cast<quint8>(value)));
    QCOMPARE(buffer, '\x5A' + expected + '\x5A');
}

void tst_BaseWipeWorker::complementInvertsWhatThePreviousFillLeft()
{
    OpenWorker worker;
    QByteArray buffer(9, 'x');
    worker.fillBuffer(bytes(buffer), 9, patternOf(PatternType::Random));
    const QByteArray before = buffer;
    worker.fillBuffer(bytes(buffer), 9, patternOf(PatternType::Complement));
    for (int i = 0; i < 9; ++i)
        QCOMPARE(static_cast<quint8>(buffer[i]), static_cast<quint8>(~before[i]));
    worker.fillBuffer(bytes(buffer), 9, patternOf(PatternType::Complement));
    QCOMPARE(buffer, before);
}

void tst_BaseWipeWorker::aRandomFillOfThirteenBytesTakesTwoDraws()
{
    constexpr quint32 seed = 20260305;
    PatternGenerator random(seed);
    QByteArray buffer(13, 'x');
    OpenWorker::fillBuffer(bytes(buffer), 13, patternOf(PatternType::Random), random);

    QRandomGenerator reference(seed);
    std::array<quint64, 2> words{reference.generate64(), reference.generate64()};
    for (quint64 &word : words)
        word = qToLittleEndian(word);
    QCOMPARE(buffer, QByteArray(reinterpret_cast<const char *>(words.data()), 13));
    QCOMPARE(random.generate(), reference.generate());
}

void tst_BaseWipeWorker::theWorkersOwnGeneratorIsNotReseeded()
{
    OpenWorker worker;
    QByteArray first(64, 'x');
    QByteArray second(64, 'x');
    worker.fillBuffer(bytes(first), 64, patternOf(PatternType::Random));
    worker.fillBuffer(bytes(second), 64, patternOf(PatternType::Random));
    QVERIFY(first != second);
    QVERIFY(first != QByteArray(64, 'x'));
    QVERIFY(worker.drawSeed() != worker.drawSeed());
}

void tst_BaseWipeWorker::twoWorkersHaveDifferentSequences()
{
    OpenWorker one;
    OpenWorker other;
    QByteArray first(64, '\0');
    QByteArray second(64, '\0');
    one.fillBuffer(bytes(first), 64, patternOf(PatternType::Random));
    other.fillBuffer(bytes(second), 64, patternOf(PatternType::Random));
    QVERIFY(first != second);
}

void tst_BaseWipeWorker::anEmptyFillTouchesNothing()
{
    OpenWorker worker;
    for (int type = 0; type <= 5; ++type) {
        QByteArray buffer(4, 'x');
        worker.fillBuffer(bytes(buffer), 0, patternOf(static_cast<PatternType>(type), 1));
        QCOMPARE(buffer, QByteArray(4, 'x'));
    }
}

void tst_BaseWipeWorker::checksTheBuffer_data()
{
    QTest::addColumn<QByteArray>("buffer");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("passes");
    const QByteArray zeros(1024, '\0');
    const QByteArray ones(1024, '\xFF');
    const QByteArray custom(1024, '\xAA');
    QTest::newRow("zeros") << zeros << 0 << 0 << true;
    QTest::newRow("zeros, first byte wrong") << '\1' + zeros << 0 << 0 << false;
    QTest::newRow("zeros, last byte wrong") << zeros + '\1' << 0 << 0 << false;
    QTest::newRow("ones") << ones << 1 << 0 << true;
    QTest::newRow("ones with zeros") << zeros << 1 << 0xFF << false;
    QTest::newRow("ones, last byte wrong") << ones + '\xFE' << 1 << 0 << false;
    QTest::newRow("custom") << custom << 3 << 0xAA << true;
    QTest::newRow("custom, other value") << custom << 3 << 0xAB << false;
    QTest::newRow("custom, one byte wrong") << custom + '\x2A' << 3 << 0xAA << false;
    QTest::newRow("random passes on zeros") << zeros << 2 << 0 << true;
    QTest::newRow("complement passes") << ones << 4 << 0 << true;
    QTest::newRow("unknown type passes") << custom << 9 << 0 << true;
    for (int type = 0; type <= 4; ++type)
        QTest::addRow("empty, type %d", type) << QByteArray() << type << 1 << true;
}

void tst_BaseWipeWorker::checksTheBuffer()
{
    QFETCH(QByteArray, buffer);
    QFETCH(int, type);
    QFETCH(int, value);
    QFETCH(bool, passes);
    const PassPattern pattern = patternOf(static_cast<PatternType>(type), static_cast<quint8>(value));
    QCOMPARE(OpenWorker::verifyBuffer(bytes(buffer), buffer.size(), pattern), passes);
}

void tst_BaseWipeWorker::aTotalOfNothingReportsZeroPercentOnly()
{
    OpenWorker worker;
    worker.m_currentPass = 1;
    worker.m_totalPasses = 1;
    QSignalSpy percents(&worker, &BaseWipeWorker::progressChanged);
    QSignalSpy counts(&worker, &BaseWipeWorker::bytesWritten);
    QSignalSpy speeds(&worker, &BaseWipeWorker::speedUpdated);
    worker.updateProgress(0, 0);
    worker.updateProgress(5, 0);
    QCOMPARE(percents.size(), 2);
    QCOMPARE(percents[0][0].toInt(), 0);
    QCOMPARE(percents[1][0].toInt(), 0);
    QCOMPARE(counts.size(), 0);
    QCOMPARE(speeds.size(), 0);
}

void tst_BaseWipeWorker::percentCountsTheEarlierPasses_data()
{
    QTest::addColumn<int>("pass");
    QTest::addColumn<int>("passes");
    QTest::addColumn<qint64>("done");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("percent");
    QTest::newRow("nothing yet") << 1 << 1 << qint64(0) << qint64(10) << 0;
    QTest::newRow("all of one pass") << 1 << 1 << qint64(10) << qint64(10) << 100;
    QTest::newRow("half of pass 2 of 3") << 2 << 3 << qint64(50) << qint64(100) << 50;
    QTest::newRow("truncated, not rounded") << 1 << 1 << qint64(999) << qint64(1000) << 99;
    QTest::newRow("more than all") << 7 << 7 << qint64(300) << qint64(100) << 100;
    QTest::newRow("below nothing") << 1 << 2 << qint64(-300) << qint64(100) << 0;
    QTest::newRow("beyond 32 bits") << 1 << 2 << (qint64(1) << 42) << (qint64(1) << 43) << 25;
}

void tst_BaseWipeWorker::percentCountsTheEarlierPasses()
{
    QFETCH(int, pass);
    QFETCH(int, passes);
    QFETCH(qint64, done);
    QFETCH(qint64, total);
    QFETCH(int, percent);
    OpenWorker worker;
    worker.m_currentPass = pass;
    worker.m_totalPasses = passes;
    QSignalSpy percents(&worker, &BaseWipeWorker::progressChanged);
    worker.updateProgress(done, total);
    QCOMPARE(percents.size(), 1);
    QCOMPARE(percents[0][0].toInt(), percent);
}

void tst_BaseWipeWorker::bytesCountTheEarlierPasses()
{
    OpenWorker worker;
    worker.m_currentPass = 2;
    worker.m_totalPasses = 3;
    worker.m_bytesBeforePass = 1'000;
    QSignalSpy counts(&worker, &BaseWipeWorker::bytesWritten);
    worker.updateProgress(50, 100);
    QCOMPARE(counts.size(), 1);
    QCOMPARE(counts[0][0].toLongLong(), 1'050);
}

namespace {
// A worker in the only pass of its job, with a clock that the test sets, and the speeds it reports.
class TimedWorker : public OpenWorker
{
public:
    TimedWorker()
        : speeds(this, &BaseWipeWorker::speedUpdated)
    {
        m_currentPass = 1;
        m_totalPasses = 1;
        setClock([this] { return m_now; });
    }
    // The reported speed for progress after the given time, -1 for none.
    double speedAt(qint64 done, std::chrono::milliseconds later)
    {
        m_now += later;
        updateProgress(done, 1'000'000'000);
        return speeds.isEmpty() ? -1.0 : speeds.takeFirst()[0].toDouble();
    }

    QSignalSpy speeds;

private:
    std::chrono::steady_clock::time_point m_now = std::chrono::steady_clock::now();
};
} // namespace

void tst_BaseWipeWorker::speedIsSampledEveryHalfSecond()
{
    TimedWorker worker;
    worker.m_bytesBeforePass = 500;
    QCOMPARE(worker.speedAt(1, 0ms), -1.0);
    QCOMPARE(worker.speedAt(1'000, 499ms), -1.0);
    QCOMPARE(worker.speedAt(1'500, 1ms), 2'000 / 0.5); // since the start, including earlier passes
    QCOMPARE(worker.speedAt(9'000, 499ms), -1.0);
    QCOMPARE(worker.speedAt(9'500, 301ms), 8'000 / 0.8); // since the last sample
}

void tst_BaseWipeWorker::aSampleWithoutNewBytesOnlyRestartsTheTimer()
{
    TimedWorker worker;
    QCOMPARE(worker.speedAt(0, 510ms), -1.0);
    // Without a restart of the timer this would be a sample.
    QCOMPARE(worker.speedAt(10, 499ms), -1.0);
    QCOMPARE(worker.speedAt(10, 1ms), 20.0);
}

void tst_BaseWipeWorker::aSampleOfFewerBytesIsWhereTheNextOneBegins()
{
    TimedWorker worker;
    QCOMPARE(worker.speedAt(5'000, 1s), 5'000.0);
    QCOMPARE(worker.speedAt(2'000, 1s), -1.0);
    QCOMPARE(worker.speedAt(2'700, 1s), 700.0);
}

void tst_BaseWipeWorker::speedIsOfTheSystemsTimeUnlessSet()
{
    QElapsedTimer timer;
    timer.start();
    OpenWorker worker;
    worker.m_currentPass = 1;
    worker.m_totalPasses = 1;
    QSignalSpy speeds(&worker, &BaseWipeWorker::speedUpdated);
    QTest::qWait(510);
    worker.updateProgress(2'000, 10'000);
    const qint64 longest = timer.elapsed() + 1;
    QCOMPARE(speeds.size(), 1);
    // The real time is at least the time waited, so the speed has an upper bound.
    const double speed = speeds[0][0].toDouble();
    QVERIFY2(speed <= 2'000 * 1000.0 / 500, qPrintable(QString::number(speed)));
    QVERIFY2(speed >= 2'000 * 1000.0 / static_cast<double>(longest), qPrintable(QString::number(speed)));
}

void tst_BaseWipeWorker::everyEndOfAJobIsCompletedAndTold_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<QByteArrayList>("steps");
    QTest::newRow("success") << 0 << QByteArrayList{"complete", "finished: true"};
    QTest::newRow("failure") << 1 << QByteArrayList{"complete", "finished: false"};
    QTest::newRow("no memory") << 2 << QByteArrayList{"error", "complete", "finished: false"};
}

void tst_BaseWipeWorker::everyEndOfAJobIsCompletedAndTold()
{
    QFETCH(int, end);
    OpenWorker worker;
    worker.job = [end] {
        if (end == 2)
            throw std::bad_alloc();
        return end == 0;
    };
    connect(&worker, &BaseWipeWorker::errorOccurred, this, [&worker] { worker.steps.append("error"); });
    connect(&worker, &BaseWipeWorker::finished, this,
            [&worker](bool success) { worker.steps.append(success ? "finished: true" : "finished: false"); });
    worker.process();
    QTEST(worker.steps, "steps");
}

QUORVEX_SUITE(tst_BaseWipeWorker, QCoreApplication)
#include "tst_basewipeworker.moc"
