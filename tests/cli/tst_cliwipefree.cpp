#include "cli/testio.h"
#include "support/suite.h"

#include "model/units.h"
#include "platform/forwarding.h"
#include "support/fakedevices.h"
#include "support/faultplan.h"
#include "support/memoryvolume.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QMetaObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>

using namespace Qt::StringLiterals;

class tst_CliWipeFree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void aVolumeIsNamedByItsMountPoint();
    void aVolumeIsNamedByItsLetter();
    void theDriveIsShownAndNoReadBackPromised();
    void aDriveNumberMeansAllItsVolumes();
    void aVolumeOfSeveralDrivesIsFound();
    void anUnknownVolumeIsRefusedBeforeAnyIsFilled();
    void anotherVolumeInItsPlaceIsRefused_data();
    void anotherVolumeInItsPlaceIsRefused();
    void aVolumeThatAnotherJobFillsIsRefused();
    void aSystemVolumeIsAllowed();
    void severalVolumesAreSeveralJobs();
    void eachJobKeepsTheSystemAwake();
    void theSameVolumeTwiceIsOneJob();
    void aVolumeAndItsDriveAreOneJob_data();
    void aVolumeAndItsDriveAreOneJob();
    void aVolumeInTwoPlacesIsOneJob();
    void oneFailureFailsTheWholeButNotTheOthers();
    void aStopSparesTheVolumesBehind();
    void theReportNamesVolumeAndDrive();
    void aLargeReserveIsToldBeforeAndAfter();
    void whatOneVolumeFallsShortOfIsNotForgottenOverTheNext();

private:
    QTemporaryDir m_home;
};

namespace {

constexpr qint64 Reserve = 100 * MiB;

// Memory volumes with space for a few fill files, on one drive, in force for the lifetime of the object.
struct Machine
{
    MemoryVolume volume;
    FakeDevices devices;
    FakeSession session;
    platform::ForwardingPlatform platform{volume, volume, devices, session};
    platform::ScopedPlatform scope{platform};

    Machine() { devices.drives.insert(0, FakeDrive::rotating()); }

    void add(const QString &name, const QList<int> &drives = {0})
    {
        FakeVolume mounted = FakeVolume::onDrives(name, drives);
        mounted.mounted.fileSystem = "ext4";
        mounted.mounted.totalBytes = 1024 * MiB;
        mounted.mounted.freeBytes = Reserve + 8 * MiB;
        devices.mount(mounted);
        volume.freeBytes.insert(name + u'/', Reserve + 8 * MiB);
    }
    // The number of bytes written to fill files on the volume.
    qint64 filled(const QString &name) const
    {
        qint64 sum = 0;
        for (const MemoryVolume::Write &write : volume.writes) {
            if (write.path.startsWith(name + u'/') && write.path.contains(u"/fill_"_s))
                sum += write.size;
        }
        return sum;
    }
    bool holdsFillFiles() const { return !volume.pathsBelow(QString()).filter(u"/fill_"_s).isEmpty(); }
};

QStringList wipeFree(const QStringList &volumes)
{
    return QStringList{u"wipe"_s, u"free"_s} + volumes +
           QStringList{u"--yes"_s, u"--json"_s, u"--buffer-mb"_s, u"1"_s};
}

// On these small volumes the reserve is most of the free space.
QStringList wipeSmall(const QStringList &volumes)
{
    return wipeFree(volumes) + QStringList{u"--accept"_s, u"large-reserve"_s};
}

QStringList targets(const CliRun &run)
{
    QStringList targets;
    for (const QJsonObject &started : run.io.events(u"started"_s))
        targets.append(started.value(u"target").toString());
    return targets;
}

} // namespace

void tst_CliWipeFree::aVolumeIsNamedByItsMountPoint()
{
    for (const QString &name : {u"/media/a"_s, u"/media/a/"_s, u"/media//b/../a"_s}) {
        Machine machine;
        machine.add(u"/media/a"_s);
        machine.add(u"/media/b"_s);
        CliRun run;
        run(wipeSmall({name}));
        QCOMPARE(run.code, 0);
        QCOMPARE(machine.filled(u"/media/a"_s), 8 * MiB);
        QCOMPARE(machine.filled(u"/media/b"_s), qint64(0));
        QVERIFY(!machine.holdsFillFiles());
        const QJsonObject started = run.io.events(u"started"_s).constFirst();
        QCOMPARE(started.value(u"operation"), QJsonValue(u"FreeSpaceWipe"_s));
    }
}

void tst_CliWipeFree::theDriveIsShownAndNoReadBackPromised()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"no"_s};
    run({u"wipe"_s, u"free"_s, u"/media/a"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.io.out.contains("  drive 0: model "), run.io.out.constData());
    QVERIFY(run.io.out.contains("    volume /media/a, "));
    QVERIFY(run.io.out.contains(", not read back"));
}

void tst_CliWipeFree::aVolumeIsNamedByItsLetter()
{
    for (const QString &name : {u"E:"_s, u"e:"_s, u"E:/"_s}) {
        Machine machine;
        machine.add(u"E:"_s);
        CliRun run;
        run(wipeSmall({name}));
        QCOMPARE(run.code, 0);
        QCOMPARE(targets(run), QStringList{u"E:"_s});
        QCOMPARE(machine.filled(u"E:"_s), 8 * MiB);
    }
}

void tst_CliWipeFree::aDriveNumberMeansAllItsVolumes()
{
    Machine machine;
    machine.devices.drives.insert(1, FakeDrive::usbStick());
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    machine.add(u"/media/stick"_s, {1});
    CliRun run;
    run(wipeSmall({u"0"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.events(u"finished"_s).size(), 1);
    QCOMPARE(machine.filled(u"/media/a"_s), 8 * MiB);
    QCOMPARE(machine.filled(u"/media/b"_s), 8 * MiB);
    QCOMPARE(machine.filled(u"/media/stick"_s), qint64(0));
}

void tst_CliWipeFree::aVolumeOfSeveralDrivesIsFound()
{
    Machine machine;
    machine.devices.drives.insert(1, FakeDrive::usbStick());
    machine.add(u"/media/pool"_s, {0, 1});
    CliRun run;
    run(wipeSmall({u"/media/pool"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(machine.filled(u"/media/pool"_s), 8 * MiB);

    // The record has no drive that identifies it in the lists.
    const QString id = run.io.events(u"finished"_s).constFirst().value(u"certificateId").toString();
    run.io.out.clear();
    run({u"reports"_s, u"list"_s});
    QVERIFY2(run.io.out.contains("volume /media/pool (1.00 GB)"), run.io.out.constData());
    run.io.out.clear();
    run({u"reports"_s, u"show"_s, id});
    const QRegularExpression line(u"^Volume +/media/pool$"_s, QRegularExpression::MultilineOption);
    QVERIFY2(line.match(QString::fromUtf8(run.io.out)).hasMatch(), run.io.out.constData());
}

void tst_CliWipeFree::anUnknownVolumeIsRefusedBeforeAnyIsFilled()
{
    for (const QString &name : {u"/media/nothing"_s, u"7"_s, u"Q:"_s, u"/media"_s, QString()}) {
        Machine machine;
        machine.add(u"/media/a"_s);
        CliRun run;
        run(wipeFree({u"/media/a"_s, name}));
        QCOMPARE(run.code, 3);
        QVERIFY2(run.complains("no such"), run.io.err.constData());
        QCOMPARE(machine.volume.calls, 0);
    }
}

void tst_CliWipeFree::anotherVolumeInItsPlaceIsRefused_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("volume") << u"/media/a"_s;
    QTest::newRow("drive") << u"0"_s;
    QTest::newRow("volume of no single drive") << u"/media/pool"_s;
}

void tst_CliWipeFree::anotherVolumeInItsPlaceIsRefused()
{
    QFETCH(const QString, target);
    Machine machine;
    machine.devices.drives.insert(1, FakeDrive::usbStick());
    machine.add(u"/media/a"_s);
    machine.add(u"/media/pool"_s, {0, 1});
    const QString root = target == u"/media/pool" ? target : u"/media/a"_s;
    machine.devices.volumes[root].mounted.identity = u"first"_s;
    machine.volume.identities.insert(root + u'/', u"first"_s);
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"ERASE"_s};
    run.io.onQuestion = [&] { machine.volume.identities.insert(root + u'/', u"second"_s); };
    run({u"wipe"_s, u"free"_s, target, u"--buffer-mb"_s, u"1"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("Volume " + root.toUtf8() +
                           " is not the one that was chosen any more. Nothing was written."),
             run.io.err.constData());
    QCOMPARE(machine.volume.calls, 0);
    QVERIFY(machine.volume.entries.isEmpty());

    CliRun unchanged;
    machine.devices.volumes[root].mounted.identity = u"second"_s;
    unchanged(wipeSmall({target}));
    QCOMPARE(unchanged.code, 0);
}

void tst_CliWipeFree::aVolumeThatAnotherJobFillsIsRefused()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    const QString folder = u"/media/a/.quorvex_temp_01234567"_s;
    machine.volume.addFolder(folder);
    machine.volume.heldByOthers = QStringList{folder};
    CliRun run;
    run(wipeSmall({u"/media/a"_s}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.io.err.contains("Another job is erasing the free space of this volume; its files are in " +
                                 folder.toUtf8() + ". Nothing was written."),
             run.io.err.constData());
    QVERIFY(machine.volume.writes.isEmpty());
    QCOMPARE(machine.volume.pathsBelow(QString()), QStringList{folder});
}

void tst_CliWipeFree::aSystemVolumeIsAllowed()
{
    Machine machine;
    machine.add(u"/system"_s);
    machine.session.systemVolumeNames = QStringList{u"/system"_s};
    machine.session.systemRoots = QStringList{u"/system"_s, u"/system/"_s};
    machine.volume.freeBytes.insert(u"/system/"_s, 1024 * MiB + 4 * MiB); // a system volume keeps 1 GiB
    CliRun run;
    run(wipeSmall({u"/system"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(machine.filled(u"/system"_s), 4 * MiB);
}

void tst_CliWipeFree::severalVolumesAreSeveralJobs()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    CliRun run;
    run(wipeSmall({u"/media/b"_s, u"/media/a"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(targets(run), (QStringList{u"/media/b"_s, u"/media/a"_s}));
    QStringList order;
    QStringList certificates;
    for (const QJsonObject &event : run.io.events()) {
        const QString name = event.value(u"event").toString();
        if (name == u"started"_s || name == u"finished"_s)
            order.append(name);
        if (name == u"started"_s)
            certificates.append(event.value(u"taskId").toString());
    }
    QCOMPARE(order, (QStringList{u"started"_s, u"finished"_s, u"started"_s, u"finished"_s}));
    QCOMPARE(certificates.removeDuplicates(), 0);
}

void tst_CliWipeFree::eachJobKeepsTheSystemAwake()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    QList<int> holds; // at the first pass of each job
    CliRun run;
    run.io.onOutput = [&](const QByteArray &out) {
        if (out.count(R"("event":"pass")") > holds.size())
            holds.append(machine.session.awakeHolds);
    };
    run(wipeSmall({u"/media/a"_s, u"/media/b"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(holds, (QList<int>{1, 1}));
    QCOMPARE(machine.session.awakeRequests.size(), 2);
    QCOMPARE(machine.session.awakeHolds, 0);
}

void tst_CliWipeFree::theSameVolumeTwiceIsOneJob()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    CliRun run;
    run(wipeSmall({u"/media/a"_s, u"/media/a/"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.events(u"started"_s).size(), 1);
}

void tst_CliWipeFree::aVolumeAndItsDriveAreOneJob_data()
{
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("erased");
    QTest::newRow("drive first") << QStringList{u"0"_s, u"/media/a"_s} << QStringList{u"drive 0"_s};
    QTest::newRow("volume first") << QStringList{u"/media/a"_s, u"0"_s} << QStringList{u"drive 0"_s};
    QTest::newRow("another drive between")
        << QStringList{u"/media/a"_s, u"1"_s, u"0"_s, u"1"_s} << QStringList{u"drive 1"_s, u"drive 0"_s};
}

void tst_CliWipeFree::aVolumeAndItsDriveAreOneJob()
{
    QFETCH(const QStringList, named);
    Machine machine;
    machine.devices.drives.insert(1, FakeDrive::usbStick());
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    machine.add(u"/media/stick"_s, {1});
    CliRun run;
    run(wipeSmall(named));
    QCOMPARE(run.code, 0);
    QTEST(targets(run), "erased");
    QCOMPARE(machine.filled(u"/media/a"_s), 8 * MiB);
    QCOMPARE(machine.filled(u"/media/b"_s), 8 * MiB);
}

void tst_CliWipeFree::aVolumeInTwoPlacesIsOneJob()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    machine.add(u"/media/again"_s);
    machine.add(u"/media/b"_s);
    for (const QString &place : {u"/media/a"_s, u"/media/again"_s}) {
        machine.devices.volumes[place].mounted.identity = u"8:1"_s;
        machine.volume.identities.insert(place + u'/', u"8:1"_s);
    }
    CliRun run;
    run(wipeSmall({u"/media/a"_s, u"/media/b"_s, u"/media/again"_s}));
    QCOMPARE(targets(run), QStringList({u"/media/a"_s, u"/media/b"_s}));
}

void tst_CliWipeFree::oneFailureFailsTheWholeButNotTheOthers()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    FaultPlan plan(FaultPlan::CreateFolder, 1, platform::AccessDenied);
    machine.volume.setPlan(&plan);
    CliRun run;
    run(wipeFree({u"/media/a"_s, u"/media/b"_s}));
    QCOMPARE(run.code, 1);
    const QList<QJsonObject> finished = run.io.events(u"finished"_s);
    QCOMPARE(finished.size(), 2);
    QCOMPARE(finished.at(0).value(u"success"), QJsonValue(false));
    QCOMPARE(finished.at(0).value(u"outcome"), QJsonValue(u"failed"_s));
    QCOMPARE(finished.at(1).value(u"outcome"), QJsonValue(u"partial"_s));
    QCOMPARE(machine.filled(u"/media/a"_s), qint64(0));
    QCOMPARE(machine.filled(u"/media/b"_s), 8 * MiB);
}

void tst_CliWipeFree::aStopSparesTheVolumesBehind()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    CliRun run;
    // Requested in the middle of the first job, which waits for the request.
    std::atomic<bool> requested = false;
    machine.volume.onCall = [&](FaultPlan::Kind kind, const QString &) {
        if (kind != FaultPlan::Write)
            return;
        if (!requested.exchange(true))
            QMetaObject::invokeMethod(&run.io.stopRequest(), &cli::StopRequest::request,
                                      Qt::QueuedConnection);
        const QDeadlineTimer patience(60'000); // only reached on failure
        while (!run.io.stopRequest().isRequested() && !patience.hasExpired())
            QThread::msleep(1);
        QThread::msleep(5); // the engine receives the request slightly later
    };
    run(wipeFree({u"/media/a"_s, u"/media/b"_s, u"--method"_s, u"4"_s}));
    QCOMPARE(run.code, 4);
    QCOMPARE(targets(run), QStringList{u"/media/a"_s});
    QCOMPARE(machine.filled(u"/media/b"_s), qint64(0));
    QVERIFY(!machine.holdsFillFiles());
}

void tst_CliWipeFree::theReportNamesVolumeAndDrive()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"r.json"_s);
    CliRun run;
    run(wipeSmall({u"/media/a"_s, u"--report"_s, path}));
    QCOMPARE(run.code, 0);
    const QJsonObject report = QJsonDocument::fromJson(contentOf(path)).object();
    QCOMPARE(report.value(u"operationType"), QJsonValue(2));
    QCOMPARE(report.value(u"totalBytes"), QJsonValue(QString::number(Reserve + 8 * MiB)));
    QCOMPARE(report.value(u"diskInfo").toObject().value(u"serialNumber"), QJsonValue(u"S/N 1"_s));
}

void tst_CliWipeFree::aLargeReserveIsToldBeforeAndAfter()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"ERASE"_s};
    QByteArray asked;
    run.io.onQuestion = [&] { asked = run.io.out; };
    run({u"wipe"_s, u"free"_s, u"/media/a"_s, u"--buffer-mb"_s, u"1"_s});
    QCOMPARE(run.code, 1);
    const QByteArray line = "more than 10 % of the free space is left as a reserve: /media/a";
    QVERIFY2(asked.contains("  not everything will be erased:\n    " + line + " (100.00 MB)\n"),
             asked.constData());
    const QByteArray end = run.io.out.mid(run.io.out.indexOf("PARTLY DONE: "));
    QVERIFY2(end.contains("\n  " + line), run.io.out.constData());

    machine.devices.volumes[u"/media/a"_s].mounted.freeBytes = 1000 * MiB;
    machine.volume.freeBytes.insert(u"/media/a/"_s, 1000 * MiB);
    CliRun large;
    large(wipeFree({u"/media/a"_s}));
    QCOMPARE(large.code, 0);
    QVERIFY2(!large.io.err.contains("not everything"), large.io.err.constData());
    QVERIFY2(large.io.err.contains(
                 "  a small part of the free space is left as a reserve: /media/a (100.00 MB)\n"),
             large.io.err.constData());
}

void tst_CliWipeFree::whatOneVolumeFallsShortOfIsNotForgottenOverTheNext()
{
    Machine machine;
    machine.add(u"/media/a"_s);
    machine.add(u"/media/b"_s);
    machine.volume.freeBytes.insert(u"/media/b/"_s, 1000 * MiB);
    CliRun run;
    run(wipeFree({u"/media/a"_s, u"/media/b"_s}));
    QCOMPARE(run.code, 1);
    const QList<QJsonObject> finished = run.io.events(u"finished"_s);
    QCOMPARE(finished.at(0).value(u"outcome"), QJsonValue(u"partial"_s));
    QCOMPARE(finished.at(1).value(u"outcome"), QJsonValue(u"complete"_s));
}

QUORVEX_SUITE(tst_CliWipeFree, QCoreApplication)
#include "tst_cliwipefree.moc"
