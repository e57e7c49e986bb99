#include "faultjob.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "support/faultydrive.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace faultjob;
using namespace Qt::StringLiterals;
using platform::EntryPath;
using platform::OpenMode;

namespace {

// Odd sizes go through the page cache, so that only the close of the group writes them to the drive.
constexpr int Size = 3000;
constexpr int Count = 3;

// Small files in a folder of a faulty drive, each with the place of its first byte.
struct Folder
{
    FaultyDrive drive;
    QString path{drive.mountPoint() + u"/t"_s};
    QList<qint64> positions;

    explicit Folder(LoopMount::FileSystem fileSystem = LoopMount::Ext4)
        : drive(LoopMount::defaultSize(fileSystem), fileSystem)
    {
        for (int i = 0; i < Count; ++i)
            writeThrough(pathOf(i), contentOfFile(i));
        const QByteArray content = drive.content();
        for (int i = 0; i < Count; ++i)
            positions.append(content.indexOf(contentOfFile(i)));
    }
    QString pathOf(int i) const { return path + u'/' + QString::number(i); }
    static QByteArray contentOfFile(int i)
    {
        return "begin of the secret " + QByteArray::number(i) + stretchOf(Old, Size - 21);
    }
    bool isReady() const { return drive.isReady() && !positions.contains(-1); }
    bool isWhole() const
    {
        for (int i = 0; i < Count; ++i) {
            if (QFile(pathOf(i)).size() != Size)
                return false;
        }
        return true;
    }
    void loseWritesOf(int i) { drive.faults.failWrites(positions[i], positions[i] + Size); }
};

// Any process can call it.
bool syncFileSystem(const QString &folder)
{
    QProcess sync;
    sync.start(u"sync"_s, {u"-f"_s, folder});
    return sync.waitForFinished() && sync.exitStatus() == QProcess::NormalExit && sync.exitCode() == 0;
}

} // namespace

// Groups on a drive that loses writes from the page cache, and on a drive whose flush fails.
class tst_DurabilityFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aWriteThatIsLostIsToldOnClosing();
    void aFlushThatFailsIsToldOnClosing();
    void aWriteThatIsLostFailsAllFiles();
    void aFlushThatFailsFailsAllFiles();
};

void tst_DurabilityFaults::initTestCase()
{
    if (const QString reason = FaultyDrive::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

// The lost write belongs to another member than the one that is flushed last.
void tst_DurabilityFaults::aWriteThatIsLostIsToldOnClosing()
{
    Folder folder;
    QVERIFY(folder.isReady());
    platform::Platform &machine = platform::Platform::current();
    const auto held = machine.folders().hold(folder.path);
    QVERIFY(held.ok());
    const auto group = machine.files().beginGroup(EntryPath(held.value(), {}));
    QVERIFY(group.ok());
    for (int i = 0; i < Count; ++i) {
        // The other files are written by then, because neighbours could share one request.
        if (i == Count - 1) {
            QVERIFY(syncFileSystem(folder.path));
            folder.loseWritesOf(i);
        }
        const auto file = machine.files().openIn(group.value(), EntryPath(held.value(), QString::number(i)),
                                                 OpenMode::Overwrite);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write(QByteArray(Size, 'z').constData(), Size).valueOr(-1), Size);
        QVERIFY(file.value()->flush().ok());
    }
    // The first caller of a sync gets the error; a descriptor opened afterwards does not.
    QVERIFY(!syncFileSystem(folder.path));
    QVERIFY(folder.drive.faults.failedWrites() > 0);
    QCOMPARE(machine.files().closeGroup(*group.value()).code, quint32(platform::IoDevice));
}

// syncfs has nothing left to write.
void tst_DurabilityFaults::aFlushThatFailsIsToldOnClosing()
{
    Folder folder(LoopMount::Xfs);
    QVERIFY(folder.isReady());
    platform::Platform &machine = platform::Platform::current();
    const auto held = machine.folders().hold(folder.path);
    QVERIFY(held.ok());
    const auto group = machine.files().beginGroup(EntryPath(held.value(), {}));
    QVERIFY(group.ok());
    const auto file =
        machine.files().openIn(group.value(), EntryPath(held.value(), u"0"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write(QByteArray(Size, 'z').constData(), Size).valueOr(-1), Size);
    QVERIFY(file.value()->flush().ok());
    QVERIFY(syncFileSystem(folder.path));
    folder.drive.faults.failFlushes();
    const platform::Status closed = machine.files().closeGroup(*group.value());
    QVERIFY(folder.drive.faults.failedFlushes() > 0);
    QCOMPARE(closed.code, quint32(platform::IoDevice));
}

void tst_DurabilityFaults::aWriteThatIsLostFailsAllFiles()
{
    Folder folder;
    QVERIFY(folder.isReady());
    folder.loseWritesOf(1);
    WipeTask task;
    task.addFiles({folder.path});
    task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    const RealJob job = runRealJob(task);
    QVERIFY(folder.drive.faults.failedWrites() > 0);
    QVERIFY(!job.success);
    for (int i = 0; i < Count; ++i)
        QVERIFY2(job.hasLine(u"FlushFileBuffers 失败: "_s + folder.pathOf(i)),
                 qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(u"第 1/2 遍覆写出现失败文件，失败数: 3"_s));
    QCOMPARE(job.report.status, WipeStatus::Failed);
    QVERIFY(folder.isWhole());
}

void tst_DurabilityFaults::aFlushThatFailsFailsAllFiles()
{
    Folder folder;
    QVERIFY(folder.isReady());
    folder.drive.faults.failFlushes();
    WipeTask task;
    task.addFiles({folder.path});
    task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
    const RealJob job = runRealJob(task);
    QVERIFY(folder.drive.faults.failedFlushes() > 0);
    QVERIFY2(!job.success, qPrintable(job.log.join(u'\n')));
    QVERIFY(job.hasLine(u"第 1/2 遍覆写出现失败文件，失败数: 3"_s));
    QVERIFY(folder.isWhole());
}

QUORVEX_SUITE(tst_DurabilityFaults, QCoreApplication)
#include "tst_durabilityfaults.moc"
