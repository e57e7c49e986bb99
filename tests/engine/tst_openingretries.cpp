#include "engine/protectedfolders.h"
#include "filejob.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::OpenMode;
using platform::Status;

namespace {

// The folders of a system that tells programs it does not trust by this one number.
class DistrustfulFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;
    bool mayDistrustProgram(quint32 code) override { return code == platform::AccessDenied; }
};

// A job on one file, which the first attempts to open it for overwriting find in use.
struct HeldFile
{
    DistrustfulFolders folders{platform::Platform::current().folders()};
    FileJob job{platform::Platform::current().files(), folders};
    const QString file = job.makeFile(u"held"_s, 10);
    int refusals = 0;
    quint32 code = platform::SharingViolation;
    bool isStoppedByTheFirst = false;

    HeldFile()
    {
        job.setPasses({{PatternType::Zeros}});
        job.files.hook = [this](const FileCall &call) {
            if (call.kind != FaultPlan::Open || call.mode != OpenMode::Overwrite || refusals == 0)
                return Status();
            --refusals;
            if (isStoppedByTheFirst)
                job.stop();
            return Status{code, 0, "planned"};
        };
    }
    qsizetype attempts() const { return job.files.opened(OpenMode::Overwrite).size(); }
};

} // namespace

// Files that another program holds for moments when the job opens them.
class tst_OpeningRetries : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatIsLetGo();
    void aFileThatStaysInUse();
    void otherErrorsAreNotTriedAgain();
    void aStopEndsTheAttempts();
    void protectionIsNamedOnce();
    void otherErrorsAreNoProtection();
};

void tst_OpeningRetries::aFileThatIsLetGo()
{
    HeldFile held;
    held.refusals = 4;
    QElapsedTimer clock;
    clock.start();
    QVERIFY(held.job.run({held.file}));
    QCOMPARE(held.attempts(), 5);
    QVERIFY(clock.elapsed() >= 4 * 50 - 4);
    QVERIFY(!held.job.lines().contains(said::cannotOpen(held.file)));
}

void tst_OpeningRetries::aFileThatStaysInUse()
{
    HeldFile held;
    held.refusals = 100;
    QVERIFY(!held.job.run({held.file}));
    QCOMPARE(held.attempts(), 5);
    QCOMPARE(held.job.lines().count(said::cannotOpen(held.file)), 1);
    QVERIFY(QFile::exists(held.file));
}

void tst_OpeningRetries::otherErrorsAreNotTriedAgain()
{
    HeldFile held;
    held.refusals = 1;
    held.code = platform::AccessDenied;
    QVERIFY(!held.job.run({held.file}));
    QCOMPARE(held.attempts(), 1);
}

void tst_OpeningRetries::aStopEndsTheAttempts()
{
    HeldFile held;
    held.refusals = 100;
    held.isStoppedByTheFirst = true;
    QVERIFY(!held.job.run({held.file}));
    QCOMPARE(held.attempts(), 1);
    QVERIFY(held.job.lines().contains(said::cancelled));
    QVERIFY(!held.job.lines().contains(said::cannotOpen(held.file)));
}

void tst_OpeningRetries::protectionIsNamedOnce()
{
    HeldFile held;
    held.refusals = 2;
    held.code = platform::AccessDenied;
    QVERIFY(!held.job.run({held.file, held.job.makeFile(u"b"_s, 10)}));
    QCOMPARE(
        held.job.lines().filter(u"受控文件夹"_s),
        QStringList{
            u"1 提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试"_s});
}

void tst_OpeningRetries::otherErrorsAreNoProtection()
{
    HeldFile held;
    held.refusals = 1;
    held.code = platform::FileNotFound;
    QVERIFY(!held.job.run({held.file}));
    QVERIFY(held.job.lines().filter(u"受控文件夹"_s).isEmpty());
    QVERIFY(ProtectedFolders::hint(platform::NoError).isEmpty());
}

QUORVEX_SUITE(tst_OpeningRetries, QCoreApplication)
#include "tst_openingretries.moc"
