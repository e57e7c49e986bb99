#include "cli/testio.h"
#include "support/suite.h"

#include "platform/forwarding.h"
#include "platform/platform.h"
#include "services/limitedquestion.h"
#include "support/fakedevices.h"
#include "support/memorydevices.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

class tst_CliDoctor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void everyAnswerOfADriveIsTold();
    void whatADriveRefusesIsToldWithItsNumber();
    void aDriveThatDoesNotOpenIsNamed();
    void holdersAndVolumesAreTold();
    void aSilentDriveIsToldAndTheOthersFollow();
    void nothingIsOpenedForWriting();
    void nothingIsCreated();
    void rightsAreTold();
    void machinesGetTheSameAnswers();
    void devicesCannotSteerTheTerminal();

private:
    QTemporaryDir m_home;
};

namespace {

// Files and folders come from the system, drives and user from the test.
class Machine
{
public:
    explicit Machine(platform::Devices &devices)
        : m_platform(m_files->files(), m_files->folders(), devices, session)
    {}

    FakeSession session;

private:
    std::unique_ptr<platform::Platform> m_files = platform::createPlatform({{}, true});
    platform::ForwardingPlatform m_platform;
    platform::ScopedPlatform m_scope{m_platform};
};

// Records the openings of drives and volumes, and can delay queries.
class NotedDevices : public platform::ForwardingDevices
{
public:
    using ForwardingDevices::ForwardingDevices;

    QList<platform::DriveAccess> openings;
    int volumesOpened = 0;
    int released = 0;
    int silentDrive = -1;
    std::atomic<bool> mayAnswer{false};

    platform::Result<std::unique_ptr<platform::DeviceQuery>> queryDrive(int number) override
    {
        while (number == silentDrive && !mayAnswer)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return ForwardingDevices::queryDrive(number);
    }
    platform::Result<std::unique_ptr<platform::RawDevice>> openDrive(const platform::DriveIdentity &drive,
                                                                     platform::DriveAccess access) override
    {
        openings.append(access);
        return ForwardingDevices::openDrive(drive, access);
    }
    platform::Result<std::unique_ptr<platform::VolumeDevice>>
    openVolume(const QString &name, const platform::DriveIdentity &drive) override
    {
        ++volumesOpened;
        return ForwardingDevices::openVolume(name, drive);
    }
    platform::VolumeRelease releaseVolumes(const platform::DriveIdentity &drive) override
    {
        ++released;
        return ForwardingDevices::releaseVolumes(drive);
    }
};

// The answer in the line of that question below the subject; null without one.
QString answerTo(const QString &question, const QString &subject, const QByteArray &out)
{
    bool isThere = false;
    for (const QString &line : QString::fromUtf8(out).split(u'\n')) {
        if (!line.startsWith(u' '))
            isThere = line == subject;
        else if (isThere && line.trimmed().startsWith(question + u"  "_s))
            return line.trimmed().mid(question.size()).trimmed();
    }
    return {};
}

QJsonObject sectionOf(const QString &subject, const QJsonArray &sections)
{
    for (const QJsonValue section : sections) {
        if (section.toObject().value(u"subject"_s) == QJsonValue(subject))
            return section.toObject();
    }
    return {};
}

QJsonObject answerIn(const QJsonObject &section, const QString &question)
{
    for (const QJsonValue answer : section.value(u"answers"_s).toArray()) {
        if (answer.toObject().value(u"question"_s) == QJsonValue(question))
            return answer.toObject();
    }
    return {};
}

} // namespace

void tst_CliDoctor::everyAnswerOfADriveIsTold()
{
    MemoryDevices memory;
    MemoryDrive drive(3, 8192);
    drive.model = u"Model 9"_s;
    drive.serialNumber = u"W621"_s;
    drive.worldWideName = u"naa.5000c500a1b2c3d4"_s;
    memory.addDrive(drive);
    const Machine machine(memory);
    CliRun run;
    run({u"doctor"_s});
    QCOMPARE(run.code, 0);
    const auto answer = [&run](const QString &question) {
        return answerTo(question, u"drive 3"_s, run.io.out);
    };
    QCOMPARE(answer(u"path"_s), memory.drivePath(3));
    QCOMPARE(answer(u"geometry"_s), u"8192 bytes, sectors of 512"_s);
    QVERIFY(answer(u"descriptor"_s).contains(u"product \"Model 9\", serial number \"W621\""_s));
    QVERIFY(answer(u"descriptor, raw"_s).startsWith(u"28 00 00 00 "_s));
    for (const QString &question : {u"seek penalty"_s, u"trim"_s, u"held by"_s, u"released by"_s})
        QVERIFY2(!answer(question).isEmpty(), qPrintable(question));
    QCOMPARE(answer(u"world-wide name"_s), u"naa.5000c500a1b2c3d4"_s);
    QCOMPARE(answer(u"read-only"_s), u"no"_s);
    QCOMPARE(answer(u"opened for reading"_s), u"yes"_s);
    QCOMPARE(answer(u"sector size"_s), u"512"_s);
    QCOMPARE(answer(u"length"_s), u"8192"_s);
    QCOMPARE(answer(u"bytes read of the first sector"_s), u"512"_s);
    QVERIFY(!run.io.out.contains("drive 2")); // there is none
}

void tst_CliDoctor::whatADriveRefusesIsToldWithItsNumber()
{
    FakeDevices devices;
    FakeDrive drive = FakeDrive::answeringNothing();
    drive.use = fakeFailure(platform::IoDevice);
    drive.geometry = platform::Status{platform::IoDevice, 1, "IOCTL_GEOMETRY"};
    devices.drives.insert(0, drive);
    const Machine machine(devices);
    CliRun run;
    run({u"doctor"_s});
    QCOMPARE(run.code, 0);
    const QString geometry = answerTo(u"geometry"_s, u"drive 0"_s, run.io.out);
    QVERIFY2(geometry.startsWith(u"error 1117 (system error 1: "_s), qPrintable(geometry));
    QVERIFY2(geometry.endsWith(u"), IOCTL_GEOMETRY"_s), qPrintable(geometry));
    for (const QString &question : {u"descriptor"_s, u"descriptor, raw"_s, u"seek penalty"_s, u"trim"_s})
        QCOMPARE(answerTo(question, u"drive 0"_s, run.io.out), u"error 50, fake device"_s);
    QCOMPARE(answerTo(u"read-only"_s, u"drive 0"_s, run.io.out), u"error 1117, fake device"_s);
}

void tst_CliDoctor::aDriveThatDoesNotOpenIsNamed()
{
    FakeDevices devices;
    devices.drives.insert(5, FakeDrive::refusingToOpen());
    const Machine machine(devices);
    CliRun run;
    run({u"doctor"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(answerTo(u"opened to be asked"_s, u"drive 5"_s, run.io.out), u"error 5, fake device"_s);
}

void tst_CliDoctor::holdersAndVolumesAreTold()
{
    FakeDevices devices;
    FakeDrive drive = FakeDrive::rotating();
    drive.use = platform::DeviceUse{true, {u"LUKS secret"_s}, {u"cryptsetup close secret"_s}};
    devices.drives.insert(0, drive);
    FakeVolume volume = FakeVolume::onDrives(u"/mnt/a"_s, {0, 1});
    volume.mounted.isReady = true;
    volume.mounted.label = u"Photos"_s;
    devices.mount(volume);
    FakeVolume mute = FakeVolume::onDrives(u"/mnt/b"_s, {0});
    mute.extentsAnswer = fakeFailure(platform::NotReady);
    devices.mount(mute);
    devices.volumes.insert(u"hidden"_s, FakeVolume::onDrives(u"hidden"_s, {0}));
    devices.machineNames = QStringList{u"hidden"_s};
    const Machine machine(devices);
    CliRun run;
    run({u"doctor"_s});
    const auto answer = [&run](const QString &question, const QString &subject) {
        return answerTo(question, subject, run.io.out);
    };
    QCOMPARE(answer(u"read-only"_s, u"drive 0"_s), u"yes"_s);
    QCOMPARE(answer(u"held by"_s, u"drive 0"_s), u"LUKS secret"_s);
    QCOMPARE(answer(u"released by"_s, u"drive 0"_s), u"cryptsetup close secret"_s);
    const QString place = answer(u"lies on"_s, u"volume /mnt/a"_s);
    QVERIFY2(place.contains(u"drive 0 from byte "_s) && place.contains(u", drive 1 from byte "_s),
             qPrintable(place));
    QCOMPARE(answer(u"lies on"_s, u"volume /mnt/b"_s), u"error 21, fake device"_s);
    QCOMPARE(answer(u"label"_s, u"mounted at /mnt/a/"_s), u"Photos"_s);
    QVERIFY(answer(u"lies on"_s, u"volume hidden"_s).startsWith(u"drive 0 from byte "_s));

    devices.machineNames = fakeFailure(platform::AccessDenied);
    CliRun refused;
    refused({u"doctor"_s});
    QCOMPARE(answerTo(u"listed"_s, u"volumes of the machine"_s, refused.io.out), u"error 5, fake device"_s);
}

void tst_CliDoctor::aSilentDriveIsToldAndTheOthersFollow()
{
    FakeDevices fakes;
    fakes.drives.insert(0, FakeDrive::rotating());
    fakes.drives.insert(1, FakeDrive::rotating());
    NotedDevices devices(fakes);
    devices.silentDrive = 0;
    limitedquestion::setLimit(std::chrono::milliseconds(50));
    CliRun run;
    {
        const Machine machine(devices);
        run({u"doctor"_s});
        devices.mayAnswer = true;
        // The pending query must end before the devices are destroyed.
        QTRY_VERIFY_WITH_TIMEOUT(limitedquestion::ask(u"drive 0"_s, [] {}), 60'000);
    }
    limitedquestion::setLimit(limitedquestion::DefaultLimit);
    QCOMPARE(run.code, 0);
    QCOMPARE(answerTo(u"any question"_s, u"drive 0"_s, run.io.out), u"no answer in time"_s);
    QVERIFY(!answerTo(u"geometry"_s, u"drive 1"_s, run.io.out).isEmpty());
}

void tst_CliDoctor::nothingIsOpenedForWriting()
{
    MemoryDevices memory;
    memory.addDrive(MemoryDrive(0, 8192));
    MemoryDriveVolume volume;
    volume.name = u"/mnt/a"_s;
    volume.extents = {{0, 4096, 4096}};
    memory.addVolume(volume);
    NotedDevices devices(memory);
    const Machine machine(devices);
    CliRun run;
    run({u"doctor"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(devices.openings, QList{platform::DriveAccess::ReadOnly});
    QCOMPARE(devices.volumesOpened, 0);
    QCOMPARE(devices.released, 0);
}

void tst_CliDoctor::nothingIsCreated()
{
    FakeDevices devices;
    const Machine machine(devices);
    CliRun run;
    run({u"doctor"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(answerTo(u"data folder"_s, u"program"_s, run.io.out), run.folder());
    QVERIFY(answerTo(u"database"_s, u"program"_s, run.io.out).startsWith(u"error 2 "_s));
    QVERIFY(!QFileInfo::exists(run.folder() + u"/quorvex.db"_s));
    QVERIFY(!QFileInfo::exists(run.folder() + u"/quorvex.log"_s));
}

void tst_CliDoctor::rightsAreTold()
{
    FakeDevices devices;
    Machine machine(devices);
    machine.session.user = u"S-1-5-21-7"_s;
    machine.session.systemVolumeNames = QStringList{u"C:"_s};
    const auto rights = [&machine](const platform::Result<bool> &administrator) {
        machine.session.administrator = administrator;
        CliRun run;
        run({u"doctor"_s});
        return answerTo(u"administrator rights"_s, u"system"_s, run.io.out);
    };
    QCOMPARE(rights(true), u"yes"_s);
    QCOMPARE(rights(false), u"no"_s);
    QCOMPARE(rights(fakeFailure(platform::AccessDenied)), u"error 5, fake device"_s);
    CliRun run;
    run({u"doctor"_s});
    QCOMPARE(answerTo(u"user"_s, u"system"_s, run.io.out), u"S-1-5-21-7"_s);
    QCOMPARE(answerTo(u"system volumes"_s, u"system"_s, run.io.out), u"C:"_s);
}

void tst_CliDoctor::machinesGetTheSameAnswers()
{
    FakeDevices devices;
    devices.drives.insert(0, FakeDrive::withoutDescriptor());
    const Machine machine(devices);
    CliRun run;
    run({u"doctor"_s, u"--json"_s});
    QCOMPARE(run.io.documents().size(), 1);
    const QJsonArray sections = run.io.documents().constFirst().array();
    const QJsonObject drive = sectionOf(u"drive 0"_s, sections);
    QCOMPARE(answerIn(drive, u"geometry"_s).value(u"answer"_s),
             QJsonValue(u"500107862016 bytes, sectors of 512"_s));
    const QJsonObject refused = answerIn(drive, u"descriptor"_s);
    QVERIFY(!refused.contains(u"answer"_s));
    QCOMPARE(refused.value(u"code"_s), QJsonValue(u"50"_s));
    QCOMPARE(refused.value(u"systemError"_s), QJsonValue(u"0"_s));
    QCOMPARE(refused.value(u"call"_s), QJsonValue(u"fake device"_s));
    QVERIFY(sections.size() > 2);
    QVERIFY(!answerIn(sectionOf(u"program"_s, sections), u"version"_s).isEmpty());
    QVERIFY(!answerIn(sectionOf(u"system"_s, sections), u"kernel"_s).isEmpty());
}

void tst_CliDoctor::devicesCannotSteerTheTerminal()
{
    MemoryDevices memory;
    memory.addDrive(MemoryDrive(0, 4096));
    MemoryDriveVolume volume;
    volume.name = u"/mnt/\u202Egnp"_s;
    volume.extents = {{0, 0, 4096}};
    volume.label = u"la\x1b]0;title\nbel"_s;
    memory.addVolume(volume);
    const Machine machine(memory);
    CliRun run;
    run({u"doctor"_s});
    for (const QChar character : QString::fromUtf8(run.io.out))
        QVERIFY(character == u'\n' || character.isPrint());
    QCOMPARE(answerTo(u"label"_s, u"mounted at /mnt/[U+202E]gnp"_s, run.io.out),
             u"la[U+001B]]0;title[U+000A]bel"_s);
}

QUORVEX_SUITE(tst_CliDoctor, QCoreApplication)
#include "tst_clidoctor.moc"
