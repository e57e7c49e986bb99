#include "cli/memorymachine.h"
#include "cli/runcli.h"
#include "cli/testio.h"
#include "support/interposeddevices.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "model/wipereport.h"
#include "services/reportdatabase.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

using namespace Qt::StringLiterals;

// "reports", "check", and the records that "wipe" stores in the database.
class tst_CliReports : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }

    void anErasedDriveIsInTheDatabase();
    void withNoReportNothingIsStored();
    void aFailedJobIsStoredToo();
    void aDatabaseThatCannotBeOpenedStopsBeforeAnythingIs();
    void withNoReportABadDatabaseDoesNotMatter();
    void theLogInWhatIsErasedIsRefused();
    void whatWasNotReadBackIsNotCalledSo();
    void aDatabaseInWhatIsErasedIsRefused();
    void aReportThatCannotBeStoredIsToldAndTheResultToo();
    void aForeignFileIsReplacedOnlyByForce();
    void oneFileForTwoOutputsIsAWrongLine_data();
    void oneFileForTwoOutputsIsAWrongLine();
    void noStoredReportIsReplaced();
    void aDayWithoutACertificateNumberLeftIsRefused();

    void theListHasTheLatestFirst();
    void theListTakesLimitAndOffset();
    void aBadLimitIsAWrongLine_data();
    void aBadLimitIsAWrongLine();
    void anEmptyDatabaseSaysSo();
    void theListForMachinesHoldsWholeReports();
    void damagedTextIsListedAsSuch();
    void aReportIsShown();
    void aReportIsShownToMachines();
    void outcomesAreListedAndShown();
    void theOutcomeOfAJobIsStored();
    void anUnknownIdIsRefused_data();
    void anUnknownIdIsRefused();
    void damagedTextIsNotShown();
    void theStoredTextIsExportedByteForByte();
    void theStoredTextGoesToStandardOutput();
    void anExportNeedsADestination();
    void anExportThatCannotBeWrittenSaysSo();
    void aReportIsDeleted();
    void aDamagedReportCanBeDeleted();

    void theExportedReportIsTheSame();
    void theReportFileOfAJobIsTheSame();
    void theFirstFieldThatDiffersIsNamed_data();
    void theFirstFieldThatDiffersIsNamed();
    void anotherWritingOfTheSameFieldsIsToldApart();
    void aReportWithoutRecordIsNotTheSame();
    void whatIsNoReportIsNotTheSame_data();
    void whatIsNoReportIsNotTheSame();
    void aMissingFileIsRefused();

private:
    QTemporaryDir m_home;
};

namespace {

WipeReport reportOf(const QString &id, int day = 1)
{
    WipeReport report;
    report.certificateId = id;
    report.operationType = DiskWipe;
    report.startTime = QDateTime(QDate(2026, 3, day), QTime(14, 7, 9));
    report.endTime = report.startTime.addSecs(65);
    report.status = WipeStatus::Completed;
    report.disk.model = u"Model "_s + id;
    report.disk.serialNumber = u"S/N "_s + id;
    report.disk.sizeBytes = 1 << 20;
    report.totalSectors = 2048;
    report.wipedSectors = 2048;
    report.bytesWritten = 1 << 20;
    report.verificationPassed = true;
    report.dataHash = u"abc123"_s;
    return report;
}

bool store(const QString &folder, const QList<WipeReport> &reports)
{
    ReportDatabase &database = ReportDatabase::instance();
    bool stored = database.initialize(folder);
    for (const WipeReport &report : reports)
        stored = stored && database.saveReport(report);
    database.close();
    return stored;
}

// Replaces the text of a stored report.
bool damage(const QString &folder, const QString &id, const QString &text)
{
    ReportDatabase &database = ReportDatabase::instance();
    if (!database.initialize(folder))
        return false;
    QSqlQuery query;
    query.prepare(u"UPDATE wipe_reports SET report_json = ? WHERE certificate_id = ?"_s);
    query.addBindValue(text);
    query.addBindValue(id);
    const bool done = query.exec() && query.numRowsAffected() == 1;
    query.clear();
    database.close();
    return done;
}

// Stores a record for each certificate number of today and tomorrow except the spared one.
bool takeNumbers(const QString &folder, int spared)
{
    ReportDatabase &database = ReportDatabase::instance();
    bool isTaken = database.initialize(folder);
    for (const QDate day : {QDate::currentDate(), QDate::currentDate().addDays(1)}) {
        QSqlQuery query;
        isTaken =
            isTaken &&
            query.prepare(
                u"WITH RECURSIVE n(i) AS (SELECT 1000 UNION ALL SELECT i + 1 FROM n WHERE i < 9998) "
                "INSERT INTO wipe_reports (certificate_id, operation_type, method_name, method_type, "
                "pass_count, "
                "start_time, status, report_json) SELECT ? || i, 0, '', 0, 1, '', 3, '{}' FROM n WHERE i <> ?"_s);
        query.addBindValue(day.toString(u"'QVX-'yyyy-MMdd-"_s));
        query.addBindValue(spared);
        isTaken = isTaken && query.exec();
    }
    database.close();
    return isTaken;
}

QByteArray storedText(const QString &folder, const QString &id)
{
    ReportDatabase &database = ReportDatabase::instance();
    QByteArray text;
    if (database.initialize(folder))
        text = database.storedJson(id).value_or(QByteArray());
    database.close();
    return text;
}

void addDrive(MemoryMachine &machine)
{
    machine.memory.addDrive(MemoryDrive(0, 1 << 20));
}

QStringList wipeDrive(const QStringList &more = {})
{
    return QStringList{u"wipe"_s, u"disk"_s, u"0"_s, u"--yes"_s} + more;
}

} // namespace

void tst_CliReports::anErasedDriveIsInTheDatabase()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive({u"--json"_s}));
    QCOMPARE(run.code, 0);
    const QJsonObject finished = run.io.events().constLast();
    const QByteArray text = storedText(run.folder(), finished.value(u"certificateId").toString());
    QCOMPARE(QJsonDocument::fromJson(text).object(), finished.value(u"report").toObject());
    // The file is closed, because another run in this process uses another folder.
    CliRun other;
    other({u"reports"_s, u"list"_s});
    QCOMPARE(other.io.out, QByteArray("No reports.\n"));
}

void tst_CliReports::withNoReportNothingIsStored()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive({u"--no-report"_s}));
    QCOMPARE(run.code, 0);
    QVERIFY(!QFile::exists(run.folder() + u"/quorvex.db"_s));
}

void tst_CliReports::aFailedJobIsStoredToo()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.answer = [](const DeviceCall &call) {
        return call.method == "write"_L1 ? platform::Status{1117, 0, "write"} : platform::Status{};
    };
    CliRun run;
    run(wipeDrive());
    QCOMPARE(run.code, 1);
    CliRun list;
    TestIo io;
    QCOMPARE(cli::runCli({u"reports"_s, u"list"_s, u"--data-dir"_s, run.folder()}, io, SourceTexts), 0);
    QVERIFY2(io.out.contains("Failed"), io.out.constData());
}

void tst_CliReports::aDatabaseThatCannotBeOpenedStopsBeforeAnythingIs()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    writeFile(run.folder() + u"/quorvex.db"_s, QByteArray(4096, 'n'));
    run(wipeDrive());
    QCOMPARE(run.code, 5);
    QVERIFY2(run.complains("report database"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
    QCOMPARE(contentOf(run.folder() + u"/quorvex.db"_s), QByteArray(4096, 'n'));
}

void tst_CliReports::withNoReportABadDatabaseDoesNotMatter()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    writeFile(run.folder() + u"/quorvex.db"_s, QByteArray(4096, 'n'));
    run(wipeDrive({u"--no-report"_s}));
    QCOMPARE(run.code, 0);
}

void tst_CliReports::theLogInWhatIsErasedIsRefused()
{
    CliRun run;
    writeFile(run.folder() + u"/secret.txt"_s, "secret");
    run({u"wipe"_s, u"files"_s, run.folder(), u"--yes"_s, u"--no-report"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("the program's log in "), run.io.err.constData());
    QCOMPARE(contentOf(run.folder() + u"/secret.txt"_s), QByteArray("secret"));
}

void tst_CliReports::whatWasNotReadBackIsNotCalledSo()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive({u"--no-verify"_s, u"--json"_s}));
    QCOMPARE(run.code, 0);
    const QString id = run.io.events().constLast().value(u"certificateId").toString();
    TestIo io;
    QCOMPARE(cli::runCli({u"reports"_s, u"show"_s, id, u"--data-dir"_s, run.folder()}, io, SourceTexts), 0);
    QVERIFY2(io.out.contains("not read back"), io.out.constData());
    QVERIFY(!io.out.contains("passed"));
}

void tst_CliReports::aDatabaseInWhatIsErasedIsRefused()
{
    CliRun run;
    writeFile(run.folder() + u"/secret.txt"_s, "secret");
    run({u"wipe"_s, u"files"_s, run.folder(), u"--yes"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("lies in what is to be erased"), run.io.err.constData());
    QCOMPARE(contentOf(run.folder() + u"/secret.txt"_s), QByteArray("secret"));
}

void tst_CliReports::aReportThatCannotBeStoredIsToldAndTheResultToo()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    // The table disappears before the end of the job.
    run.io.onOutput = [&](const QByteArray &out) {
        if (out.contains("\"event\":\"pass\"") && QSqlDatabase::contains())
            QSqlQuery(u"DROP TABLE IF EXISTS wipe_reports"_s);
    };
    run(wipeDrive({u"--json"_s}));
    QCOMPARE(run.code, 5);
    QCOMPARE(run.io.events(u"error"_s).size(), 1);
    QVERIFY(run.io.events().constLast().value(u"success").toBool());
}

void tst_CliReports::aForeignFileIsReplacedOnlyByForce()
{
    MemoryMachine machine;
    addDrive(machine);
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"r.json"_s), "{\"thesis\": true}");
    CliRun run;
    run(wipeDrive({u"--report"_s, path}));
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("--force"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
    QCOMPARE(contentOf(path), QByteArray("{\"thesis\": true}"));
    CliRun forced;
    forced(wipeDrive({u"--report"_s, path, u"--force"_s}));
    QCOMPARE(forced.code, 0);
    const QByteArray first = contentOf(path);
    QVERIFY(first.contains("certificateId"));
    // Replacing an earlier report or a reserved name needs no --force.
    CliRun again;
    again(wipeDrive({u"--report"_s, path}));
    QCOMPARE(again.code, 0);
    QVERIFY(contentOf(path) != first);
    CliRun reserved;
    reserved(wipeDrive({u"--report"_s, writeFile(folder.filePath(u"empty"_s), {})}));
    QCOMPARE(reserved.code, 0);
}

void tst_CliReports::oneFileForTwoOutputsIsAWrongLine_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("report and database") << QStringList{u"--report"_s, u"%1/quorvex.db"_s, u"--force"_s};
    QTest::newRow("report and log") << QStringList{u"--report"_s, u"%1/./quorvex.log"_s, u"--force"_s};
}

void tst_CliReports::oneFileForTwoOutputsIsAWrongLine()
{
    QFETCH(QStringList, options);
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    run(wipeDrive(options.replaceInStrings(u"%1"_s, run.folder())));
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("two outputs"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
}

void tst_CliReports::noStoredReportIsReplaced()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    // Midnight may pass between this call and the job.
    QVERIFY(takeNumbers(run.folder(), 4711));
    run(wipeDrive({u"--json"_s}));
    QCOMPARE(run.code, 0);
    const QString id = run.io.events().constLast().value(u"certificateId").toString();
    QVERIFY2(id.endsWith(u"-4711"_s), qPrintable(id));
    QCOMPARE(storedText(run.folder(), id.chopped(4) + u"4712"_s), QByteArray("{}"));
}

void tst_CliReports::aDayWithoutACertificateNumberLeftIsRefused()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    QVERIFY(takeNumbers(run.folder(), 0));
    run(wipeDrive());
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("--no-report"), run.io.err.constData());
    QCOMPARE(machine.openings(), QStringList());
    TestIo io;
    QCOMPARE(cli::runCli(wipeDrive({u"--no-report"_s, u"--data-dir"_s, run.folder()}), io, SourceTexts), 0);
}

void tst_CliReports::theListHasTheLatestFirst()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s, 1), reportOf(u"QVX-B"_s, 3), reportOf(u"QVX-C"_s, 2)}));
    run({u"reports"_s, u"list"_s});
    QCOMPARE(run.code, 0);
    const QByteArrayList lines = run.io.out.split('\n');
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines.at(0).startsWith("Certificate"));
    QVERIFY2(lines.at(1).startsWith("QVX-B") && lines.at(1).contains("2026-03-03 14:07:09") &&
                 lines.at(1).contains("Completed") && lines.at(1).contains("NIST 800-88") &&
                 lines.at(1).contains("Model QVX-B"),
             lines.at(1).constData());
    QVERIFY(lines.at(2).startsWith("QVX-C"));
    QVERIFY(lines.at(3).startsWith("QVX-A"));
}

void tst_CliReports::theListTakesLimitAndOffset()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s, 1), reportOf(u"QVX-B"_s, 3), reportOf(u"QVX-C"_s, 2)}));
    run({u"reports"_s, u"list"_s, u"--limit"_s, u"1"_s, u"--offset"_s, u"1"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    const QJsonArray reports = run.io.documents().constFirst().array();
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.at(0).toObject().value(u"certificateId"), QJsonValue(u"QVX-C"_s));
}

void tst_CliReports::aBadLimitIsAWrongLine_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("negative limit") << u"--limit=-1"_s;
    QTest::newRow("no number") << u"--limit=many"_s;
    QTest::newRow("empty") << u"--offset="_s;
    QTest::newRow("too large") << u"--offset=99999999999"_s;
}

void tst_CliReports::aBadLimitIsAWrongLine()
{
    QFETCH(QString, option);
    CliRun run;
    run({u"reports"_s, u"list"_s, option});
    QCOMPARE(run.code, 2);
}

void tst_CliReports::anEmptyDatabaseSaysSo()
{
    CliRun run;
    run({u"reports"_s, u"list"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, QByteArray("No reports.\n"));
}

void tst_CliReports::theListForMachinesHoldsWholeReports()
{
    CliRun run;
    const WipeReport report = reportOf(u"QVX-A"_s);
    QVERIFY(store(run.folder(), {report}));
    run({u"reports"_s, u"list"_s, u"--json"_s});
    QCOMPARE(run.io.documents().size(), 1);
    QCOMPARE(run.io.documents().constFirst().array().at(0).toObject(),
             QJsonDocument::fromJson(report.toJson()).object());
}

void tst_CliReports::damagedTextIsListedAsSuch()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    QVERIFY(damage(run.folder(), u"QVX-A"_s, u"no JSON"_s));
    run({u"reports"_s, u"list"_s});
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.out.contains("QVX-A") && run.io.out.contains("damaged"), run.io.out.constData());
    TestIo io;
    QCOMPARE(
        cli::runCli({u"reports"_s, u"list"_s, u"--json"_s, u"--data-dir"_s, run.folder()}, io, SourceTexts),
        0);
    QCOMPARE(io.documents().constFirst().array().at(0).toObject(),
             (QJsonObject{{u"certificateId"_s, u"QVX-A"_s}, {u"damaged"_s, true}}));
}

void tst_CliReports::aReportIsShown()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    run({u"reports"_s, u"show"_s, u"QVX-A"_s});
    QCOMPARE(run.code, 0);
    for (const char *part : {"QVX-A", "Disk Wipe", "NIST 800-88, 1 pass", "Completed", "2026-03-01 14:07:09",
                             "1m 5s", "Model QVX-A", "S/N QVX-A", "1.00 MB", "2048", "passed", "abc123"})
        QVERIFY2(run.io.out.contains(part), part);
}

void tst_CliReports::aReportIsShownToMachines()
{
    CliRun run;
    const WipeReport report = reportOf(u"QVX-A"_s);
    QVERIFY(store(run.folder(), {report}));
    run({u"reports"_s, u"show"_s, u"QVX-A"_s, u"--json"_s});
    QCOMPARE(run.io.documents().size(), 1);
    QCOMPARE(run.io.documents().constFirst().object(), QJsonDocument::fromJson(report.toJson()).object());
}

// Jobs of which the database knows more than their report says.
void tst_CliReports::outcomesAreListedAndShown()
{
    CliRun run;
    OutcomeRecord partial(JobOutcome::Complete);
    partial.note({ShortfallKind::VolumeInUse, u"E:"_s, 2048});
    partial.note({ShortfallKind::NotReadBack});
    partial.addWritten(3 * 1024 * 1024);
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s, 1)}));
    {
        TestIo io;
        QVERIFY(ReportDatabase::instance().initialize(run.folder()));
        QVERIFY(ReportDatabase::instance().saveReport(reportOf(u"QVX-B"_s, 2), partial));
        QVERIFY(ReportDatabase::instance().saveReport(reportOf(u"QVX-C"_s, 3),
                                                      OutcomeRecord(JobOutcome::Cancelled)));
        ReportDatabase::instance().close();
    }
    const auto output = [&run](const QStringList &arguments) {
        TestIo io;
        const int code =
            cli::runCli(QStringList{u"reports"_s} + arguments + QStringList{u"--data-dir"_s, run.folder()},
                        io, SourceTexts);
        return code == 0 ? io.out : QByteArray("failed");
    };
    const QByteArrayList lines = output({u"list"_s}).split('\n');
    QVERIFY2(lines.at(0).contains("Outcome"), lines.at(0).constData());
    QVERIFY2(lines.at(1).contains("cancelled"), lines.at(1).constData());
    QVERIFY2(lines.at(2).contains("partial"), lines.at(2).constData());
    QVERIFY2(lines.at(3).contains("unknown"), lines.at(3).constData());

    const QByteArray shown = output({u"show"_s, u"QVX-B"_s});
    for (const char *part :
         {"Outcome", "partial", "Shortfall", "volumes were in use while they were overwritten: E: (2.00 KB)",
          "Note", "what was written was not read back", "On the medium", "3.00 MB"})
        QVERIFY2(shown.contains(part), part);
    QVERIFY(output({u"show"_s, u"QVX-A"_s}).contains("unknown"));
    QVERIFY(!output({u"show"_s, u"QVX-A"_s}).contains("On the medium"));

    const QJsonObject annex = QJsonDocument::fromJson(partial.toJson()).object();
    const QJsonObject machine =
        QJsonDocument::fromJson(output({u"show"_s, u"QVX-B"_s, u"--json"_s})).object();
    QCOMPARE(machine.value(u"annex"), QJsonValue(annex));
    const QJsonArray listed = QJsonDocument::fromJson(output({u"list"_s, u"--json"_s})).array();
    QCOMPARE(listed.at(1).toObject(), machine);
    QVERIFY(!listed.at(2).toObject().contains(u"annex"));
    // The export is the record itself.
    QCOMPARE(output({u"export"_s, u"QVX-B"_s, u"--json-file"_s, u"-"_s}), reportOf(u"QVX-B"_s, 2).toJson());
}

void tst_CliReports::theOutcomeOfAJobIsStored()
{
    MemoryMachine machine;
    addDrive(machine);
    machine.memory.addVolume(u"/media/stick"_s, 0, 65536, 65536);
    CliRun run;
    run(wipeDrive({u"--json"_s}));
    const QString id = run.io.events().constLast().value(u"certificateId").toString();
    QVERIFY(ReportDatabase::instance().initialize(run.folder()));
    const auto outcome = ReportDatabase::instance().outcome(id);
    ReportDatabase::instance().close();
    QVERIFY(outcome);
    QCOMPARE(outcome->outcome(), JobOutcome::Partial);
    QCOMPARE(outcome->shortfallKinds(), QList{ShortfallKind::OnlyVolumes});
}

void tst_CliReports::anUnknownIdIsRefused_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("show") << QStringList{u"show"_s};
    QTest::newRow("delete") << QStringList{u"delete"_s};
    QTest::newRow("export") << QStringList{u"export"_s, u"--json-file"_s, u"-"_s};
}

void tst_CliReports::anUnknownIdIsRefused()
{
    QFETCH(QStringList, command);
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    run(QStringList{u"reports"_s} + command + QStringList{u"x'; DROP TABLE wipe_reports; --"_s});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("there is no report"), run.io.err.constData());
    QVERIFY(!storedText(run.folder(), u"QVX-A"_s).isEmpty());
}

void tst_CliReports::damagedTextIsNotShown()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    QVERIFY(damage(run.folder(), u"QVX-A"_s, u"[1, 2]"_s));
    run({u"reports"_s, u"show"_s, u"QVX-A"_s});
    QCOMPARE(run.code, 5);
    QVERIFY2(run.complains("damaged"), run.io.err.constData());
    QCOMPARE(run.io.out, QByteArray());
}

void tst_CliReports::theStoredTextIsExportedByteForByte()
{
    CliRun run;
    const WipeReport report = reportOf(u"QVX-'ä';"_s);
    QVERIFY(store(run.folder(), {report}));
    const QString path = run.folder() + u"/out.json"_s;
    run({u"reports"_s, u"export"_s, report.certificateId, u"--json-file"_s, path});
    QCOMPARE(run.code, 0);
    QCOMPARE(contentOf(path), report.toJson());
    QCOMPARE(run.io.out, QByteArray());
}

void tst_CliReports::theStoredTextGoesToStandardOutput()
{
    CliRun run;
    const WipeReport report = reportOf(u"QVX-A"_s);
    QVERIFY(store(run.folder(), {report}));
    run({u"reports"_s, u"export"_s, u"QVX-A"_s, u"--json-file"_s, u"-"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, report.toJson());
}

void tst_CliReports::anExportNeedsADestination()
{
    CliRun run;
    run({u"reports"_s, u"export"_s, u"QVX-A"_s});
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("--pdf or --json-file"), run.io.err.constData());
}

void tst_CliReports::anExportThatCannotBeWrittenSaysSo()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    run({u"reports"_s, u"export"_s, u"QVX-A"_s, u"--json-file"_s, run.folder() + u"/no/such/r.json"_s});
    QCOMPARE(run.code, 2);
    CliRun folder;
    folder({u"reports"_s, u"export"_s, u"QVX-A"_s, u"--json-file"_s, run.folder()});
    QCOMPARE(folder.code, 2);
}

void tst_CliReports::aReportIsDeleted()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s), reportOf(u"QVX-B"_s)}));
    run({u"reports"_s, u"delete"_s, u"QVX-A"_s});
    QCOMPARE(run.code, 0);
    QVERIFY(storedText(run.folder(), u"QVX-A"_s).isNull());
    QVERIFY(!storedText(run.folder(), u"QVX-B"_s).isEmpty());
}

void tst_CliReports::aDamagedReportCanBeDeleted()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    QVERIFY(damage(run.folder(), u"QVX-A"_s, QString()));
    run({u"reports"_s, u"delete"_s, u"QVX-A"_s});
    QCOMPARE(run.code, 0);
    QVERIFY(storedText(run.folder(), u"QVX-A"_s).isNull());
}

void tst_CliReports::theExportedReportIsTheSame()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    const QString path = run.folder() + u"/out.json"_s;
    writeFile(path, storedText(run.folder(), u"QVX-A"_s));
    run({u"check"_s, path});
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.out.startsWith("THE SAME: "), run.io.out.constData());
}

void tst_CliReports::theReportFileOfAJobIsTheSame()
{
    MemoryMachine machine;
    addDrive(machine);
    CliRun run;
    const QString path = run.folder() + u"/r.json"_s;
    run(wipeDrive({u"--report"_s, path}));
    QCOMPARE(run.code, 0);
    TestIo io;
    QCOMPARE(cli::runCli({u"check"_s, path, u"--data-dir"_s, run.folder(), u"--json"_s}, io, SourceTexts), 0);
    QCOMPARE(io.documents().constFirst().object().value(u"same"), QJsonValue(true));
}

void tst_CliReports::theFirstFieldThatDiffersIsNamed_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("field");
    QTest::newRow("status") << QByteArray("\"status\": 3") << QByteArray("\"status\": 4") << u"status"_s;
    QTest::newRow("number for text") << QByteArray("\"wipedSectors\": \"2048\"")
                                     << QByteArray("\"wipedSectors\": 2048") << u"wipedSectors"_s;
    QTest::newRow("nested") << QByteArray("S/N QVX-A") << QByteArray("S/N other")
                            << u"diskInfo.serialNumber"_s;
    QTest::newRow("missing") << QByteArray("\"dataHash\": \"abc123\",\n") << QByteArray() << u"dataHash"_s;
    QTest::newRow("two, the first of the record")
        << QByteArray("\"methodName\": \"NIST 800-88\"")
        << QByteArray("\"zzz\": 1, \"methodName\": \"Gutmann\"") << u"methodName"_s;
    QTest::newRow("only in the file")
        << QByteArray("\"status\": 3") << QByteArray("\"status\": 3, \"x\": 1") << u"x"_s;
}

void tst_CliReports::theFirstFieldThatDiffersIsNamed()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, field);
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    QByteArray text = storedText(run.folder(), u"QVX-A"_s);
    QVERIFY(text.contains(from));
    const QString path = run.folder() + u"/out.json"_s;
    writeFile(path, text.replace(from, to));
    run({u"check"_s, path});
    QCOMPARE(run.code, 1);
    const QByteArray expected = "NOT THE SAME: the first field that differs is " + field.toUtf8() + ": ";
    QVERIFY2(run.io.out.startsWith(expected), run.io.out.constData());
    TestIo io;
    QCOMPARE(cli::runCli({u"check"_s, path, u"--data-dir"_s, run.folder(), u"--json"_s}, io, SourceTexts), 1);
    QCOMPARE(io.documents().constFirst().object().value(u"field"), QJsonValue(field));
}

void tst_CliReports::anotherWritingOfTheSameFieldsIsToldApart()
{
    CliRun run;
    QVERIFY(store(run.folder(), {reportOf(u"QVX-A"_s)}));
    const QByteArray text = storedText(run.folder(), u"QVX-A"_s);
    const QString path = run.folder() + u"/out.json"_s;
    writeFile(path, text + '\n');
    run({u"check"_s, path});
    QCOMPARE(run.code, 1);
    const QByteArray place = "from byte " + QByteArray::number(text.size()) + " on";
    QVERIFY2(run.io.out.contains(place), run.io.out.constData());
}

void tst_CliReports::aReportWithoutRecordIsNotTheSame()
{
    CliRun run;
    const QString path = run.folder() + u"/out.json"_s;
    writeFile(path, reportOf(u"QVX-A"_s).toJson());
    run({u"check"_s, path});
    QCOMPARE(run.code, 1);
    QVERIFY2(run.io.out.contains("no record of QVX-A"), run.io.out.constData());
}

void tst_CliReports::whatIsNoReportIsNotTheSame_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage of 10 MiB") << QByteArray(10 << 20, '[');
    QTest::newRow("an array") << QByteArray("[1, 2, 3]");
    QTest::newRow("no id") << QByteArray("{\"status\": 3}");
    QTest::newRow("an id that is a number") << QByteArray("{\"certificateId\": 12345678901234567890}");
}

void tst_CliReports::whatIsNoReportIsNotTheSame()
{
    QFETCH(QByteArray, content);
    CliRun run;
    const QString path = run.folder() + u"/out.json"_s;
    writeFile(path, content);
    run({u"check"_s, path});
    QCOMPARE(run.code, 1);
    QVERIFY2(run.io.out.contains("is no report"), run.io.out.constData());
}

void tst_CliReports::aMissingFileIsRefused()
{
    CliRun run;
    run({u"check"_s, run.folder() + u"/missing.json"_s});
    QCOMPARE(run.code, 3);
    CliRun folder;
    folder({u"check"_s, run.folder()});
    QCOMPARE(folder.code, 3);
    CliRun empty;
    empty({u"check"_s, QString()});
    QCOMPARE(empty.code, 2);
}

QUORVEX_SUITE(tst_CliReports, QCoreApplication)
#include "tst_clireports.moc"
