#include "cli/programrun.h"
#include "model/units.h"
#include "model/wipemethod.h"
#include "model/wipereport.h"
#include "support/faultydrive.h"
#include "support/faultyfolder.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr qint64 DriveBytes = 16 * MiB;

QJsonObject jsonOf(const QString &path)
{
    return QJsonDocument::fromJson(contentOf(path)).object();
}

// The program as a script calls it, on a device node. The drive is named on the command line, and the image
// list used by other tests stays empty.
// tests use is left empty.
struct ProgramOnDrive
{
    ProgramOnDrive(const FaultyDrive &drive, WipeMethod::Type method)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        process.setProcessEnvironment(environment);
        const QString reportPath = home.filePath(QStringLiteral("report.json"));
        process.start(QStringLiteral(QUORVEX_CLI),
                      {QStringLiteral("wipe"), QStringLiteral("disk"), drive.device(),
                       QStringLiteral("--yes"), QStringLiteral("--buffer-mb"), QStringLiteral("1"),
                       QStringLiteral("--method"), QString::number(method), QStringLiteral("--report"),
                       reportPath},
                      QIODevice::ReadOnly);
        if (process.waitForFinished(120'000) && process.exitStatus() == QProcess::NormalExit)
            code = process.exitCode();
        output = process.readAllStandardOutput() + process.readAllStandardError();
        report = jsonOf(reportPath);
    }

    QTemporaryDir home;
    int code = -1;
    QByteArray output;
    QJsonObject report;
};

} // namespace

// The program, started as by a script, on devices with real faults.
class tst_ProgramFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aWriteErrorIsReported();
    void aVanishedDriveIsReported();
    void anImageOnAFailingMediumIsReported();
};

void tst_ProgramFaults::initTestCase()
{
    if (const QString reason = FaultyDrive::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_ProgramFaults::aWriteErrorIsReported()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    drive.faults.failWrites(7 * MiB, 7 * MiB + 512);
    const ProgramOnDrive run(drive, WipeMethod::Nist80088);
    QVERIFY2(run.code == 1, run.output.constData());
    QVERIFY(drive.faults.failedWrites() > 0);
    QVERIFY2(run.output.contains(QByteArray::number(7 * MiB)) && run.output.contains("1117"),
             run.output.constData());
    QCOMPARE(run.report.value(u"status").toInt(), int(WipeStatus::Failed));
    QVERIFY(!run.report.value(u"errorMessage").toString().isEmpty());
    QCOMPARE(run.report.value(u"wipedSectors").toString(), QString::number(7 * MiB / 512));
}

void tst_ProgramFaults::aVanishedDriveIsReported()
{
    FaultyDrive drive(DriveBytes);
    QVERIFY(drive.isReady());
    drive.faults.vanishAfter(DriveBytes + 3 * MiB);
    const ProgramOnDrive run(drive, WipeMethod::BritishHmgIs5);
    QVERIFY2(run.code == 1, run.output.constData());
    QTRY_VERIFY_WITH_TIMEOUT(drive.faults.isGone(), 60000);
    QCOMPARE(run.report.value(u"status").toInt(), int(WipeStatus::Failed));
    QVERIFY(!run.report.value(u"errorMessage").toString().isEmpty());
    QVERIFY(!run.output.contains("DONE: "));
}

void tst_ProgramFaults::anImageOnAFailingMediumIsReported()
{
    const QTemporaryDir folder;
    FaultyFolder faults(folder.path());
    QVERIFY(faults.isReady());
    const QString image = writeZeros(faults.path() + QStringLiteral("/disk.img"), DriveBytes);
    faults.failWrites(7 * MiB, 7 * MiB + 512);
    const QString report = folder.filePath(QStringLiteral("report.json"));
    ProgramRun run;
    run({"wipe", "disk", "0", "--image", QFile::encodeName(image), "--yes", "--buffer-mb", "1", "--report",
         QFile::encodeName(report)});
    QVERIFY(faults.failedWrites() > 0);
    QVERIFY2(run.code == 1, (run.out + run.err).constData());
    QVERIFY2((run.out + run.err).contains(QByteArray::number(7 * MiB)), (run.out + run.err).constData());
    QCOMPARE(jsonOf(report).value(u"status").toInt(), int(WipeStatus::Failed));
    QVERIFY(!jsonOf(report).value(u"errorMessage").toString().isEmpty());
}

QUORVEX_SUITE(tst_ProgramFaults, QCoreApplication)
#include "tst_programfaults.moc"
