#include "engine/freespacewipeworker.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "platform/folders.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "support/workerrecord.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(LoopMount::FileSystem)

// Free-space jobs on real file systems, judged by the raw image.
//
// A job leaves 100 MiB free on purpose, and the file system's allocator chooses these blocks. The layout of
// the volumes keeps the markers out of them: a filler of 320 MiB is written behind the marker files, and
// deleted too. It is the largest stretch of free space and the last that was allocated. So the allocation
// continues behind it, returns to the space of the markers, and only then enters the space of the filler,
// part of which stays free.
class tst_FreeSpaceResidue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void deletedDataIsGone_data();
    void deletedDataIsGone();
    void deletedDataBetweenFilesIsGone();
    void deletedDataStaysWithoutTheJob_data();
    void deletedDataStaysWithoutTheJob();
    void stoppedJobLeavesTheVolumeAsItWas_data();
    void stoppedJobLeavesTheVolumeAsItWas();

private:
    quint32 m_seed = 0;
};

namespace {

constexpr qint64 VolumeBytes = 600 * MiB;
constexpr qint64 FillerBytes = 320 * MiB;
constexpr int DeletedFiles = 90;
constexpr int MarginFiles = 15;
constexpr int KeptFiles = 40;

// A volume with files that stay and files that carry a marker in every one of their 512-byte blocks.
class Volume
{
public:
    Volume(const QString &folder, LoopMount::FileSystem fileSystem, quint32 seed,
           const QStringList &makeArguments = {})
        : m_random(seed)
        , mount(folder, {.fileSystem = fileSystem, .sizeBytes = VolumeBytes, .makeArguments = makeArguments})
    {
        // Not printable, so that no name or log line contains it.
        for (int i = 0; i < 32; ++i)
            m_marker.append(static_cast<char>(m_random.generate() | 0x80));
    }

    // Creates the files that stay, then those to be deleted, one after the other. The outermost of the latter
    // carry no marker, because the blocks at either end of their space may be too few for another chunk.
    void populate()
    {
        for (int i = 0; i < KeptFiles; ++i)
            keep(m_random.bounded(1, 400'000));
        for (int i = 0; i < DeletedFiles; ++i)
            addDeleted(2048, i >= MarginFiles && i < DeletedFiles - MarginFiles);
        writeFiller();
    }
    // Creates files of all sizes that stay and that are deleted, side by side.
    void populateMixed()
    {
        for (int i = 0; i < 300; ++i) {
            keep(m_random.bounded(1, 40'000));
            addDeleted(m_random.bounded(1, 300), true);
        }
        writeFiller();
    }

    bool removeDeletedFiles()
    {
        return std::all_of(m_deleted.cbegin(), m_deleted.cend(),
                           [](const QString &file) { return QFile::remove(file); });
    }

    // Ext4 reserves up to 16 MiB for its own records, as free space that files cannot use.
    bool holdNothingBack() const
    {
        QFile reserved(u"/sys/fs/ext4/%1/reserved_clusters"_s.arg(QFileInfo(mount.device()).fileName()));
        return reserved.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && reserved.write("0") == 1;
    }

    bool keptFilesAreWhole() const
    {
        for (auto kept = m_kept.cbegin(); kept != m_kept.cend(); ++kept) {
            QFile file(kept.key());
            QCryptographicHash hash(QCryptographicHash::Sha256);
            if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file) || hash.result() != kept.value())
                return false;
        }
        return true;
    }

    QStringList entries() const
    {
        return QDir(mount.mountPoint())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    qint64 markerCount() const { return m_markerCount; }
    qint64 markersInImage() { return mount.countInImage(m_marker); }

private:
    void keep(int size)
    {
        QByteArray content(size, Qt::Uninitialized);
        m_random.generate(content.begin(), content.end());
        const QString file = path(u"kept%1.bin"_s.arg(m_kept.size()));
        m_kept.insert(file, QCryptographicHash::hash(content, QCryptographicHash::Sha256));
        writeThrough(file, content);
    }
    void addDeleted(int blocks, bool isSecret)
    {
        m_deleted.append(path(u"deleted%1.bin"_s.arg(m_deleted.size())));
        m_markerCount += isSecret ? blocks : 0;
        const QByteArray start = isSecret ? m_marker : QByteArray(m_marker.size(), '-');
        writeThrough(m_deleted.last(), (start + QByteArray(512 - start.size(), '.')).repeated(blocks));
    }
    void writeFiller()
    {
        m_deleted.append(path(u"filler.bin"_s));
        writeThrough(m_deleted.last(), QByteArray(FillerBytes, 'f'));
    }
    QString path(const QString &name) const { return mount.mountPoint() + u'/' + name; }

    QRandomGenerator m_random;
    QByteArray m_marker;
    qint64 m_markerCount = 0;
    QHash<QString, QByteArray> m_kept; // SHA-256 by path
    QStringList m_deleted;

public:
    LoopMount mount;
};

// Reports the reserve on top of the real free space, so that every free block is filled, whatever the
// allocator's order.
class WholeSpaceFolder : public platform::ForwardingAnchoredFolder
{
public:
    using Opened = platform::Result<std::unique_ptr<platform::AnchoredFolder>>;

    using ForwardingAnchoredFolder::ForwardingAnchoredFolder;
    static Opened over(Opened folder)
    {
        if (!folder)
            return folder;
        return std::unique_ptr<AnchoredFolder>(std::make_unique<WholeSpaceFolder>(folder.take()));
    }
    Opened createFolder(const QString &name) override
    {
        return over(ForwardingAnchoredFolder::createFolder(name));
    }
    platform::Result<platform::SpaceInfo> space() override
    {
        auto space = ForwardingAnchoredFolder::space();
        if (space)
            space.value().freeBytes += 100 * MiB;
        return space;
    }
};

class WholeSpaceFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;
    WholeSpaceFolder::Opened anchor(const platform::EntryPath &folder) override
    {
        return WholeSpaceFolder::over(ForwardingFolders::anchor(folder));
    }
};

void addFileSystems()
{
    QTest::addColumn<LoopMount::FileSystem>("fileSystem");
    QTest::newRow("ext4") << LoopMount::Ext4;
    QTest::newRow("xfs") << LoopMount::Xfs;
}

struct Job
{
    WipeTask task;
    FreeSpaceWipeWorker worker{&task};
    WorkerRecord record{worker};

    explicit Job(const QString &mountPoint)
    {
        PartitionInfo partition;
        partition.driveLetter = mountPoint;
        task.setOperationType(FreeSpaceWipe);
        task.setPartition(partition);
        task.setMethod(WipeMethod::fromType(WipeMethod::BritishHmgIs5));
        task.setBufferSizeMB(4);
    }
};

} // namespace

void tst_FreeSpaceResidue::initTestCase()
{
    m_seed = QRandomGenerator::system()->generate();
    qInfo() << "seed" << m_seed;
}

void tst_FreeSpaceResidue::deletedDataIsGone_data()
{
    addFileSystems();
}

void tst_FreeSpaceResidue::deletedDataIsGone()
{
    QFETCH(const LoopMount::FileSystem, fileSystem);
    if (const QString reason = LoopMount::unavailableReason(fileSystem); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    Volume volume(folder.path(), fileSystem, m_seed);
    QVERIFY2(volume.mount.isReady(), qPrintable(volume.mount.error()));
    volume.populate();
    QVERIFY(volume.removeDeletedFiles());
    QCOMPARE(volume.markersInImage(), volume.markerCount());
    const qint64 free =
        platform::Platform::current().folders().space(volume.mount.mountPoint()).value().freeBytes;

    Job job(volume.mount.mountPoint());
    job.worker.process();

    const QStringList lines = job.record.lines();
    QVERIFY2(lines.last() == u"finished true"_s, qPrintable(lines.join(u'\n')));
    QCOMPARE(lines.filter(QRegularExpression(u"^[12] "_s)), QStringList());
    // All but the reserve, minus a few blocks that the file system needs for the fill files themselves.
    const auto wiped = static_cast<qint64>(job.task.report().wipedSectors) * 512;
    QVERIFY2(wiped > free - 100 * MiB - 4 * MiB && wiped <= free - 100 * MiB, qPrintable(lines.join(u'\n')));
    QCOMPARE(volume.entries().filter(u".quorvex_temp_"_s).size(), 1);

    QVERIFY(volume.mount.unmount());
    QCOMPARE(volume.markersInImage(), 0);
    QVERIFY(volume.mount.mount());
    QVERIFY(volume.keptFilesAreWhole());
}

void tst_FreeSpaceResidue::deletedDataBetweenFilesIsGone()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    // With a journal, a block that records the place of a fill file may be released before it was ever
    // written in its place. It then keeps its old content. In free space as scattered as this, one or two
    // blocks are affected.
    Volume volume(folder.path(), LoopMount::Ext4, m_seed, {u"-O"_s, u"^has_journal"_s});
    QVERIFY2(volume.mount.isReady(), qPrintable(volume.mount.error()));
    QVERIFY(volume.holdNothingBack());
    volume.populateMixed();
    QVERIFY(volume.removeDeletedFiles());
    QCOMPARE(volume.markersInImage(), volume.markerCount());

    platform::Platform &real = platform::Platform::current();
    WholeSpaceFolders folders(real.folders());
    platform::ForwardingPlatform wholeSpace(real.files(), folders, real.devices(), real.session());
    const platform::ScopedPlatform scope(wholeSpace);
    Job job(volume.mount.mountPoint());
    job.worker.process();

    const QStringList lines = job.record.lines();
    QVERIFY2(lines.last() == u"finished true"_s, qPrintable(lines.join(u'\n')));
    QVERIFY(volume.mount.unmount());
    QCOMPARE(volume.markersInImage(), 0);
    QVERIFY(volume.mount.mount());
    QVERIFY(volume.keptFilesAreWhole());
}

void tst_FreeSpaceResidue::deletedDataStaysWithoutTheJob_data()
{
    addFileSystems();
}

void tst_FreeSpaceResidue::deletedDataStaysWithoutTheJob()
{
    QFETCH(const LoopMount::FileSystem, fileSystem);
    if (const QString reason = LoopMount::unavailableReason(fileSystem); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    Volume volume(folder.path(), fileSystem, m_seed);
    QVERIFY2(volume.mount.isReady(), qPrintable(volume.mount.error()));
    volume.populate();
    QVERIFY(volume.removeDeletedFiles());
    QVERIFY(volume.mount.unmount());
    QVERIFY(volume.markerCount() > 1000);
    QCOMPARE(volume.markersInImage(), volume.markerCount());
}

void tst_FreeSpaceResidue::stoppedJobLeavesTheVolumeAsItWas_data()
{
    addFileSystems();
}

void tst_FreeSpaceResidue::stoppedJobLeavesTheVolumeAsItWas()
{
    QFETCH(const LoopMount::FileSystem, fileSystem);
    if (const QString reason = LoopMount::unavailableReason(fileSystem); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    QTemporaryDir folder;
    Volume volume(folder.path(), fileSystem, m_seed);
    QVERIFY2(volume.mount.isReady(), qPrintable(volume.mount.error()));
    volume.populate();
    QVERIFY(volume.removeDeletedFiles());
    const QStringList before = volume.entries();

    Job job(volume.mount.mountPoint());
    QObject::connect(&job.worker, &BaseWipeWorker::progressChanged, &job.worker, [&](int percent) {
        if (percent >= 10)
            job.worker.stop();
    });
    job.worker.process();
    const QStringList lines = job.record.lines();
    QCOMPARE(lines.last(), u"finished false"_s);
    QCOMPARE(volume.entries(), before);
    QVERIFY(volume.mount.unmount());
    QVERIFY(volume.mount.mount());
    QVERIFY(volume.keptFilesAreWhole());
}

QUORVEX_SUITE(tst_FreeSpaceResidue, QCoreApplication)

#include "tst_freespaceresidue.moc"
