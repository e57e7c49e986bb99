#include "engine/filedeletion.h"
#include "support/faultplan.h"
#include "support/observedfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "filejob.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace std::chrono_literals;
using platform::Status;

namespace {

Status failure(quint32 code)
{
    return {code, 0, "planned"};
}

// A deletion that counts its pauses instead of waiting.
struct CountedDeletion
{
    FileJob job;
    int pauses = 0;
    int pausesAllowed = 1000;
    FileDeletion deletion{[this](std::chrono::milliseconds time) {
        if (time != 50ms)
            qFatal("a pause of %lld ms", static_cast<long long>(time.count()));
        return ++pauses <= pausesAllowed;
    }};

    void failEvery(quint32 kinds, quint32 code)
    {
        job.files.hook = [kinds, code](const FileCall &call) {
            return (call.kind & kinds) ? failure(code) : Status();
        };
    }
    QStringList sequence() const
    {
        QStringList names;
        for (const FileCall &call : job.files.calls()) {
            switch (call.kind) {
            case FaultPlan::Info:
                names += QStringLiteral("info");
                break;
            case FaultPlan::ClearReadOnly:
                names += QStringLiteral("clearReadOnly");
                break;
            case FaultPlan::Open:
                names += call.mode == platform::OpenMode::Truncate ? QStringLiteral("open to cut")
                                                                   : QStringLiteral("open otherwise");
                break;
            case FaultPlan::Seek:
                names += QStringLiteral("seek %1").arg(call.position);
                break;
            case FaultPlan::SetEnd:
                names += QStringLiteral("setEnd");
                break;
            case FaultPlan::Flush:
                names += QStringLiteral("flush");
                break;
            case FaultPlan::Rename:
                names += QStringLiteral("rename");
                break;
            case FaultPlan::Remove:
                names += QStringLiteral("remove");
                break;
            default:
                names += QStringLiteral("something else");
            }
        }
        return names;
    }
};

// The new path, empty without one.
QString renameAtRandom(const QString &file)
{
    const auto renamed = FileDeletion::randomRenameFile(file);
    return renamed ? renamed->path() : QString();
}

} // namespace

class tst_FileDeletion : public QObject
{
    Q_OBJECT

private slots:
    void cutsRenamesAndDeletesInThisOrder();
    void theFileIsEmptyAndOnTheMediumBeforeItIsRenamed();
    void whatDoesNotExistIsGone();
    void aFolderIsNotAFile();
    void whatCannotBeLookedAtIsNotGone();
    void aFileThatDoesNotOpenIsDeletedAllTheSame();
    void aFailureToCutIsNoObstacle_data();
    void aFailureToCutIsNoObstacle();

    void theNewNameIsRandomInTheSameFolder();
    void fiveFailedRenamesGiveNoNewName();
    void aLaterRenameMaySucceed();
    void aFileThatCannotBeRenamedIsDeletedUnderItsName();
    void everyCharacterIsDrawn();

    void retriesTenTimesWhileTheFileIsHeld_data();
    void retriesTenTimesWhileTheFileIsHeld();
    void otherErrorsEndTheAttempts_data();
    void otherErrorsEndTheAttempts();
    void succeedsWhenTheFileIsLetGo();
    void aStopEndsTheAttempts();
    void aFileThatVanishedDuringTheAttemptsIsGone();
    void whatCannotBeLookedAtAfterwardsIsNotGone();
};

void tst_FileDeletion::cutsRenamesAndDeletesInThisOrder()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 100);
    QVERIFY(c.deletion.secureDeleteFile(file));
    const QStringList expected{
        QStringLiteral("info"),   QStringLiteral("clearReadOnly"), QStringLiteral("open to cut"),
        QStringLiteral("seek 0"), QStringLiteral("setEnd"),        QStringLiteral("flush"),
        QStringLiteral("rename"), QStringLiteral("remove"),        QStringLiteral("info")};
    QCOMPARE(c.sequence(), expected);
    QVERIFY(QDir(c.job.path({})).isEmpty());
    QCOMPARE(c.pauses, 0);
}

void tst_FileDeletion::theFileIsEmptyAndOnTheMediumBeforeItIsRenamed()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 5'000);
    qint64 sizeAtRename = -1;
    c.job.files.hook = [&](const FileCall &call) {
        if (call.kind == FaultPlan::Rename)
            sizeAtRename = QFileInfo(call.path).size();
        return Status();
    };
    QVERIFY(c.deletion.secureDeleteFile(file));
    QCOMPARE(sizeAtRename, 0);
}

void tst_FileDeletion::whatDoesNotExistIsGone()
{
    CountedDeletion c;
    QVERIFY(c.deletion.secureDeleteFile(c.job.path(QStringLiteral("nothing"))));
    QVERIFY(c.deletion.secureDeleteFile(c.job.path(QStringLiteral("no/folder/either"))));
    QCOMPARE(c.job.files.calls(~FaultPlan::Info).size(), 0);
}

void tst_FileDeletion::aFolderIsNotAFile()
{
    CountedDeletion c;
    const QString folder = c.job.makeFolder(QStringLiteral("folder"));
    QVERIFY(c.deletion.secureDeleteFile(folder));
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(c.job.files.calls(~FaultPlan::Info).size(), 0);
}

void tst_FileDeletion::whatCannotBeLookedAtIsNotGone()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Info, platform::IoDevice);
    QVERIFY(!c.deletion.secureDeleteFile(file));
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileDeletion::aFileThatDoesNotOpenIsDeletedAllTheSame()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Open, platform::SharingViolation);
    QVERIFY(c.deletion.secureDeleteFile(file));
    QVERIFY(QDir(c.job.path({})).isEmpty());
}

void tst_FileDeletion::aFailureToCutIsNoObstacle_data()
{
    QTest::addColumn<quint32>("kind");
    QTest::newRow("clear read-only") << quint32(FaultPlan::ClearReadOnly);
    QTest::newRow("seek") << quint32(FaultPlan::Seek);
    QTest::newRow("setEnd") << quint32(FaultPlan::SetEnd);
    QTest::newRow("flush") << quint32(FaultPlan::Flush);
}

void tst_FileDeletion::aFailureToCutIsNoObstacle()
{
    QFETCH(quint32, kind);
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(kind, platform::IoDevice);
    QVERIFY(c.deletion.secureDeleteFile(file));
    QVERIFY(QDir(c.job.path({})).isEmpty());
    QCOMPARE(c.job.files.calls(kind).size(), 1);
}

void tst_FileDeletion::theNewNameIsRandomInTheSameFolder()
{
    FileJob job;
    const QRegularExpression form(QStringLiteral("^[A-Z0-9]{12}\\.tmp$"));
    QSet<QString> names;
    for (int i = 0; i < 50; ++i) {
        const QString file = job.makeFile(QStringLiteral("in/a folder.d/secret.txt"), QByteArray("content"));
        const QString renamed = renameAtRandom(file);
        const QFileInfo info(renamed);
        QCOMPARE(info.path(), job.path(QStringLiteral("in/a folder.d")));
        QVERIFY2(form.match(info.fileName()).hasMatch(), qPrintable(info.fileName()));
        QVERIFY(!QFileInfo::exists(file));
        QCOMPARE(contentOf(renamed), QByteArray("content"));
        names.insert(info.fileName());
    }
    QCOMPARE(names.size(), 50);
    QCOMPARE(job.files.calls(FaultPlan::Rename).size(), 50);
}

void tst_FileDeletion::fiveFailedRenamesGiveNoNewName()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Rename, platform::AccessDenied);
    QCOMPARE(renameAtRandom(file), QString());
    const QList<FileCall> attempts = c.job.files.calls(FaultPlan::Rename);
    QCOMPARE(attempts.size(), 5);
    QSet<QString> candidates;
    for (const FileCall &attempt : attempts)
        candidates.insert(attempt.to);
    QCOMPARE(candidates.size(), 5);
    QVERIFY(QFileInfo::exists(file));
}

void tst_FileDeletion::aLaterRenameMaySucceed()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    int calls = 0;
    c.job.files.hook = [&calls](const FileCall &call) {
        return call.kind == FaultPlan::Rename && ++calls < 5 ? failure(platform::IoDevice) : Status();
    };
    const QString renamed = renameAtRandom(file);
    QVERIFY(QFileInfo::exists(renamed));
    QCOMPARE(calls, 5);
}

void tst_FileDeletion::aFileThatCannotBeRenamedIsDeletedUnderItsName()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Rename, platform::IoDevice);
    QVERIFY(c.deletion.secureDeleteFile(file));
    QVERIFY(!QFileInfo::exists(file));
    QCOMPARE(c.job.files.calls(FaultPlan::Remove).first().path, file);
}

void tst_FileDeletion::everyCharacterIsDrawn()
{
    FileJob job;
    QSet<QChar> drawn;
    QString file = job.makeFile(QStringLiteral("secret"), 0);
    // 1200 draws from 36 characters: the chance to miss one of them is below 1e-12.
    for (int i = 0; i < 100; ++i) {
        file = renameAtRandom(file);
        for (const QChar c : QFileInfo(file).baseName())
            drawn.insert(c);
    }
    QCOMPARE(drawn.size(), 36);
}

void tst_FileDeletion::retriesTenTimesWhileTheFileIsHeld_data()
{
    QTest::addColumn<quint32>("code");
    QTest::newRow("32") << quint32(32);
    QTest::newRow("5") << quint32(5);
}

void tst_FileDeletion::retriesTenTimesWhileTheFileIsHeld()
{
    QFETCH(quint32, code);
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Remove, code);
    QVERIFY(!c.deletion.secureDeleteFile(file));
    QCOMPARE(c.job.files.calls(FaultPlan::Remove).size(), 10);
    QCOMPARE(c.job.files.calls(FaultPlan::Rename).size(), 1);
    QCOMPARE(c.pauses, 9); // between the attempts
}

void tst_FileDeletion::otherErrorsEndTheAttempts_data()
{
    QTest::addColumn<quint32>("code");
    for (const quint32 code : {2U, 19U, 33U, 1117U})
        QTest::addRow("%u", code) << code;
}

void tst_FileDeletion::otherErrorsEndTheAttempts()
{
    QFETCH(quint32, code);
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Remove, code);
    QVERIFY(!c.deletion.secureDeleteFile(file));
    QCOMPARE(c.job.files.calls(FaultPlan::Remove).size(), 1);
    QCOMPARE(c.pauses, 0);
}

void tst_FileDeletion::succeedsWhenTheFileIsLetGo()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    int calls = 0;
    c.job.files.hook = [&calls](const FileCall &call) {
        return call.kind == FaultPlan::Remove && ++calls < 10 ? failure(calls % 2 ? 32 : 5) : Status();
    };
    QVERIFY(c.deletion.secureDeleteFile(file));
    QCOMPARE(calls, 10);
    QVERIFY(QDir(c.job.path({})).isEmpty());
}

void tst_FileDeletion::aStopEndsTheAttempts()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.failEvery(FaultPlan::Remove, platform::SharingViolation);
    c.pausesAllowed = 2;
    QVERIFY(!c.deletion.secureDeleteFile(file));
    QCOMPARE(c.job.files.calls(FaultPlan::Remove).size(), 3);
}

void tst_FileDeletion::aFileThatVanishedDuringTheAttemptsIsGone()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    c.job.files.hook = [](const FileCall &call) {
        if (call.kind != FaultPlan::Remove)
            return Status();
        QFile::remove(call.path);
        return failure(platform::FileNotFound);
    };
    QVERIFY(c.deletion.secureDeleteFile(file));
}

void tst_FileDeletion::whatCannotBeLookedAtAfterwardsIsNotGone()
{
    CountedDeletion c;
    const QString file = c.job.makeFile(QStringLiteral("secret"), 10);
    int looks = 0;
    c.job.files.hook = [&looks](const FileCall &call) {
        return call.kind == FaultPlan::Info && ++looks == 2 ? failure(platform::IoDevice) : Status();
    };
    QVERIFY(!c.deletion.secureDeleteFile(file));
}

QUORVEX_SUITE(tst_FileDeletion, QCoreApplication)
#include "tst_filedeletion.moc"
