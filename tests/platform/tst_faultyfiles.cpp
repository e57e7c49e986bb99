#include "support/faultplan.h"
#include "support/faultyfiles.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace platform;
using namespace Qt::StringLiterals;

// The double itself: planned calls fail without effect, the others reach the real system.
class tst_FaultyFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void withoutAPlanEverythingPasses();
    void everyFileCallFails_data();
    void everyFileCallFails();
    void everyHandleCallFails_data();
    void everyHandleCallFails();
    void everyFolderCallFails_data();
    void everyFolderCallFails();
    void theNthCallFailsOnce();
    void fromThenOn();
    void otherPathsAreNotCounted();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<Platform> m_machine = createPlatform({});
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FaultyFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFile(path(u"file"_s), "abc");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
}

void tst_FaultyFiles::withoutAPlanEverythingPasses()
{
    FaultPlan plan;
    FaultyFiles files(m_machine->files(), plan);
    FaultyFolders folders(m_machine->folders(), plan);
    auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    QVERIFY(file.value()->seek(1).ok());
    QCOMPARE(file.value()->write("z", 1).valueOr(-1), 1);
    QVERIFY(file.value()->flush().ok());
    QVERIFY(file.value()->seek(0).ok());
    char bytes[3] = {};
    QCOMPARE(file.value()->read(bytes, 3).valueOr(-1), 3);
    QCOMPARE(QByteArray(bytes, 3), QByteArray("azc"));
    QVERIFY(file.value()->seek(0).ok());
    QVERIFY(file.value()->setEnd().ok());
    QCOMPARE(files.info(path(u"file"_s)).value().size, 0);
    file.value().reset(); // Windows cannot rename open files
    QVERIFY(files.rename(path(u"file"_s), path(u"other"_s)).ok());
    QVERIFY(files.remove(path(u"other"_s)).ok());
    QVERIFY(folders.create(path(u"a/b"_s)).ok());
    QVERIFY(folders.removeTree(path(u"a"_s)).ok());
    QVERIFY(folders.removeEmpty(path(u"folder"_s)).ok());
    QCOMPARE(plan.fired(), 0);
}

void tst_FaultyFiles::everyFileCallFails_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("info") << int(FaultPlan::Info);
    QTest::newRow("open") << int(FaultPlan::Open);
    QTest::newRow("clearReadOnly") << int(FaultPlan::ClearReadOnly);
    QTest::newRow("rename") << int(FaultPlan::Rename);
    QTest::newRow("remove") << int(FaultPlan::Remove);
}

void tst_FaultyFiles::everyFileCallFails()
{
    QFETCH(int, kind);
    FaultPlan plan(quint32(kind), 1, IoDevice, FaultPlan::FromThenOn);
    FaultyFiles files(m_machine->files(), plan);
    const QString name = path(u"file"_s);
    QCOMPARE(files.info(name).code(), kind == FaultPlan::Info ? quint32(IoDevice) : 0);
    QCOMPARE(files.open(name, OpenMode::CreateFill).code(), kind == FaultPlan::Open ? quint32(IoDevice) : 0);
    QCOMPARE(QFileInfo(name).size(), kind == FaultPlan::Open ? 3 : 0); // not truncated by the failed opening
    QCOMPARE(files.clearReadOnly(name).code, kind == FaultPlan::ClearReadOnly ? quint32(IoDevice) : 0);
    QCOMPARE(files.rename(name, name + u'x').code, kind == FaultPlan::Rename ? quint32(IoDevice) : 0);
    const QString now = kind == FaultPlan::Rename ? name : name + u'x';
    QVERIFY(QFileInfo::exists(now));
    QCOMPARE(files.remove(now).code, kind == FaultPlan::Remove ? quint32(IoDevice) : 0);
    QCOMPARE(QFileInfo::exists(now), kind == FaultPlan::Remove);
    QCOMPARE(plan.fired(), 1);
}

void tst_FaultyFiles::everyHandleCallFails_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("seek") << int(FaultPlan::Seek);
    QTest::newRow("read") << int(FaultPlan::Read);
    QTest::newRow("write") << int(FaultPlan::Write);
    QTest::newRow("setEnd") << int(FaultPlan::SetEnd);
    QTest::newRow("flush") << int(FaultPlan::Flush);
}

void tst_FaultyFiles::everyHandleCallFails()
{
    QFETCH(int, kind);
    FaultPlan plan(quint32(kind), 1, WriteFault, FaultPlan::FromThenOn);
    FaultyFiles files(m_machine->files(), plan);
    auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    const auto expected = [kind](FaultPlan::Kind call) {
        return kind == int(call) ? quint32(WriteFault) : 0;
    };
    char bytes[3] = {'x', 'y', 'z'};
    QCOMPARE(file.value()->write(bytes, 3).code(), expected(FaultPlan::Write));
    QCOMPARE(file.value()->setEnd().code, expected(FaultPlan::SetEnd));
    QCOMPARE(file.value()->seek(0).code, expected(FaultPlan::Seek));
    QCOMPARE(file.value()->read(bytes, 3).code(), expected(FaultPlan::Read));
    QCOMPARE(file.value()->flush().code, expected(FaultPlan::Flush));
    QCOMPARE(plan.fired(), 1);
    // A failed write leaves the position at the start, and the file is then truncated there.
    QCOMPARE(contentOf(path(u"file"_s)), kind == FaultPlan::Write ? QByteArray() : QByteArray("xyz"));
}

void tst_FaultyFiles::everyFolderCallFails_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("forEachEntry") << int(FaultPlan::List);
    QTest::newRow("create") << int(FaultPlan::CreateFolder);
    QTest::newRow("removeEmpty") << int(FaultPlan::RemoveFolder);
    QTest::newRow("removeTree") << int(FaultPlan::RemoveTree);
    QTest::newRow("hide") << int(FaultPlan::Hide);
    QTest::newRow("space") << int(FaultPlan::Space);
}

void tst_FaultyFiles::everyFolderCallFails()
{
    QFETCH(int, kind);
    FaultPlan plan(quint32(kind), 1, AccessDenied, FaultPlan::FromThenOn);
    FaultyFolders folders(m_machine->folders(), plan);
    const auto expected = [kind](FaultPlan::Kind call) {
        return kind == int(call) ? quint32(AccessDenied) : 0;
    };
    int seen = 0;
    const auto visit = [&](const QString &, FileKind) { return ++seen > 0; };
    QCOMPARE(folders.forEachEntry(m_folder->path(), visit).code, expected(FaultPlan::List));
    QCOMPARE(seen, kind == FaultPlan::List ? 0 : 2);
    QCOMPARE(folders.create(path(u"new"_s)).code, expected(FaultPlan::CreateFolder));
    QCOMPARE(QFileInfo::exists(path(u"new"_s)), kind != FaultPlan::CreateFolder);
    QCOMPARE(folders.hide(path(u"folder"_s)).code, expected(FaultPlan::Hide));
    QCOMPARE(folders.space(path(u"folder"_s)).code(), expected(FaultPlan::Space));
    QCOMPARE(folders.removeEmpty(path(u"folder"_s)).code, expected(FaultPlan::RemoveFolder));
    QCOMPARE(QFileInfo::exists(path(u"folder"_s)), kind == FaultPlan::RemoveFolder);
    QVERIFY(QDir().mkpath(path(u"tree/a"_s)));
    QCOMPARE(folders.removeTree(path(u"tree"_s)).code, expected(FaultPlan::RemoveTree));
    QCOMPARE(QFileInfo::exists(path(u"tree/a"_s)), kind == FaultPlan::RemoveTree);
    QCOMPARE(plan.fired(), 1);
}

void tst_FaultyFiles::theNthCallFailsOnce()
{
    FaultPlan plan(FaultPlan::Write, 3, DiskFull);
    FaultyFiles files(m_machine->files(), plan);
    auto file = files.open(path(u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    QList<quint32> codes;
    for (int i = 0; i < 5; ++i)
        codes.append(file.value()->write("x", 1).code());
    QCOMPARE(codes, (QList<quint32>{0, 0, DiskFull, 0, 0}));
    QCOMPARE(plan.seen(), 5);
    QCOMPARE(plan.fired(), 1);
}

void tst_FaultyFiles::fromThenOn()
{
    FaultPlan plan(FaultPlan::Open | FaultPlan::Info, 2, NotReady, FaultPlan::FromThenOn);
    FaultyFiles files(m_machine->files(), plan);
    QVERIFY(files.info(path(u"file"_s)).ok());
    QCOMPARE(files.open(path(u"file"_s), OpenMode::Verify).code(), quint32(NotReady));
    QCOMPARE(files.info(path(u"file"_s)).code(), quint32(NotReady));
    QVERIFY(files.clearReadOnly(path(u"file"_s)).ok());
    QCOMPARE(plan.fired(), 2);
}

void tst_FaultyFiles::otherPathsAreNotCounted()
{
    FaultPlan plan(FaultPlan::Every, 1, SharingViolation, FaultPlan::FromThenOn);
    FaultyFiles files(m_machine->files(), plan, [](const QString &name) { return name.endsWith(u"held"_s); });
    QVERIFY(files.rename(path(u"file"_s), path(u"held"_s)).ok());
    QCOMPARE(files.remove(path(u"held"_s)).code, quint32(SharingViolation));
    QCOMPARE(plan.seen(), 1);
}

QUORVEX_SUITE(tst_FaultyFiles, QCoreApplication)
#include "tst_faultyfiles.moc"
