#include "model/wipetask.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "realjob.h"
#include "support/linuxfaults.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Size = 2 * 1024 * 1024; // of the drive: more than one chunk

QByteArray markers(const QByteArray &marker, qint64 size)
{
    return marker.repeated(size / marker.size() + 1).left(size);
}

// Another one for each run, so that what a failed run leaves behind is not taken for this one's.
QByteArray markerOf(int run)
{
    return "SECRET-OF-RUN-" + QByteArray::number(run).rightJustified(6, '0') + '-';
}

// Two folders deep, with something of each kind in them.
QString makeTree(const QString &above)
{
    const QDir folder(above);
    folder.mkpath(u"tree/a/b"_s);
    folder.mkpath(u"tree/c"_s);
    writeFile(folder.filePath(u"tree/file"_s), "1");
    writeFile(folder.filePath(u"tree/a/file"_s), "2");
    writeFile(folder.filePath(u"tree/a/b/file"_s), "3");
    QFile::link(above, folder.filePath(u"tree/a/link"_s));
    return folder.filePath(u"tree"_s);
}

// What a write claims has to be true by itself.
WipeMethod withoutReadingBack()
{
    WipeMethod method = WipeMethod::fromType(WipeMethod::Nist80088);
    method.passes = {{PatternType::Zeros}};
    return method;
}

bool exists(const QString &path)
{
    return QFileInfo(path).exists() || QFileInfo(path).isSymLink();
}

} // namespace

// The Linux backend on a system of which each call fails in its turn: no job is called successful while
// anything of its data is left, whichever call it was. The content is looked at below the file system.
class tst_LinuxCallFaults : public QObject
{
    Q_OBJECT

private slots:
    void filesAreErasedOrNotCalledSo_data() { errors(); }
    void filesAreErasedOrNotCalledSo();
    void drivesAreErasedOrNotCalledSo_data() { errors(); }
    void drivesAreErasedOrNotCalledSo();
    void foldersAreRemovedOrNotCalledSo_data() { errors(); }
    void foldersAreRemovedOrNotCalledSo();
    void entriesThatVanishMeanwhileAreRemoved();

private:
    static void errors();
};

void tst_LinuxCallFaults::errors()
{
    QTest::addColumn<int>("error");
    QTest::newRow("EIO") << EIO;
    QTest::newRow("ENOSPC") << ENOSPC;
    QTest::newRow("EACCES") << EACCES;
}

void tst_LinuxCallFaults::filesAreErasedOrNotCalledSo()
{
    QFETCH(const int, error);
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString path = volume.mountPoint() + u"/file"_s;
    LinuxFaults faults;
    int failures = 0;
    for (int nth = 1;; ++nth) {
        const QByteArray marker = markerOf(nth);
        // Whole blocks and a part of one.
        writeFile(path, markers(marker, 70'000));
        QVERIFY(volume.countInImage(marker) > 3000);
        WipeTask task;
        task.addFiles({path});
        task.setMethod(withoutReadingBack());
        faults.fail(LinuxFaults::AnyCall, nth, error);
        const RealJob job = runRealJob(task);
        const int fired = faults.fired();
        faults.failNothing();
        failures += job.success ? 0 : 1;
        if (job.success) {
            QVERIFY2(!exists(path), qPrintable(u"call %1"_s.arg(nth)));
            QVERIFY2(volume.countInImage(marker) == 0, qPrintable(u"call %1"_s.arg(nth)));
        }
        if (fired == 0) {
            QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
            break;
        }
        for (const QString &left : QDir(volume.mountPoint()).entryList(QDir::Files | QDir::Hidden))
            QVERIFY(QFile::remove(QDir(volume.mountPoint()).filePath(left)));
    }
    QVERIFY2(failures > 5, qPrintable(QString::number(failures)));
}

void tst_LinuxCallFaults::drivesAreErasedOrNotCalledSo()
{
    QFETCH(const int, error);
    if (const QString reason = LoopMount::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount drive(folder.path(), {.fileSystem = LoopMount::NoFileSystem, .sizeBytes = Size});
    QVERIFY2(drive.isReady(), qPrintable(drive.error()));
    const DiskInfo disk = diskAt(drive.device());
    QCOMPARE(disk.sizeBytes, Size);
    LinuxFaults faults;
    int run = 0;
    int failures = 0;
    // Of the calls that reach the device. The others only look for volumes on it, and the samples that are
    // read back are thousands.
    for (const auto call : {LinuxFaults::Openat_, LinuxFaults::Fstat_, LinuxFaults::Ioctl_,
                            LinuxFaults::Pwrite_, LinuxFaults::Fdatasync_}) {
        for (int nth = 1, fired = 1; fired > 0; ++nth) {
            const QString which = u"entry %1, call %2"_s.arg(call).arg(nth);
            const QByteArray marker = markerOf(++run);
            QVERIFY(drive.writeImage(0, markers(marker, Size)));
            WipeTask task;
            task.setOperationType(DiskWipe);
            task.setDisk(disk);
            task.setMethod(withoutReadingBack());
            task.setBufferSizeMB(1);
            faults.fail(call, nth, error);
            const RealJob job = runRealJob(task);
            fired = faults.fired();
            faults.failNothing();
            failures += job.success ? 0 : 1;
            QVERIFY2(job.success || fired > 0, qPrintable(job.log.join(u'\n')));
            if (job.success)
                QVERIFY2(drive.countInImage(marker.left(8)) == 0, qPrintable(which));
        }
    }
    QVERIFY2(failures > 3, qPrintable(QString::number(failures)));
}

void tst_LinuxCallFaults::foldersAreRemovedOrNotCalledSo()
{
    QFETCH(const int, error);
    const QTemporaryDir folder;
    platform::Folders &folders = platform::Platform::current().folders();
    LinuxFaults faults;
    int failures = 0;
    for (int nth = 1;; ++nth) {
        const QString tree = makeTree(folder.path());
        QVERIFY(exists(tree + u"/a/link"_s));
        faults.fail(LinuxFaults::AnyCall, nth, error);
        const platform::Status removed = folders.removeTree(tree);
        const int fired = faults.fired();
        faults.failNothing();
        failures += removed ? 0 : 1;
        QVERIFY2(!removed || !exists(tree), qPrintable(u"call %1"_s.arg(nth)));
        if (fired == 0) {
            QVERIFY2(removed.ok(), qPrintable(removed.diagnostic()));
            break;
        }
        QVERIFY(QDir(tree).removeRecursively());
    }
    QVERIFY2(failures > 5, qPrintable(QString::number(failures)));
}

// Somebody else removes each entry a moment before.
void tst_LinuxCallFaults::entriesThatVanishMeanwhileAreRemoved()
{
    const QTemporaryDir folder;
    const QString tree = makeTree(folder.path());
    platform::LinuxFileCalls calls;
    calls.unlinkat = [](int above, const char *name, int flags) {
        if (platform::LinuxFileCalls().unlinkat(above, name, flags) == 0)
            errno = ENOENT;
        return -1;
    };
    const platform::ScopedCalls scope(calls);
    const platform::Status removed = platform::Platform::current().folders().removeTree(tree);
    QVERIFY2(removed.ok(), qPrintable(removed.diagnostic()));
    QVERIFY(!exists(tree));
}

QUORVEX_SUITE(tst_LinuxCallFaults, QCoreApplication)
#include "tst_linuxcallfaults.moc"
