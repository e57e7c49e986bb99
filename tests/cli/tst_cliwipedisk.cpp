#include "cli/runcli.h"
#include "cli/testio.h"
#include "support/faultplan.h"
#include "support/interposeddevices.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "cli/memorymachine.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QMetaObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

class tst_CliWipeDisk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void anImageIsErasedToTheLastByte();
    void aDriveIsNamedByNumberPathOrLink();
    void theMethodIsTakenByNameOrNumber_data();
    void theMethodIsTakenByNameOrNumber();
    void optionsReachTheJob();
    void theSystemDiskIsRefusedUnopened_data();
    void theSystemDiskIsRefusedUnopened();
    void aPartOfADriveIsRefused();
    void aVolumeOnAnotherDriveTooIsRefused();
    void aDriveThatIsHeldIsRefused();
    void aReadOnlyDriveIsRefused();
    void whatComesInTheWayDuringTheQuestionIsRefused();
    void anUnknownDriveIsRefused_data();
    void anUnknownDriveIsRefused();
    void withoutPermissionNothingIsAttempted();
    void aDriveThatChangedIsRefused();
    void aDriveThatIsGoneIsRefused_data();
    void aDriveThatIsGoneIsRefused();
    void withoutConfirmationNothingIsOpened();
    void typingEraseRunsTheJob();
    void aFailedJobIsToldAsSuch();
    void aFailedJobNamesWhatItLeftUnmounted();
    void aStopEndsTheJobCleanly();
    void aSecondStopChangesNothing();
    void aStopBeforeTheJobWritesNothing();

    void eventsFollowTheContract();
    void progressComesAtMostTenTimesASecond();
    void aRefusalIsAnEventToo();
    void quietPrintsTheFinalLineOnly();
    void quietEventsAreErrorsAndTheEnd();
    void theLastLineTellsEverything();
    void theLastLinesTellWhatWasNotErased();
    void aPartOfADriveIsNoSuccess();
    void notesAreNoShortfalls();
    void whatWillStayIsToldBeforeTheQuestion();
    void acceptedShortfallsAreNoFailure();
    void anAcceptedShortfallIsNoExcuseForAFailure();
    void anUnknownKindIsAWrongLine();

    void theWholeDriveIsErased();
    void theQuestionSaysWhatTheWholeDriveIs();
    void volumesAreReleasedAfterTheQuestionOnly();
    void aVolumeInUseIsRefused();
    void aRefusedWholeDriveIsAnEventToo();
    void theSystemDiskIsNotReleased();
    void aDriveThatIsHeldIsNotReleased();
    void aStopAfterTheReleaseGivesTheVolumesBack();
    void afterAFailureVolumesStayUnmounted();
    void afterAStopVolumesStayUnmounted();
    void onlyADriveCanBeWhole_data();
    void onlyADriveCanBeWhole();

    void theReportIsWrittenAfterSuccess();
    void theReportIsWrittenAfterFailure();
    void aReportThatCannotBeWrittenStopsBeforeAnythingIs();
    void aReportLostBehindAnErasureIsTold();
    void aReportMustNotReplaceTheDrive();
    void theJobIsInTheLogOfTheDataFolder();
    void aDataFolderThatCannotBeMadeStopsBeforeAnythingIs();

private:
    QTemporaryDir m_home;
};

namespace {

constexpr qint64 Size = 4 << 20;

QStringList wipeDrive(int number, const QStringList &options = {u"--yes"_s})
{
    return QStringList{u"wipe"_s, u"disk"_s, QString::number(number)} + options;
}

// A drive that is not a system disk.
void addDrive(MemoryMachine &machine, int number = 0)
{
    machine.memory.addDrive(MemoryDrive(number, Size));
}

void addVolume(MemoryMachine &machine)
{
    machine.memory.addVolume(u"/media/stick"_s, 0, 65536, 65536);
}

bool isZero(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

bool isUntouched(const MemoryMachine &machine, int number)
{
    return machine.memory.medium(number) == QByteArray(Size, '\x5C');
}

// Requests a stop, from the event loop, when the text appears on standard output.
void stopAt(TestIo &io, const QByteArray &text, int times = 1)
{
    io.onOutput = [&io, text, left = times](const QByteArray &out) mutable {
        if (!out.contains(text))
            return;
        for (; left > 0; --left)
            QMetaObject::invokeMethod(&io.stopRequest(), &cli::StopRequest::request, Qt::QueuedConnection);
    };
}

// Every write takes long enough for progress to be reported.
void makeSlow(MemoryMachine &machine)
{
    machine.answer = [](const DeviceCall &call) {
        if (call.kind == FaultPlan::Write)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return platform::Status{};
    };
}

// In addition, the job only ends after the stop, however late it comes.
void makeSlowUntilStopped(MemoryMachine &machine, TestIo &io)
{
    machine.answer = [&io, writes = 0](const DeviceCall &call) mutable {
        if (call.kind != FaultPlan::Write)
            return platform::Status{};
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const QDeadlineTimer patience(60'000); // only reached on failure
        for (++writes; writes > 20 && !io.stopRequest().isRequested() && !patience.hasExpired();)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return platform::Status{};
    };
}

} // namespace

void tst_CliWipeDisk::anImageIsErasedToTheLastByte()
{
    const QTemporaryDir folder;
    const QString image = folder.filePath(u"a.img"_s);
    writeFile(image, QByteArray(Size, 'x'));
    const QString other = folder.filePath(u"b.img"_s);
    writeFile(other, QByteArray(Size, 'y'));
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--only-images"_s, u"--image"_s, image, u"--image"_s, other});
    QCOMPARE(run.code, 0);
    QCOMPARE(contentOf(image), QByteArray(Size, '\0'));
    QCOMPARE(contentOf(other), QByteArray(Size, 'y'));
    QCOMPARE(run.io.err, QByteArray());
}

void tst_CliWipeDisk::aDriveIsNamedByNumberPathOrLink()
{
    const QTemporaryDir folder;
    const QString image = folder.filePath(u"a.img"_s);
    const bool hasLink = makeLink(image, folder.filePath(u"link"_s));
    QStringList names{u"0"_s, image};
    if (hasLink)
        names.append(folder.filePath(u"link"_s));
    for (const QString &name : std::as_const(names)) {
        writeFile(image, QByteArray(65536, 'x'));
        CliRun run;
        run({u"wipe"_s, u"disk"_s, name, u"--yes"_s, u"--only-images"_s, u"--image"_s, image});
        QCOMPARE(run.code, 0);
        QCOMPARE(contentOf(image), QByteArray(65536, '\0'));
    }
    if (!hasLink)
        QSKIP(NoLinks);
}

void tst_CliWipeDisk::theMethodIsTakenByNameOrNumber_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<int>("type");
    QTest::newRow("none") << QString() << 0;
    QTest::newRow("number") << u"1"_s << 1;
    QTest::newRow("name") << u"British HMG IS5"_s << 1;
    QTest::newRow("name in lower case") << u"german vsitr"_s << 3;
    QTest::newRow("35 passes") << u"GUTMANN"_s << 4;
}

void tst_CliWipeDisk::theMethodIsTakenByNameOrNumber()
{
    QFETCH(const QString, given);
    QFETCH(const int, type);
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    const QStringList method = given.isEmpty() ? QStringList() : QStringList{u"--method"_s, given};
    run(wipeDrive(0) + method + QStringList{u"--json"_s});
    QCOMPARE(run.code, 0);
    const QJsonObject report = run.io.events().constLast().value(u"report").toObject();
    QCOMPARE(report.value(u"methodType").toInt(-1), type);
}

void tst_CliWipeDisk::optionsReachTheJob()
{
    MemoryMachine machine;
    addDrive(machine);
    qint64 largestWrite = 0;
    int reads = 0;
    machine.answer = [&](const DeviceCall &call) {
        if (call.kind == FaultPlan::Write)
            largestWrite = std::max(largestWrite, call.argument);
        if (call.kind == FaultPlan::Read)
            ++reads;
        return platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--buffer-mb"_s, u"1"_s, u"--samples"_s, u"7"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(largestWrite, qint64(1 << 20));
    QCOMPARE(reads, 7);
    const QJsonObject report = run.io.events().constLast().value(u"report").toObject();
    QCOMPARE(report.value(u"verificationSampleSize").toInt(-1), 7);

    reads = 0;
    CliRun without;
    without(wipeDrive(0) + QStringList{u"--no-verify"_s});
    QCOMPARE(without.code, 0);
    QCOMPARE(reads, 0);
}

void tst_CliWipeDisk::theSystemDiskIsRefusedUnopened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("by number") << u"0"_s;
    QTest::newRow("by path") << u"memory drive 0"_s;
}

void tst_CliWipeDisk::theSystemDiskIsRefusedUnopened()
{
    QFETCH(const QString, name);
    MemoryMachine machine;
    addDrive(machine);
    machine.memory.addVolume(u"/system"_s, 0, 4096, 65536);
    machine.session.systemVolumeNames = QStringList{u"/system"_s};
    CliRun run;
    run({u"wipe"_s, u"disk"_s, name, u"--yes"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("system disk"), run.io.err.constData());
    QCOMPARE(run.io.out, QByteArray());
    QCOMPARE(machine.openings(), QStringList());
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::aPartOfADriveIsRefused()
{
    MemoryMachine machine;
    addDrive(machine, 0);
    addDrive(machine, 1);
    machine.memory.addVolume(u"/parts/one"_s, 1, 4096, 65536);
    CliRun run;
    run({u"wipe"_s, u"disk"_s, u"/parts/one"_s, u"--yes"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("/parts/one is a part of drive 1"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
    QVERIFY(isUntouched(machine, 1));
}

void tst_CliWipeDisk::aVolumeOnAnotherDriveTooIsRefused()
{
    MemoryMachine machine;
    for (const int number : {0, 1, 2})
        addDrive(machine, number);
    MemoryDriveVolume mirror;
    mirror.name = u"/media/mirror"_s;
    mirror.extents = {{1, 4096, 65536}, {2, 4096, 65536}};
    machine.memory.addVolume(mirror);
    for (const int number : {1, 2}) {
        CliRun run;
        run(wipeDrive(number));
        QCOMPARE(run.code, 3);
        const QByteArray message = u"volume /media/mirror lies on drive %1 and also on drive %2; "
                                   "to release it: umount /media/mirror"_s.arg(number)
                                       .arg(3 - number)
                                       .toUtf8();
        QVERIFY2(run.complains(message), run.io.err.constData());
        QVERIFY(isUntouched(machine, 1));
        QVERIFY(isUntouched(machine, 2));
    }
    QCOMPARE(machine.openings(), QStringList());
    CliRun other;
    other(wipeDrive(0));
    QCOMPARE(other.code, 0);
}

void tst_CliWipeDisk::aDriveThatIsHeldIsRefused()
{
    MemoryMachine machine;
    addDrive(machine, 1);
    machine.memory.drive(1).use = {false, {u"LUKS secret"_s, u"LVM vg-data"_s}, {u"one"_s, u"two"_s}};
    CliRun run;
    run(wipeDrive(1));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("drive 1 is held by LUKS secret, LVM vg-data; to release it: one && two"),
             run.io.err.constData());
    QCOMPARE(run.io.out, QByteArray()); // there is no question to ask
    QCOMPARE(machine.openings(), QStringList());
    QVERIFY(isUntouched(machine, 1));
}

void tst_CliWipeDisk::aReadOnlyDriveIsRefused()
{
    MemoryMachine machine;
    addDrive(machine, 1);
    machine.memory.drive(1).use.isReadOnly = true;
    CliRun run;
    run(wipeDrive(1));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("drive 1 is read-only"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());

    machine.memory.drive(1).use.isReadOnly = false;
    machine.answer = [](const DeviceCall &call) {
        return call.method == QLatin1String("openDrive") ? fakeFailure(platform::WriteProtect)
                                                         : platform::Status{};
    };
    CliRun opened;
    opened(wipeDrive(1));
    QCOMPARE(opened.code, 3);
    QVERIFY2(opened.complains("drive 1 is read-only"), opened.io.err.constData());
    QVERIFY(isUntouched(machine, 1));
}

void tst_CliWipeDisk::whatComesInTheWayDuringTheQuestionIsRefused()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"ERASE"_s};
    run.io.onQuestion = [&machine] { machine.memory.drive(0).use.holders = QStringList{u"RAID md0"_s}; };
    run(wipeDrive(0, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("held by RAID md0"), run.io.err.constData());
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::anUnknownDriveIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("number") << u"7"_s;
    QTest::newRow("number of no drive anywhere") << u"99999999999999999999"_s;
    QTest::newRow("negative") << u"-1x"_s;
    QTest::newRow("path") << u"/no/such/drive"_s;
    QTest::newRow("a folder") << u"/"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("arabic digit") << u"٠"_s;
}

void tst_CliWipeDisk::anUnknownDriveIsRefused()
{
    QFETCH(const QString, name);
    MemoryMachine machine;
    addDrive(machine);
    TestIo io;
    const int code = cli::runCli({u"wipe"_s, u"disk"_s, u"--yes"_s, u"--"_s, name}, io, SourceTexts);
    QCOMPARE(code, 3);
    QVERIFY2(io.err.contains("no such drive"), io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
}

void tst_CliWipeDisk::withoutPermissionNothingIsAttempted()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.method == QLatin1String("openDrive") ? fakeFailure(platform::AccessDenied)
                                                         : platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("not permitted"), run.io.err.constData());
#ifdef Q_OS_WIN
    QVERIFY2(run.complains("administrator"), run.io.err.constData());
#else
    QVERIFY2(run.complains("sudo"), run.io.err.constData());
#endif
    QVERIFY(!run.io.out.contains("[info]"));
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::aDriveThatChangedIsRefused()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"ERASE"_s};
    run.io.onQuestion = [&machine] { machine.memory.drive(0).serialNumber = u"ANOTHER"_s; };
    run(wipeDrive(0, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("taken its place"), run.io.err.constData());
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::aDriveThatIsGoneIsRefused_data()
{
    QTest::addColumn<quint32>("error");
    for (const quint32 error : {21u, 55u, 433u, 1110u, 1167u, 1617u})
        QTest::addRow("%u", error) << error;
}

void tst_CliWipeDisk::aDriveThatIsGoneIsRefused()
{
    QFETCH(const quint32, error);
    MemoryMachine machine;
    addDrive(machine);
    machine.answer = [error](const DeviceCall &call) {
        return call.method == QLatin1String("openDrive")
                   ? fakeFailure(static_cast<platform::ErrorCode>(error))
                   : platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("is gone"), run.io.err.constData());
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::withoutConfirmationNothingIsOpened()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(0, {}));
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("not confirmed"), run.io.err.constData());

    CliRun answered;
    answered.io.inputIsTerminal = answered.io.outputIsTerminal = true;
    answered.io.input = QStringList{u"yes"_s};
    answered(wipeDrive(0, {}));
    QCOMPARE(answered.code, 3);
    QVERIFY(answered.complains("not confirmed"));
    QCOMPARE(machine.openings(), QStringList());
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::typingEraseRunsTheJob()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.memory.addVolume(u"/media/stick"_s, 0, 0, 4 << 20);
    CliRun run;
    run.io.inputIsTerminal = run.io.outputIsTerminal = true;
    run.io.input = QStringList{u"ERASE"_s};
    run(wipeDrive(0, {}));
    QCOMPARE(run.code, 0);
    for (const char *word : {"drive 0", "Memory drive", "SERIAL-0", "4.00 MB", "/media/stick", "NIST 800-88"})
        QVERIFY2(run.io.out.left(run.io.out.indexOf("ERASE")).contains(word), word);
}

void tst_CliWipeDisk::aFailedJobIsToldAsSuch()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.kind == FaultPlan::Write ? fakeFailure(platform::IoDevice) : platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0));
    QCOMPARE(run.code, 1);
    QVERIFY(run.io.out.contains("[error] "));
    QVERIFY(run.io.out.contains("1117"));
    QVERIFY(run.io.out.contains("\nFAILED: "));
    QVERIFY(!run.io.out.contains("DONE"));

    CliRun json;
    json(wipeDrive(0) + QStringList{u"--json"_s});
    QCOMPARE(json.code, 1);
    const QJsonObject finished = json.io.events().constLast();
    QCOMPARE(finished.value(u"success"), QJsonValue(false));
    QCOMPARE(finished.value(u"cancelled"), QJsonValue(false));
    QVERIFY(!json.io.events(u"error"_s).isEmpty());
    QVERIFY(!finished.value(u"report").toObject().value(u"errorMessage").toString().isEmpty());
}

void tst_CliWipeDisk::aFailedJobNamesWhatItLeftUnmounted()
{
    for (const bool fails : {true, false}) {
        MemoryMachine machine;
        addDrive(machine);
        machine.memory.addVolume(u"/media/a"_s, 0, 0, Size / 2);
        machine.memory.addVolume(u"/media/b"_s, 0, Size / 2, Size / 2);
        machine.answer = [fails](const DeviceCall &call) {
            return fails && call.kind == FaultPlan::Write ? fakeFailure(platform::IoDevice)
                                                          : platform::Status{};
        };
        CliRun run;
        run(wipeDrive(0));
        QCOMPARE(run.code, fails ? 1 : 0);
        QCOMPARE((run.io.out + run.io.err).contains("left unmounted: /media/a, /media/b"), fails);
    }
}

void tst_CliWipeDisk::aStopEndsTheJobCleanly()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    makeSlowUntilStopped(machine, run.io);
    stopAt(run.io, "\"progress\"");
    run(wipeDrive(0) + QStringList{u"--json"_s, u"--buffer-mb"_s, u"1"_s, u"--method"_s, u"gutmann"_s});
    QCOMPARE(run.code, 4);
    const QJsonObject finished = run.io.events().constLast();
    QCOMPARE(finished.value(u"event"), QJsonValue(u"finished"_s));
    QCOMPARE(finished.value(u"success"), QJsonValue(false));
    QCOMPARE(finished.value(u"cancelled"), QJsonValue(true));
    QCOMPARE(machine.memory.openHandles(), 0);
    QCOMPARE(machine.memory.heldLocks(), 0);
}

void tst_CliWipeDisk::aSecondStopChangesNothing()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    makeSlowUntilStopped(machine, run.io);
    stopAt(run.io, "\"progress\"", 3);
    run(wipeDrive(0) + QStringList{u"--json"_s, u"--buffer-mb"_s, u"1"_s, u"--method"_s, u"gutmann"_s});
    QCOMPARE(run.code, 4);
    QCOMPARE(run.io.events(u"finished"_s).size(), 1);
    QCOMPARE(machine.memory.openHandles(), 0);
}

void tst_CliWipeDisk::aStopBeforeTheJobWritesNothing()
{
    for (const QStringList &options : {QStringList(), QStringList{u"--whole"_s}}) {
        MemoryMachine machine;
        addDrive(machine);
        addVolume(machine);
        CliRun run;
        run.io.stopRequest().request();
        run(wipeDrive(0) + options + QStringList{u"--json"_s});
        QCOMPARE(run.code, 4);
        QCOMPARE(machine.openings(), QStringList());
        QCOMPARE(machine.memory.keeps() + machine.memory.restores(), 0);
        QVERIFY(isUntouched(machine, 0));
        // A script that waits for the end of the job receives it.
        const QJsonObject finished = run.io.events().constLast();
        QCOMPARE(finished.value(u"event"), QJsonValue(u"finished"_s));
        QCOMPARE(finished.value(u"outcome"), QJsonValue(u"cancelled"_s));
        QCOMPARE(finished.value(u"written"), QJsonValue(u"0"_s));
    }
}

void tst_CliWipeDisk::eventsFollowTheContract()
{
    MemoryMachine machine;
    addDrive(machine, 3);
    CliRun run;
    run(wipeDrive(3) + QStringList{u"--json"_s, u"--method"_s, u"1"_s, u"--buffer-mb"_s, u"1"_s});
    QCOMPARE(run.code, 0);
    const QList<QJsonObject> events = run.io.events();
    QVERIFY(events.size() > 5);

    const QJsonObject started = events.constFirst();
    QCOMPARE(started.keys(),
             (QStringList{u"event"_s, u"method"_s, u"operation"_s, u"passes"_s, u"target"_s, u"taskId"_s}));
    QCOMPARE(started.value(u"event"), QJsonValue(u"started"_s));
    QCOMPARE(started.value(u"operation"), QJsonValue(u"DiskWipe"_s));
    QCOMPARE(started.value(u"target"), QJsonValue(u"memory drive 3"_s));
    QCOMPARE(started.value(u"method"), QJsonValue(u"British HMG IS5"_s));
    QCOMPARE(started.value(u"passes"), QJsonValue(2));
    QCOMPARE(started.value(u"taskId").toString().size(), 36);

    const QList<QJsonObject> passes = run.io.events(u"pass"_s);
    QCOMPARE(passes.size(), 2);
    QCOMPARE(passes.at(1), (QJsonObject{{u"event"_s, u"pass"_s}, {u"pass"_s, 2}, {u"passes"_s, 2}}));

    const QList<QJsonObject> progress = run.io.events(u"progress"_s);
    QVERIFY(!progress.isEmpty());
    QCOMPARE(progress.constFirst().keys(),
             (QStringList{u"bytes"_s, u"bytesPerSecond"_s, u"event"_s, u"pass"_s, u"percent"_s}));
    QCOMPARE(progress.constFirst().value(u"bytes"), QJsonValue(u"1048576"_s));
    QVERIFY(progress.constFirst().value(u"bytesPerSecond").isString());
    QCOMPARE(progress.constFirst().value(u"percent"), QJsonValue(12)); // a quarter of the first of two passes

    const QList<QJsonObject> logs = run.io.events(u"log"_s);
    QCOMPARE(logs.constFirst().keys(), (QStringList{u"event"_s, u"level"_s, u"message"_s}));
    QVERIFY(std::any_of(logs.begin(), logs.end(),
                        [](const QJsonObject &log) { return log.value(u"level") == QJsonValue(1); }));

    const QJsonObject finished = events.constLast();
    QCOMPARE(finished.keys(),
             (QStringList{u"cancelled"_s, u"certificateId"_s, u"event"_s, u"further"_s, u"notes"_s,
                          u"outcome"_s, u"report"_s, u"shortfalls"_s, u"success"_s, u"written"_s}));
    QCOMPARE(finished.value(u"written"), QJsonValue(QString::number(2 * Size)));
    QCOMPARE(finished.value(u"success"), QJsonValue(true));
    QCOMPARE(finished.value(u"outcome"), QJsonValue(u"complete"_s));
    QCOMPARE(finished.value(u"shortfalls"), QJsonValue(QJsonArray()));
    QCOMPARE(finished.value(u"cancelled"), QJsonValue(false));
    const QJsonObject report = finished.value(u"report").toObject();
    QCOMPARE(report.value(u"certificateId"), finished.value(u"certificateId"));
    QCOMPARE(report.value(u"bytesWritten"), QJsonValue(QString::number(2 * Size)));
    QCOMPARE(report.value(u"status"), QJsonValue(3));

    for (const QJsonObject &event : events) {
        const QStringList names{u"started"_s, u"pass"_s, u"progress"_s, u"log"_s, u"error"_s, u"finished"_s};
        QVERIFY(names.contains(event.value(u"event").toString()));
    }
}

void tst_CliWipeDisk::progressComesAtMostTenTimesASecond()
{
    MemoryMachine machine;
    addDrive(machine);
    makeSlow(machine);
    CliRun run;
    QElapsedTimer timer;
    timer.start();
    run(wipeDrive(0) + QStringList{u"--json"_s, u"--method"_s, u"2"_s, u"--buffer-mb"_s, u"1"_s});
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(run.code, 0);
    const qsizetype count = run.io.events(u"progress"_s).size();
    QVERIFY(count > 1); // 28 writes of at least 20 ms, of more where the machine is busy
    QVERIFY2((count - 1) * 100 <= elapsed, qPrintable(u"%1 events in %2 ms"_s.arg(count).arg(elapsed)));
}

void tst_CliWipeDisk::aRefusalIsAnEventToo()
{
    MemoryMachine machine;
    CliRun run;
    run(wipeDrive(5) + QStringList{u"--json"_s});
    QCOMPARE(run.code, 3);
    QCOMPARE(run.io.events(), QList<QJsonObject>{(QJsonObject{{u"event"_s, u"error"_s},
                                                              {u"message"_s, u"no such drive: 5"_s}})});
    QVERIFY(run.complains("no such drive"));
}

void tst_CliWipeDisk::quietPrintsTheFinalLineOnly()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run.io.errorIsTerminal = true;
    run(wipeDrive(0) + QStringList{u"--quiet"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out.count('\n'), 1);
    QVERIFY(run.io.out.startsWith("DONE: memory drive 0, "));
    QCOMPARE(run.io.err, QByteArray());

    machine.answer = [](const DeviceCall &call) {
        return call.kind == FaultPlan::Write ? fakeFailure(platform::IoDevice) : platform::Status{};
    };
    CliRun failing;
    failing(wipeDrive(0) + QStringList{u"--quiet"_s});
    QCOMPARE(failing.code, 1);
    const QList<QByteArray> lines = failing.io.out.trimmed().split('\n');
    QVERIFY(lines.size() > 1);
    for (qsizetype i = 0; i + 1 < lines.size(); ++i)
        QVERIFY2(lines.at(i).startsWith("[error] "), lines.at(i).constData());
    QVERIFY(lines.constLast().startsWith("FAILED: "));
}

void tst_CliWipeDisk::quietEventsAreErrorsAndTheEnd()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--quiet"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.events().size(), 1);
    QCOMPARE(run.io.events(u"finished"_s).size(), 1);
    QCOMPARE(run.io.err, QByteArray());
}

void tst_CliWipeDisk::theLastLineTellsEverything()
{
    MemoryMachine machine;
    addDrive(machine);
    const QTemporaryDir folder;
    const QString report = folder.filePath(u"r.json"_s);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--report"_s, report});
    QCOMPARE(run.code, 0);
    const QByteArray last = run.io.out.trimmed().split('\n').constLast();
    const QJsonObject json = QJsonDocument::fromJson(contentOf(report)).object();
    for (const QByteArray &part :
         {QByteArray("DONE: memory drive 0, NIST 800-88, 4.00 MB written in "),
          ", certificate " + json.value(u"certificateId").toString().toUtf8(), ", report " + report.toUtf8()})
        QVERIFY2(last.contains(part), last.constData());
}

void tst_CliWipeDisk::theLastLinesTellWhatWasNotErased()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun whole;
    whole(wipeDrive(0));
    QVERIFY(!whole.io.out.contains("PARTLY") && !whole.io.out.contains("only"));
    addVolume(machine);
    for (const bool quiet : {false, true}) {
        CliRun run;
        run(wipeDrive(0) + (quiet ? QStringList{u"--quiet"_s} : QStringList()));
        QCOMPARE(run.code, 1);
        const QByteArrayList lines = run.io.out.trimmed().split('\n');
        QVERIFY2(lines.size() >= 2, run.io.out.constData());
        QVERIFY2(lines.at(lines.size() - 2).startsWith("PARTLY DONE: memory drive 0, "),
                 run.io.out.constData());
        QCOMPARE(lines.constLast(),
                 QByteArray("  only the mounted volumes are erased, not the rest of the drive (3.94 MB)"));
        QCOMPARE(run.io.err, QByteArray());
        QVERIFY(run.log().contains("Job partial"));
        QVERIFY(run.log().contains("only the mounted volumes"));
    }
}

// The output for scripts must not say that the drive is erased.
void tst_CliWipeDisk::aPartOfADriveIsNoSuccess()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    for (const bool quiet : {false, true}) {
        CliRun run;
        run(wipeDrive(0) + QStringList{u"--json"_s} + (quiet ? QStringList{u"--quiet"_s} : QStringList()));
        QCOMPARE(run.code, 1);
        const QJsonObject finished = run.io.events().constLast();
        QCOMPARE(finished.value(u"success"), QJsonValue(false));
        QCOMPARE(finished.value(u"cancelled"), QJsonValue(false));
        QCOMPARE(finished.value(u"outcome"), QJsonValue(u"partial"_s));
        QCOMPARE(finished.value(u"shortfalls").toArray(),
                 (QJsonArray{QJsonObject{
                     {u"kind"_s, u"only-volumes"_s},
                     {u"place"_s, QString()},
                     {u"bytes"_s, QString::number(Size - 65536)},
                     {u"text"_s, u"only the mounted volumes are erased, not the rest of the drive"_s}}}));
        QCOMPARE(finished.value(u"notes"), QJsonValue(QJsonArray()));
    }
}

void tst_CliWipeDisk::notesAreNoShortfalls()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--json"_s, u"--no-verify"_s});
    QCOMPARE(run.code, 0);
    const QJsonObject finished = run.io.events().constLast();
    QCOMPARE(finished.value(u"outcome"), QJsonValue(u"complete"_s));
    QCOMPARE(finished.value(u"notes").toArray().at(0).toObject().value(u"kind"),
             QJsonValue(u"not-read-back"_s));
}

void tst_CliWipeDisk::whatWillStayIsToldBeforeTheQuestion()
{
    MemoryMachine machine;
    addDrive(machine);
    const auto asked = [&machine] {
        CliRun run;
        run.io.inputIsTerminal = run.io.outputIsTerminal = true;
        run.io.input = QStringList{u"no"_s};
        run(wipeDrive(0, {}));
        return run.io.out;
    };
    QVERIFY(!asked().contains("not everything"));
    addVolume(machine);
    QVERIFY2(
        asked().contains("  not everything will be erased:\n    only the mounted volumes are erased, not the "
                         "rest of the drive (3.94 MB)\n"),
        asked().constData());
}

void tst_CliWipeDisk::acceptedShortfallsAreNoFailure()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    for (const QStringList &accepted :
         {QStringList{u"--accept"_s, u"only-volumes"_s},
          QStringList{u"--accept"_s, u"room-left"_s, u"--accept"_s, u"only-volumes"_s}}) {
        CliRun run;
        run(wipeDrive(0) + accepted + QStringList{u"--json"_s});
        QCOMPARE(run.code, 0);
        // The outcome stays the same.
        QCOMPARE(run.io.events().constLast().value(u"outcome"), QJsonValue(u"partial"_s));
        QCOMPARE(run.io.events().constLast().value(u"success"), QJsonValue(false));
    }
    CliRun other;
    other(wipeDrive(0) + QStringList{u"--accept"_s, u"room-left"_s});
    QCOMPARE(other.code, 1);
}

void tst_CliWipeDisk::anAcceptedShortfallIsNoExcuseForAFailure()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.method == "write"_L1 ? platform::Status{1117, 0, "write"} : platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--accept"_s, u"only-volumes"_s, u"--json"_s});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.io.events().constLast().value(u"outcome"), QJsonValue(u"failed"_s));
}

void tst_CliWipeDisk::anUnknownKindIsAWrongLine()
{
    MemoryMachine machine;
    addDrive(machine);
    for (const QString &kind : {u"everything"_s, u""_s, u"Only-Volumes"_s}) {
        CliRun run;
        run(wipeDrive(0) + QStringList{u"--accept"_s, u"room-left"_s, u"--accept"_s, kind});
        QCOMPARE(run.code, 2);
        QVERIFY2(run.complains("unknown kind of shortfall"), run.io.err.constData());
        QVERIFY(run.io.err.contains("only-volumes, "));
        QVERIFY(isUntouched(machine, 0));
    }
}

void tst_CliWipeDisk::theWholeDriveIsErased()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--whole"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(machine.memory.medium(0), QByteArray(Size, '\0'));
    QCOMPARE(run.io.events().constLast().value(u"outcome"), QJsonValue(u"complete"_s));
    QCOMPARE(machine.openings().filter(u"openVolume"_s), QStringList());
    QCOMPARE(machine.memory.keeps(), 1);
    QVERIFY(!run.io.out.contains("left unmounted"));
}

void tst_CliWipeDisk::theQuestionSaysWhatTheWholeDriveIs()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    const auto asked = [](const QStringList &options) {
        CliRun run;
        run.io.inputIsTerminal = run.io.outputIsTerminal = true;
        run.io.input = QStringList{u"no"_s};
        run(wipeDrive(0, options));
        return run.io.out;
    };
    const QByteArray whole = asked({u"--whole"_s});
    QVERIFY2(whole.contains("  the whole drive: its partition table and everything between and outside its "
                            "volumes\n  its volumes are unmounted before, and stay so once something was "
                            "written\n"),
             whole.constData());
    QVERIFY(!whole.contains("not everything"));
    QVERIFY(!asked({}).contains("whole drive"));
    MemoryMachine bare;
    addDrive(bare);
    const QByteArray withoutVolumes = asked({u"--whole"_s});
    QVERIFY(withoutVolumes.contains("the whole drive: "));
    QVERIFY(!withoutVolumes.contains("unmounted before"));
}

void tst_CliWipeDisk::volumesAreReleasedAfterTheQuestionOnly()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    for (const QString &answer : {u"no"_s, u"ERASE"_s}) {
        CliRun run;
        run.io.inputIsTerminal = run.io.outputIsTerminal = true;
        run.io.input = QStringList{answer};
        run.io.onQuestion = [&machine] {
            QCOMPARE(machine.memory.releasedDrives(), 0);
            QCOMPARE(machine.memory.volumeNames().size(), 1);
        };
        run(wipeDrive(0, {u"--whole"_s}));
        QCOMPARE(run.code, answer == u"no"_s ? 3 : 0);
        QCOMPARE(machine.memory.keeps() + machine.memory.restores(), answer == u"no"_s ? 0 : 1);
    }
}

void tst_CliWipeDisk::aVolumeInUseIsRefused()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    machine.memory.volume(u"/media/stick"_s).releaseError = platform::SharingViolation;
    const QTemporaryDir folder;
    const QString report = folder.filePath(u"r.json"_s);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--whole"_s, u"--report"_s, report});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("Volume /media/stick is in use and cannot be unmounted. Nothing was written."),
             run.io.err.constData());
    QVERIFY(!run.io.out.contains("[info]"));
    QVERIFY(isUntouched(machine, 0));
    QVERIFY(!QFileInfo::exists(report));
    QCOMPARE(machine.memory.volumeNames(), QStringList{u"/media/stick"_s});
}

void tst_CliWipeDisk::aRefusedWholeDriveIsAnEventToo()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    machine.memory.volume(u"/media/stick"_s).releaseError = platform::SharingViolation;
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--whole"_s, u"--json"_s});
    QCOMPARE(run.code, 3);
    QCOMPARE(run.io.events().size(), 1);
    QCOMPARE(run.io.events().constFirst().value(u"event"), QJsonValue(u"error"_s));
}

void tst_CliWipeDisk::theSystemDiskIsNotReleased()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    machine.session.systemVolumeNames = QStringList{u"/media/stick"_s};
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--whole"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("system disk"), run.io.err.constData());
    QCOMPARE(machine.memory.keeps() + machine.memory.restores(), 0);
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::aDriveThatIsHeldIsNotReleased()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    machine.memory.drive(0).use.holders = QStringList{u"LUKS secret"_s};
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--whole"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("held by LUKS secret"), run.io.err.constData());
    QCOMPARE(machine.memory.keeps() + machine.memory.restores(), 0);
}

void tst_CliWipeDisk::aStopAfterTheReleaseGivesTheVolumesBack()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    CliRun run;
    machine.answer = [&run](const DeviceCall &call) {
        if (call.method == "releaseVolumes"_L1)
            run.io.stopRequest().request();
        return platform::Status{};
    };
    run(wipeDrive(0) + QStringList{u"--whole"_s});
    QCOMPARE(run.code, 4);
    QVERIFY(isUntouched(machine, 0));
    QCOMPARE(machine.memory.restores(), 1);
    QCOMPARE(machine.memory.volumeNames(), QStringList{u"/media/stick"_s});
    QVERIFY(!(run.io.out + run.io.err).contains("left unmounted"));
}

void tst_CliWipeDisk::afterAFailureVolumesStayUnmounted()
{
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.kind == FaultPlan::Write ? fakeFailure(platform::IoDevice) : platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--whole"_s});
    QCOMPARE(run.code, 1);
    QVERIFY((run.io.out + run.io.err).contains("left unmounted: /media/stick"));
    QCOMPARE(machine.memory.keeps(), 1);
    QCOMPARE(machine.memory.volumeNames(), QStringList());
}

void tst_CliWipeDisk::afterAStopVolumesStayUnmounted()
{
    for (const QStringList &options : {QStringList(), QStringList{u"--whole"_s}}) {
        MemoryMachine machine;
        addDrive(machine);
        machine.memory.addVolume(u"/media/stick"_s, 0, 0, Size);
        CliRun run;
        makeSlowUntilStopped(machine, run.io);
        stopAt(run.io, "\"progress\"");
        run(wipeDrive(0) + options +
            QStringList{u"--json"_s, u"--buffer-mb"_s, u"1"_s, u"--method"_s, u"gutmann"_s});
        QCOMPARE(run.code, 4);
        QVERIFY((run.io.out + run.io.err).contains("left unmounted: /media/stick"));
    }
}

void tst_CliWipeDisk::onlyADriveCanBeWhole_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("free space") << QStringList{u"wipe"_s, u"free"_s, u"0"_s};
    QTest::newRow("files") << QStringList{u"wipe"_s, u"files"_s, u"x"_s};
    QTest::newRow("trash") << QStringList{u"wipe"_s, u"trash"_s};
    QTest::newRow("disks") << QStringList{u"disks"_s};
}

void tst_CliWipeDisk::onlyADriveCanBeWhole()
{
    QFETCH(const QStringList, words);
    MemoryMachine machine;
    addDrive(machine);
    addVolume(machine);
    CliRun run;
    run(words + QStringList{u"--whole"_s});
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("whole"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
}

void tst_CliWipeDisk::theReportIsWrittenAfterSuccess()
{
    MemoryMachine machine;
    addDrive(machine);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"r.json"_s);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--report"_s, path, u"--json"_s});
    QCOMPARE(run.code, 0);
    const QJsonDocument report = QJsonDocument::fromJson(contentOf(path));
    QCOMPARE(report.object(), run.io.events().constLast().value(u"report").toObject());
    QVERIFY(contentOf(path).startsWith("{\n    \"certificateId\": \"QVX-"));
}

void tst_CliWipeDisk::theReportIsWrittenAfterFailure()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.kind == FaultPlan::Write ? fakeFailure(platform::WriteProtect) : platform::Status{};
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"r.json"_s);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--report"_s, path});
    QCOMPARE(run.code, 1);
    const QJsonObject report = QJsonDocument::fromJson(contentOf(path)).object();
    QCOMPARE(report.value(u"status"), QJsonValue(4));
    QVERIFY(run.io.out.trimmed().endsWith(", report " + path.toUtf8()));
}

void tst_CliWipeDisk::aReportThatCannotBeWrittenStopsBeforeAnythingIs()
{
    const QString unwritable = u"/proc/quorvex-report.json"_s; // refused to root as well
    if (!QFileInfo(u"/proc"_s).isDir())
        QSKIP("SKIPPED: no /proc: where a folder refuses files even to root is not known here");
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--report"_s, unwritable});
    QCOMPARE(run.code, 5);
    QVERIFY2(run.complains("cannot be written"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
    QVERIFY(isUntouched(machine, 0));
}

void tst_CliWipeDisk::aReportLostBehindAnErasureIsTold()
{
    MemoryMachine machine;
    addDrive(machine);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"gone"_s));
    const QString path = folder.filePath(u"gone/r.json"_s);
    machine.answer = [&folder](const DeviceCall &call) {
        if (call.kind == FaultPlan::Write)
            QDir(folder.path()).rmdir(u"gone"_s);
        return platform::Status{};
    };
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--report"_s, path, u"--json"_s});
    QCOMPARE(run.code, 5);
    QVERIFY(isZero(machine.memory.medium(0)));
    const QList<QJsonObject> errors = run.io.events(u"error"_s);
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors.constFirst().value(u"message").toString().contains(path));
    QCOMPARE(run.io.events().constLast().value(u"success"),
             QJsonValue(true)); // the erased drive is still reported
}

void tst_CliWipeDisk::aReportMustNotReplaceTheDrive()
{
    const QTemporaryDir folder;
    const QString image = folder.filePath(u"a.img"_s);
    writeFile(image, QByteArray(65536, 'x'));
    CliRun run;
    run(wipeDrive(0) + QStringList{u"--only-images"_s, u"--image"_s, image, u"--report"_s, image});
    QCOMPARE(run.code, 2);
    QVERIFY(run.complains("lies in what is to be erased"));
    QCOMPARE(contentOf(image), QByteArray(65536, 'x'));
}

void tst_CliWipeDisk::theJobIsInTheLogOfTheDataFolder()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(0));
    QCOMPARE(run.code, 0);
    const QByteArray log = run.log();
    QCOMPARE(log.count('\n'), 2);
    QVERIFY(log.contains("started: DiskWipe, memory drive 0, NIST 800-88\n"));
    QVERIFY(log.contains("Job succeeded, certificate QVX-"));
    QVERIFY(!run.io.out.contains("Job succeeded"));
}

void tst_CliWipeDisk::aDataFolderThatCannotBeMadeStopsBeforeAnythingIs()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"file"_s), "x");
    MemoryMachine machine;
    addDrive(machine);
    TestIo io;
    const int code = cli::runCli(wipeDrive(0) + QStringList{u"--data-dir"_s, folder.filePath(u"file/sub"_s)},
                                 io, SourceTexts);
    QCOMPARE(code, 5);
    QVERIFY2(io.err.contains("data folder"), io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
}

QUORVEX_SUITE(tst_CliWipeDisk, QCoreApplication)
#include "tst_cliwipedisk.moc"
