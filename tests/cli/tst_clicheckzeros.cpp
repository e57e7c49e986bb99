#include "cli/memorymachine.h"
#include "cli/testio.h"
#include "support/interposeddevices.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonValue>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// "check --zeros" on files and drives.
class tst_CliCheckZeros : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void anEmptyFileDoesNotPass();
    void aFileOfZerosPasses_data();
    void aFileOfZerosPasses();
    void theFirstOtherByteIsTold_data();
    void theFirstOtherByteIsTold();
    void theAnswerForMachines();
    void aLinkToAnImageIsFollowed();
    void anImageDriveIsReadByItsNumber();
    void aDriveIsOnlyRead();
    void aDriveThatCannotBeReadIsNotZero();
    void whatIsNotThereIsRefused();
    void aStopEndsTheReading();

private:
    QTemporaryDir m_home;
};

namespace {

constexpr qsizetype Chunk = 8 << 20;

QStringList check(const QString &target, const QStringList &more = {})
{
    return QStringList{u"check"_s, u"--zeros"_s, target} + more;
}

} // namespace

// A truncated copy proves nothing.
void tst_CliCheckZeros::anEmptyFileDoesNotPass()
{
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    writeFile(path, {});
    run(check(path));
    QCOMPARE(run.code, 1);
    QVERIFY(run.complains("is empty, there is nothing to check"));
}

void tst_CliCheckZeros::aFileOfZerosPasses_data()
{
    QTest::addColumn<qsizetype>("size");
    for (const qsizetype size :
         {qsizetype(1), qsizetype(511), qsizetype(512), Chunk - 1, Chunk, Chunk + 1, 2 * Chunk + 4097})
        QTest::addRow("%lld bytes", static_cast<long long>(size)) << size;
}

void tst_CliCheckZeros::aFileOfZerosPasses()
{
    QFETCH(qsizetype, size);
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    writeFile(path, QByteArray(size, '\0'));
    run(check(path));
    QCOMPARE(run.code, 0);
    const QByteArray expected = "ALL ZERO: every one of the " + QByteArray::number(size) + " bytes of ";
    QVERIFY2(run.io.out.startsWith(expected), run.io.out.constData());
}

void tst_CliCheckZeros::theFirstOtherByteIsTold_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<qsizetype>("place");
    QTest::newRow("the first") << qsizetype(4096) << qsizetype(0);
    QTest::newRow("the last of a sector") << qsizetype(4096) << qsizetype(511);
    QTest::newRow("the last of an odd file") << qsizetype(1001) << qsizetype(1000);
    QTest::newRow("the last of a chunk") << Chunk + 1 << Chunk - 1;
    QTest::newRow("the first of the next chunk") << Chunk + 4096 << Chunk;
    QTest::newRow("the very last") << Chunk + 1 << Chunk;
}

void tst_CliCheckZeros::theFirstOtherByteIsTold()
{
    QFETCH(qsizetype, size);
    QFETCH(qsizetype, place);
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    QByteArray content(size, '\0');
    content[place] = '\x0f';
    content[size - 1] = content[size - 1] == '\0' ? '\x01' : content[size - 1];
    writeFile(path, content);
    run(check(path));
    QCOMPARE(run.code, 1);
    QCOMPARE(run.io.out,
             "NOT ZERO: byte " + QByteArray::number(place) + " of " + path.toUtf8() + " is 0x0F\n");
}

void tst_CliCheckZeros::theAnswerForMachines()
{
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    writeFile(path, QByteArray(600, '\0') + '\xff');
    run(check(path, {u"--json"_s}));
    QCOMPARE(run.code, 1);
    const QJsonObject answer = run.io.documents().constFirst().object();
    QCOMPARE(answer.value(u"zeros"), QJsonValue(false));
    QCOMPARE(answer.value(u"offset"), QJsonValue(u"600"_s));
    QCOMPARE(answer.value(u"value"), QJsonValue(255));
}

void tst_CliCheckZeros::aLinkToAnImageIsFollowed()
{
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    writeFile(path, QByteArray(600, '\0'));
    if (!makeLink(path, run.folder() + u"/link"_s))
        QSKIP(NoLinks);
    run(check(run.folder() + u"/link"_s));
    QCOMPARE(run.code, 0);
}

void tst_CliCheckZeros::anImageDriveIsReadByItsNumber()
{
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    writeFile(path, QByteArray(8192, '\0'));
    run(check(u"0"_s, {u"--only-images"_s, u"--image"_s, path}));
    QCOMPARE(run.code, 0);
    writeFile(path, QByteArray(8191, '\0') + 'x');
    CliRun other;
    other(check(u"0"_s, {u"--only-images"_s, u"--image"_s, path}));
    QCOMPARE(other.code, 1);
    QVERIFY2(other.io.out.startsWith("NOT ZERO: byte 8191 of "), other.io.out.constData());
}

void tst_CliCheckZeros::aDriveIsOnlyRead()
{
    MemoryMachine machine;
    machine.memory.addDrive(MemoryDrive(0, 1 << 20, 512, '\0'));
    bool isWritten = false;
    machine.answer = [&isWritten](const DeviceCall &call) {
        isWritten = isWritten || call.method == "write"_L1 || call.method == "lock"_L1;
        return platform::Status{};
    };
    CliRun run;
    run(check(u"0"_s));
    QCOMPARE(run.code, 0);
    QVERIFY(!isWritten);
}

void tst_CliCheckZeros::aDriveThatCannotBeReadIsNotZero()
{
    MemoryMachine machine;
    machine.memory.addDrive(MemoryDrive(0, 1 << 20, 512, '\0'));
    machine.answer = [](const DeviceCall &call) {
        return call.method == "read"_L1 ? platform::Status{1117, 0, "read"} : platform::Status{};
    };
    CliRun run;
    run(check(u"0"_s));
    QCOMPARE(run.code, 1);
    QVERIFY2(run.complains("error 1117"), run.io.err.constData());
    QVERIFY(!run.io.out.contains("ALL ZERO"));
}

void tst_CliCheckZeros::whatIsNotThereIsRefused()
{
    CliRun missing;
    missing(check(missing.folder() + u"/missing"_s));
    QCOMPARE(missing.code, 3);
    CliRun folder;
    folder(check(folder.folder()));
    QCOMPARE(folder.code, 3);
    CliRun drive;
    drive(check(u"7"_s));
    QCOMPARE(drive.code, 3);
}

void tst_CliCheckZeros::aStopEndsTheReading()
{
    CliRun run;
    const QString path = run.folder() + u"/a.img"_s;
    writeFile(path, QByteArray(600, '\0'));
    run.io.stopRequest().request();
    run(check(path));
    QCOMPARE(run.code, 4);
    QVERIFY(!run.io.out.contains("ALL ZERO"));
}

QUORVEX_SUITE(tst_CliCheckZeros, QCoreApplication)
#include "tst_clicheckzeros.moc"
