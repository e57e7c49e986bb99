#include "engine/freespacewipeworker.h"
#include "engine/realjob.h"
#include "engine/wipeengine.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "platform/filenames.h"
#include "support/links.h"
#include "support/loopmount.h"
#include "support/reason.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "support/workerrecord.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(LoopMount::FileSystem)

// Free-space jobs on mounted volumes that change during the job.
class tst_FreeSpaceVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aFolderSwappedForALinkIsNotFollowed();
    void anotherVolumeInItsPlaceIsNotFilled_data();
    void anotherVolumeInItsPlaceIsNotFilled();
    void aVolumeWithoutFreeInodesIsNotDone();
    void aSecondJobOnAVolumeIsRefused_data();
    void aSecondJobOnAVolumeIsRefused();
};

namespace {

struct Job
{
    WipeTask task;
    FreeSpaceWipeWorker worker{&task};
    WorkerRecord record{worker};

    explicit Job(const LoopMount &volume)
    {
        task.setOperationType(FreeSpaceWipe);
        task.setPartition(volumeAt(volume.mountPoint()));
        task.setBufferSizeMB(1);
    }
    bool succeeded() const { return record.lines().last() == u"finished true"_s; }
};

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QString temporaryFolder(const LoopMount &volume)
{
    const QStringList folders =
        QDir(volume.mountPoint()).entryList({u".quorvex_temp_*"_s}, QDir::Dirs | QDir::Hidden);
    return folders.size() == 1 ? volume.mountPoint() + u'/' + folders.first() : QString();
}

} // namespace

void tst_FreeSpaceVolumes::initTestCase()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_FreeSpaceVolumes::aFolderSwappedForALinkIsNotFollowed()
{
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.sizeBytes = 160 * MiB}, u"volume"_s);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const LoopMount other(folder.path(), {.sizeBytes = 32 * MiB}, u"other"_s);
    QVERIFY2(other.isReady(), qPrintable(other.error()));
    const QString precious = other.mountPoint() + u"/fill_000000.tmp"_s;
    writeFile(precious, "stays");
    const QString moved = volume.mountPoint() + u"/moved"_s;

    Job job(volume);
    QVERIFY(!job.task.partition().identity.isEmpty());
    bool swapped = false;
    QObject::connect(&job.worker, &BaseWipeWorker::progressChanged, &job.worker, [&] {
        if (swapped)
            return;
        const QString temporary = temporaryFolder(volume);
        swapped = QFile::rename(temporary, moved) && makeLink(other.mountPoint(), temporary);
    });
    job.worker.process();
    QVERIFY(swapped);
    QVERIFY2(!job.succeeded(), qPrintable(job.record.lines().join(u'\n')));
    QCOMPARE(contentOf(precious), QByteArray("stays"));
    // The job leaves nothing behind, wherever the folder was moved.
    QCOMPARE(entriesOf(moved), QStringList());
}

void tst_FreeSpaceVolumes::anotherVolumeInItsPlaceIsNotFilled_data()
{
    QTest::addColumn<LoopMount::FileSystem>("fileSystem");
    QTest::newRow("ext4") << LoopMount::Ext4;
    QTest::newRow("xfs") << LoopMount::Xfs;
    QTest::newRow("btrfs") << LoopMount::Btrfs;
}

// The other volume has the same device and mount point, so that neither number distinguishes them.
void tst_FreeSpaceVolumes::anotherVolumeInItsPlaceIsNotFilled()
{
    QFETCH(const LoopMount::FileSystem, fileSystem);
    if (const QString reason = LoopMount::unavailableReason(fileSystem); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = fileSystem});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    Job job(volume);
    QVERIFY(!job.task.partition().identity.isEmpty());
    WipeEngine engine;
    engine.setTask(&job.task);
    QCOMPARE(reasonOf(engine.makeReady()), QString());

    QVERIFY2(volume.unmount(), qPrintable(volume.error()));
    // The first volume is mounted again and counts as the chosen one.
    QVERIFY2(volume.mount(), qPrintable(volume.error()));
    QCOMPARE(reasonOf(engine.makeReady()), QString());

    QVERIFY2(volume.unmount(), qPrintable(volume.error()));
    const QString force = fileSystem == LoopMount::Ext4 ? u"-F"_s : u"-f"_s;
    const QString program = u"mkfs."_s + (fileSystem == LoopMount::Ext4  ? u"ext4"_s
                                          : fileSystem == LoopMount::Xfs ? u"xfs"_s
                                                                         : u"btrfs"_s);
    QCOMPARE(QProcess::execute(program, {force, u"-q"_s, volume.device()}), 0);
    QVERIFY2(volume.mount(), qPrintable(volume.error()));
    const QStringList before = entriesOf(volume.mountPoint());
    const QString text = u"Volume %1 is not the one that was chosen any more."_s.arg(volume.mountPoint());
    QCOMPARE(reasonOf(engine.makeReady()), text + u" Nothing was written."_s);
    job.worker.process();
    QVERIFY(!job.succeeded());
    QVERIFY2(job.record.lines().contains(u"error "_s + text), qPrintable(job.record.lines().join(u'\n')));
    QCOMPARE(entriesOf(volume.mountPoint()), before);
    QVERIFY2(volume.unmount(), qPrintable(volume.error()));
}

void tst_FreeSpaceVolumes::aVolumeWithoutFreeInodesIsNotDone()
{
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.sizeBytes = 300 * MiB, .makeArguments = {u"-N"_s, u"64"_s}});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    int made = 0;
    QFile last;
    do {
        last.setFileName(volume.mountPoint() + u'/' + QString::number(made++));
        QVERIFY(made < 10'000);
    } while (last.open(QIODevice::WriteOnly | QIODevice::NewOnly));

    // No file number is left for the folder, so the job fails.
    Job none(volume);
    none.worker.process();
    QVERIFY(!none.succeeded());

    // One file number is left, which the folder takes; none is left for a fill file.
    QVERIFY(QFile::remove(volume.mountPoint() + u"/0"_s));
    Job one(volume);
    one.worker.process();
    QVERIFY2(one.succeeded(), qPrintable(one.record.lines().join(u'\n')));
    QVERIFY(one.task.outcome().has(ShortfallKind::NothingWritten));
    one.task.setOutcome(JobOutcome::Complete);
    QCOMPARE(one.task.outcome().outcome(), JobOutcome::Partial);
}

void tst_FreeSpaceVolumes::aSecondJobOnAVolumeIsRefused_data()
{
    anotherVolumeInItsPlaceIsNotFilled_data();
}

void tst_FreeSpaceVolumes::aSecondJobOnAVolumeIsRefused()
{
    QFETCH(const LoopMount::FileSystem, fileSystem);
    if (const QString reason = LoopMount::unavailableReason(fileSystem); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = fileSystem, .sizeBytes = 400 * MiB});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    Job first(volume);
    Job second(volume);
    QStringList inTheWay;
    QStringList lines;
    QStringList before;
    QStringList after;
    QObject::connect(&first.worker, &BaseWipeWorker::progressChanged, &first.worker, [&] {
        if (!inTheWay.isEmpty())
            return;
        const QString temporary = temporaryFolder(volume);
        inTheWay.append(reasonOf(FreeSpaceWipeWorker::obstacleOf(second.task)));
        before = entriesOf(volume.mountPoint()) + entriesOf(temporary);
        second.worker.process();
        after = entriesOf(volume.mountPoint()) + entriesOf(temporary);
        lines = second.record.lines();
    });
    first.worker.process();
    QCOMPARE(inTheWay.size(), 1);
    QVERIFY2(inTheWay.first().contains(u"Another job"_s), qPrintable(inTheWay.first()));
    QVERIFY2(lines.contains(u"finished false"_s), qPrintable(lines.join(u'\n')));
    QCOMPARE(after, before);
    QVERIFY2(first.succeeded(), qPrintable(first.record.lines().join(u'\n')));

    // The first job has released its folder.
    QVERIFY(!temporaryFolder(volume).isEmpty());
    QCOMPARE(reasonOf(FreeSpaceWipeWorker::obstacleOf(second.task)), QString());
}

QUORVEX_SUITE(tst_FreeSpaceVolumes, QCoreApplication)
#include "tst_freespacevolumes.moc"
