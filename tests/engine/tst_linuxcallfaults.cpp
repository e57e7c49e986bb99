#include "model/units.h"
#include "model/wipetask.h"
#include "platform/anchoredfolder.h"
#include "platform/folders.h"
#include "platform/platform.h"
#include "realjob.h"
#include "support/linuxfaults.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Size = 2 * 1024 * 1024; // of the drive: more than one chunk

QByteArray markers(const QByteArray &marker, qint64 size)
{
    return marker.repeated(size / marker.size() + 1).left(size);
}

// Each of the thousands of calls in a round of the journal would fail in its turn.
const QStringList withoutJournal{u"-O"_s, u"^has_journal"_s};

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

// The paths of everything below the folder, relative to it; empty folders and what is in others.
QStringList contentsOf(const QString &folder)
{
    const QDir top(folder);
    QStringList paths;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (!entries.fileInfo().isDir() || QDir(path).isEmpty())
            paths.append(top.relativeFilePath(path));
    }
    return paths;
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
    void treesAreErasedOrNotCalledSo();
    void freeSpaceIsFilledOrNotCalledSo_data();
    void freeSpaceIsFilledOrNotCalledSo();
    void foldersAreRemovedOrNotCalledSo_data() { errors(); }
    void foldersAreRemovedOrNotCalledSo();
    void entriesThatVanishMeanwhileAreRemoved();
    void aFolderThatCannotBeOpenedIsNotLeft();

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
    LoopMount volume(folder.path(),
                     {.fileSystem = LoopMount::Ext4, .sizeBytes = 2 * MiB, .makeArguments = withoutJournal});
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
            qInfo("%d calls failed in their turn", nth - 1);
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

// Folders within folders, a link, a second name and an empty file.
void tst_LinuxCallFaults::treesAreErasedOrNotCalledSo()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(),
                     {.fileSystem = LoopMount::Ext4, .sizeBytes = 2 * MiB, .makeArguments = withoutJournal});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QDir root(volume.mountPoint());
    const QString tree = root.filePath(u"tree"_s);
    const QString outside = root.filePath(u"outside"_s);
    LinuxFaults faults;
    int failures = 0;
    for (int nth = 1;; ++nth) {
        const QByteArray which = "call " + QByteArray::number(nth);
        const QByteArray marker = markerOf(nth);
        writeFile(outside, "stays");
        writeFile(tree + u"/a/b/file"_s, markers(marker, 9'000));
        writeFile(tree + u"/a/empty"_s, {});
        writeFile(tree + u"/file"_s, markers(marker, 5'000));
        QFile::link(outside, tree + u"/a/link"_s);
        QCOMPARE(::link(qPrintable(tree + u"/file"_s), qPrintable(tree + u"/a/name"_s)), 0);
        QVERIFY(volume.countInImage(marker) > 500);
        WipeTask task;
        task.addFiles({tree});
        task.setMethod(withoutReadingBack());
        faults.fail(LinuxFaults::AnyCall, nth, EIO);
        const RealJob job = runRealJob(task);
        const int fired = faults.fired();
        faults.failNothing();
        failures += job.success ? 0 : 1;
        QCOMPARE(contentOf(outside), QByteArray("stays"));
        if (job.success) {
            QVERIFY2(volume.countInImage(marker) == 0, which.constData());
            QVERIFY2(!exists(tree + u"/a/b/file"_s) && !exists(tree + u"/file"_s), which.constData());
            QVERIFY2(!exists(tree) || job.outcome == JobOutcome::Partial, which.constData());
        }
        if (fired == 0) {
            qInfo("%d calls failed in their turn", nth - 1);
            QVERIFY2(job.success && !exists(tree), qPrintable(job.log.join(u'\n')));
            break;
        }
        QVERIFY(!exists(tree) || QDir(tree).removeRecursively());
    }
    QVERIFY2(failures > 5, qPrintable(QString::number(failures)));
}

void tst_LinuxCallFaults::freeSpaceIsFilledOrNotCalledSo_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("EIO") << EIO;
    QTest::newRow("ENOSPC") << ENOSPC;
}

void tst_LinuxCallFaults::freeSpaceIsFilledOrNotCalledSo()
{
    QFETCH(const int, error);
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    // A job leaves 100 MiB free.
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .sizeBytes = 128 * MiB});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString kept = volume.mountPoint() + u"/kept"_s;
    writeFile(kept, "stays");
    const QStringList entries = contentsOf(volume.mountPoint());
    const PartitionInfo partition = volumeAt(volume.mountPoint());
    const auto fill = [&partition] {
        WipeTask task;
        task.setOperationType(FreeSpaceWipe);
        task.setPartition(partition);
        task.setMethod(withoutReadingBack());
        task.setBufferSizeMB(8);
        return runRealJob(task);
    };
    const quint64 whole = fill().report.wipedSectors;
    QVERIFY(whole > 4 * MiB / 512);
    LinuxFaults faults;
    int failures = 0;
    constexpr int Most = 3; // of each entry, because each run writes megabytes
    for (const auto call : {LinuxFaults::Openat_, LinuxFaults::Mkdirat_, LinuxFaults::Pwrite_,
                            LinuxFaults::Fdatasync_, LinuxFaults::Unlinkat_, LinuxFaults::Fstatvfs_}) {
        for (int nth = 1, fired = 1; fired > 0 && nth <= Most; ++nth) {
            const QString which = u"entry %1, call %2"_s.arg(call).arg(nth);
            faults.fail(call, nth, error);
            const RealJob job = fill();
            fired = faults.fired();
            faults.failNothing();
            failures += job.success ? 0 : 1;
            QVERIFY2(job.success || fired > 0, qPrintable(job.log.join(u'\n')));
            QCOMPARE(contentOf(kept), QByteArray("stays"));
            QVERIFY(job.success || job.outcome == JobOutcome::Failed);
            if (job.outcome != JobOutcome::Complete)
                continue;
            // A job leaves its folder, empty.
            for (const QString &left : contentsOf(volume.mountPoint()))
                QVERIFY2(entries.contains(left) ||
                             (left.startsWith(u".quorvex_temp_"_s) && !left.contains(u'/')),
                         qPrintable(which + u": "_s + left));
            QVERIFY2(job.report.wipedSectors + 2 * MiB / 512 >= whole, qPrintable(which));
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
            qInfo("%d calls failed in their turn", nth - 1);
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

void tst_LinuxCallFaults::aFolderThatCannotBeOpenedIsNotLeft()
{
    const QTemporaryDir folder;
    const auto anchor = platform::Platform::current().folders().anchor(folder.path());
    QVERIFY2(anchor, qPrintable(anchor.status().diagnostic()));
    LinuxFaults faults;
    faults.fail(LinuxFaults::Openat_, 1, EMFILE);
    const auto created = anchor.value()->createFolder(u"new"_s);
    QCOMPARE(faults.fired(), 1);
    QVERIFY(!created);
    QVERIFY(!exists(folder.filePath(u"new"_s)));
}

QUORVEX_SUITE(tst_LinuxCallFaults, QCoreApplication)
#include "tst_linuxcallfaults.moc"
