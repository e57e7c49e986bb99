#include "engine/copyonwrite.h"
#include "support/suite.h"

#include "engine/foreseeable.h"
#include "engine/freespacewipeworker.h"
#include "filejob.h"
#include "platform/filenames.h"
#include "support/loopmount.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class tst_CopyOnWrite : public QObject
{
    Q_OBJECT

private slots:
    void knowsTheTypes_data();
    void knowsTheTypes();
    void ordinaryFileSystemsAreNotNamed();
    void anOrdinaryJobSaysNothing();
    void aFileSystemIsNamedOnce();
    void theJobSaysSoAfterThePreparation();
    void theJobIsForeseenToFallShort();
    void aFreeSpaceJobNotesIt();
    void aMountPointIsJudgedByItself();
    void foldersWhoseNamesAreNoText();
};

namespace {

QString warningAbout(const QString &type)
{
    return QStringLiteral("1 文件系统 ") + type + QStringLiteral(" 不在原位置写入，旧数据可能仍留在介质上");
}

} // namespace

void tst_CopyOnWrite::knowsTheTypes_data()
{
    QTest::addColumn<bool>("elsewhere");
    for (const char *type : {"btrfs", "zfs", "f2fs", "nilfs2", "bcachefs", "overlay"})
        QTest::newRow(type) << true;
    for (const char *type : {"ext4", "xfs", "vfat", "exfat", "ntfs", "NTFS", "tmpfs", "zfs2", "f2", ""})
        QTest::newRow(type) << false;
}

void tst_CopyOnWrite::knowsTheTypes()
{
    QFETCH(bool, elsewhere);
    QCOMPARE(writesElsewhere(QByteArray(QTest::currentDataTag())), elsewhere);
}

void tst_CopyOnWrite::ordinaryFileSystemsAreNotNamed()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString file = volume.mountPoint() + QStringLiteral("/a");
    writeFile(file, "secret");
    QVERIFY(fileSystemsWritingElsewhere({volume.mountPoint(), file, file + QStringLiteral("/nothing")})
                .isEmpty());
}

void tst_CopyOnWrite::anOrdinaryJobSaysNothing()
{
    FileJob job;
    if (writesElsewhere(QStorageInfo(job.path({})).fileSystemType()))
        QSKIP("SKIPPED: the temporary folder itself is on a file system that writes elsewhere");
    QVERIFY(job.run({job.makeFile(QStringLiteral("a"), 10)}));
    QVERIFY(job.lines().filter(QStringLiteral("文件系统")).isEmpty());
}

void tst_CopyOnWrite::aFileSystemIsNamedOnce()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString file = volume.mountPoint() + QStringLiteral("/a");
    writeFile(file, "secret");
    QCOMPARE(fileSystemsWritingElsewhere({file, volume.mountPoint(), file, folder.path()}),
             QByteArrayList{"btrfs"});
}

void tst_CopyOnWrite::theJobSaysSoAfterThePreparation()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    FileJob job;
    QStringList files;
    for (const char *name : {"/a", "/b", "/c"}) {
        files += volume.mountPoint() + QString::fromLatin1(name);
        writeFile(files.last(), "secret");
    }
    QVERIFY(job.run(files));
    QCOMPARE(job.lines(), (QStringList{said::scanning, said::preparing(3, QStringLiteral("18 B")),
                                       warningAbout(QStringLiteral("btrfs")), said::pass(1, 1),
                                       said::deleting, said::allDone(3), said::succeeded}));
    const QList<Shortfall> told{{ShortfallKind::ContentElsewhere, QStringLiteral("btrfs")}};
    QCOMPARE(job.task.outcome().shortfalls(), told);
}

void tst_CopyOnWrite::theJobIsForeseenToFallShort()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString file = volume.mountPoint() + QStringLiteral("/a");
    writeFile(file, "secret");
    WipeTask task;
    task.setFiles({file});
    const QList<Shortfall> told{{ShortfallKind::ContentElsewhere, QStringLiteral("btrfs")}};
    QCOMPARE(foreseeableShortfalls(task).shortfalls(), told);
}

// Free space is filled wherever it is; what stays is in snapshots, for instance.
void tst_CopyOnWrite::aFreeSpaceJobNotesIt()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    WipeTask task;
    task.setOperationType(FreeSpaceWipe);
    PartitionInfo partition;
    partition.driveLetter = volume.mountPoint();
    task.setPartition(partition);
    FreeSpaceWipeWorker worker(&task);
    worker.process();
    QVERIFY(task.outcome().has(ShortfallKind::CopyOnWrite));
    QVERIFY(!task.outcome().has(ShortfallKind::ContentElsewhere));
}

void tst_CopyOnWrite::aMountPointIsJudgedByItself()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    QCOMPARE(fileSystemsWritingElsewhere({volume.mountPoint()}), QByteArrayList{"btrfs"});
    // A link into it stands elsewhere.
    const QString link = folder.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(volume.mountPoint(), link));
    const QByteArray outer = QStorageInfo(folder.path()).fileSystemType();
    QCOMPARE(fileSystemsWritingElsewhere({link}),
             writesElsewhere(outer) ? QByteArrayList{outer} : QByteArrayList());
}

void tst_CopyOnWrite::foldersWhoseNamesAreNoText()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QByteArray name = QFile::encodeName(volume.mountPoint()) + "/d\xff";
    QCOMPARE(::mkdir(name.constData(), 0700), 0);
    QCOMPARE(fileSystemsWritingElsewhere({platform::decodeName(name)}), QByteArrayList{"btrfs"});
}

QUORVEX_SUITE(tst_CopyOnWrite, QCoreApplication)
#include "tst_copyonwrite.moc"
