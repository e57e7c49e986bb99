#include "cli/memorymachine.h"
#include "cli/runcli.h"
#include "cli/testio.h"
#include "support/interposeddevices.h"
#include "support/pdfreader.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// The certificates that the command line writes.
class tst_CliCertificates : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void aSuccessLeavesACertificate();
    void aFolderGetsAFileForEachCertificate();
    void aFailureLeavesNone();
    void oneFileForTwoOutputsIsAWrongLine();
    void aCertificateInWhatIsErasedIsRefused();
    void aFolderThatCannotBeWrittenStopsBeforeAnythingIs();
    void aCertificateThatCannotBeWrittenIsToldAndTheResultToo();
    void severalVolumesNeedAFolder();
    void aStoredReportIsExported();
    void bothFormsAreExportedAtOnce();
    void aPartialJobLeavesNoneUnlessThatIsAccepted();
    void noCertificateOfAPartialJobReadsLikeAWholeOne();

private:
    QTemporaryDir m_home;
};

namespace {

void addDrive(MemoryMachine &machine)
{
    machine.memory.addDrive(MemoryDrive(0, 1 << 20));
}

QStringList wipeDrive(const QString &pdf, const QStringList &more = {})
{
    return QStringList{u"wipe"_s, u"disk"_s, u"0"_s, u"--yes"_s, u"--pdf"_s, pdf} + more;
}

bool isPdf(const QString &path)
{
    const QByteArray content = contentOf(path);
    return content.startsWith("%PDF-") && content.trimmed().endsWith("%%EOF");
}

bool saysPartly(const QString &path)
{
    return PdfReader(contentOf(path)).text().remove(u' ').contains(u"Partlyerased:onlythemountedvolumes"_s);
}

} // namespace

void tst_CliCertificates::aSuccessLeavesACertificate()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    const QString path = run.folder() + u"/c.pdf"_s;
    run(wipeDrive(path));
    QCOMPARE(run.code, 0);
    QVERIFY(isPdf(path));
    QVERIFY2(run.io.out.trimmed().endsWith(", PDF " + path.toUtf8()), run.io.out.constData());
}

void tst_CliCertificates::aFolderGetsAFileForEachCertificate()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    const QString folder = run.folder() + u"/certificates"_s;
    QVERIFY(QDir().mkpath(folder));
    run(wipeDrive(folder, {u"--json"_s}));
    QCOMPARE(run.code, 0);
    const QString id = run.io.events().constLast().value(u"certificateId").toString();
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{id + u".pdf"_s});
    QVERIFY(isPdf(folder + u'/' + id + u".pdf"_s));
}

void tst_CliCertificates::aFailureLeavesNone()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.method == "write"_L1 ? platform::Status{1117, 0, "write"} : platform::Status{};
    };
    CliRun run;
    const QString path = run.folder() + u"/c.pdf"_s;
    run(wipeDrive(path));
    QCOMPARE(run.code, 1);
    QVERIFY(!QFile::exists(path));
}

void tst_CliCertificates::oneFileForTwoOutputsIsAWrongLine()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(run.folder() + u"/new"_s, {u"--report"_s, run.folder() + u"/./new"_s}));
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("two outputs"), run.io.err.constData());
    CliRun log;
    log(wipeDrive(log.folder() + u"/quorvex.log"_s));
    QCOMPARE(log.code, 2);
    CliRun stored;
    stored({u"reports"_s, u"export"_s, u"QVX-2026-0305-1001"_s, u"--pdf"_s, stored.folder() + u"/x"_s,
            u"--json-file"_s, stored.folder() + u"/x"_s});
    QCOMPARE(stored.code, 2);
    QVERIFY2(stored.complains("two outputs"), stored.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
}

void tst_CliCertificates::aCertificateInWhatIsErasedIsRefused()
{
    const QTemporaryDir target;
    writeFile(target.filePath(u"secret.txt"_s), "secret");
    CliRun run;
    run({u"wipe"_s, u"files"_s, target.path(), u"--yes"_s, u"--pdf"_s, target.path()});
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("lies in what is to be erased"), run.io.err.constData());
    QCOMPARE(contentOf(target.filePath(u"secret.txt"_s)), QByteArray("secret"));
}

void tst_CliCertificates::aFolderThatCannotBeWrittenStopsBeforeAnythingIs()
{
#ifdef Q_OS_LINUX
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(u"/proc"_s)); // refused to root as well
    QCOMPARE(run.code, 5);
    QCOMPARE(machine.openings(), QStringList());
#else
    QSKIP("SKIPPED: no folder here that nobody may write to");
#endif
}

void tst_CliCertificates::aCertificateThatCannotBeWrittenIsToldAndTheResultToo()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    const QString folder = run.folder() + u"/gone"_s;
    QVERIFY(QDir().mkpath(folder));
    run.io.onOutput = [&folder](const QByteArray &) { QDir(folder).removeRecursively(); };
    run(wipeDrive(folder, {u"--json"_s}));
    QCOMPARE(run.code, 5);
    QCOMPARE(run.io.events(u"error"_s).size(), 1);
    QVERIFY(run.io.events().constLast().value(u"success").toBool());
}

void tst_CliCertificates::severalVolumesNeedAFolder()
{
    CliRun run;
    run({u"wipe"_s, u"free"_s, u"a"_s, u"b"_s, u"--pdf"_s, run.folder() + u"/c.pdf"_s});
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("--pdf takes a folder"), run.io.err.constData());
}

void tst_CliCertificates::aStoredReportIsExported()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(run.folder() + u"/first.pdf"_s, {u"--json"_s}));
    const QString id = run.io.events().constLast().value(u"certificateId").toString();
    TestIo io;
    const QString path = run.folder() + u"/second.pdf"_s;
    QCOMPARE(cli::runCli({u"reports"_s, u"export"_s, id, u"--pdf"_s, path, u"--data-dir"_s, run.folder()}, io,
                         SourceTexts),
             0);
    QVERIFY(isPdf(path));
}

void tst_CliCertificates::bothFormsAreExportedAtOnce()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(run.folder() + u"/first.pdf"_s, {u"--json"_s}));
    const QString id = run.io.events().constLast().value(u"certificateId").toString();
    TestIo io;
    QCOMPARE(cli::runCli({u"reports"_s, u"export"_s, id, u"--pdf"_s, run.folder(), u"--json-file"_s, u"-"_s,
                          u"--data-dir"_s, run.folder()},
                         io, SourceTexts),
             0);
    QVERIFY(isPdf(run.folder() + u'/' + id + u".pdf"_s));
    QCOMPARE(QJsonDocument::fromJson(io.out).object().value(u"certificateId"), QJsonValue(id));
}

void tst_CliCertificates::aPartialJobLeavesNoneUnlessThatIsAccepted()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.memory.addVolume(u"/media/stick"_s, 0, 65536, 65536);
    CliRun run;
    const QString path = run.folder() + u"/c.pdf"_s;
    run(wipeDrive(path));
    QCOMPARE(run.code, 1);
    QVERIFY(!QFile::exists(path));
    run(wipeDrive(path, {u"--accept"_s, u"only-volumes"_s}));
    QCOMPARE(run.code, 0);
    QVERIFY2(saysPartly(path), "the certificate does not say that the job was partial");
}

void tst_CliCertificates::noCertificateOfAPartialJobReadsLikeAWholeOne()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    const auto exported = [&run] {
        const QString id = run.io.events().constLast().value(u"certificateId").toString();
        TestIo io;
        const QString path = run.folder() + u'/' + id + u".pdf"_s;
        const QStringList words{u"reports"_s, u"export"_s,     id,          u"--pdf"_s,
                                path,         u"--data-dir"_s, run.folder()};
        return cli::runCli(words, io, SourceTexts) == 0 ? path : QString();
    };
    run({u"wipe"_s, u"disk"_s, u"0"_s, u"--yes"_s, u"--json"_s});
    QVERIFY(isPdf(exported()));
    QVERIFY(!saysPartly(exported()));
    machine.memory.addVolume(u"/media/stick"_s, 0, 65536, 65536);
    run({u"wipe"_s, u"disk"_s, u"0"_s, u"--yes"_s, u"--json"_s});
    QVERIFY(isPdf(exported()));
    QVERIFY(saysPartly(exported()));
}

QUORVEX_SUITE(tst_CliCertificates, QApplication)
#include "tst_clicertificates.moc"
