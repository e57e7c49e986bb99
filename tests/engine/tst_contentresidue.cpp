#include "engine/foreseeable.h"
#include "engine/freespacewipeworker.h"
#include "filejob.h"
#include "model/joboutcome.h"
#include "model/units.h"
#include "model/wipetask.h"
#include "platform/filenames.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <unistd.h>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int Size = 64 * KiB;

const QByteArray &marker()
{
    static const QByteArray text = "SECRET-OF-THIS-TEST-";
    return text;
}

QByteArray secret(int size)
{
    return marker().repeated(size / int(marker().size()) + 1).left(size);
}

void run(const QString &program, const QStringList &arguments)
{
    // The folders of administration tools are not in every PATH.
    const QString found = QStandardPaths::findExecutable(program);
    const QStringList others{u"/usr/sbin"_s, u"/sbin"_s};
    QProcess process;
    process.start(found.isEmpty() ? QStandardPaths::findExecutable(program, others) : found, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        QTest::qFail((program.toLocal8Bit() + ": " + process.readAllStandardError()).constData(), __FILE__,
                     __LINE__);
}

// Creates an empty file with a flag that applies to later writes.
QString makeFlagged(const QString &path, int flag)
{
    writeFile(path, {});
    const int file = ::open(platform::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    if (file < 0 || ::ioctl(file, FS_IOC_GETFLAGS, &flags) != 0 ||
        ::ioctl(file, FS_IOC_SETFLAGS, &(flags |= flag)) != 0)
        QTest::qFail("no such flag", __FILE__, __LINE__);
    ::close(file);
    return path;
}

void append(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append) || file.write(bytes) != bytes.size())
        QTest::qFail("nothing is appended", __FILE__, __LINE__);
}

void write(const QString &path)
{
    writeFile(path, secret(Size));
}

// The journal starts again at every mount. The writes of the job do not reach the secret in it.
void writeDeepInTheJournal(const QString &path)
{
    const int file = ::open(platform::encodeName(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    for (int i = 0; i <= 8; ++i) {
        const QByteArray content = i < 8 ? QByteArray(Size, '.') : secret(Size);
        if (::pwrite(file, content.constData(), Size, 0) != Size || ::fsync(file) != 0)
            QTest::qFail("nothing is written", __FILE__, __LINE__);
    }
    ::close(file);
}

void clone(const QString &from, const QString &to)
{
    run(u"cp"_s, {u"--reflink=always"_s, from, to});
}

// Makes more extents than the kernel returns in one query; another file shares the last one.
void cloneLastOfMany(const QString &path, const QString &copy)
{
    constexpr int Block = 4 * KiB;
    constexpr int Pieces = 300;
    const int file = ::open(platform::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    const int other = ::open(platform::encodeName(copy).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    const QByteArray content = secret(Block);
    bool isDone = file >= 0 && other >= 0;
    for (int i = 0; i < Pieces; ++i)
        isDone = isDone && ::pwrite(file, content.constData(), Block, qint64(i) * 2 * Block) == Block;
    file_clone_range range = {};
    range.src_fd = file;
    range.src_offset = quint64(Pieces - 1) * 2 * Block;
    range.src_length = Block;
    if (!isDone || ::fsync(file) != 0 || ::ioctl(other, FICLONERANGE, &range) != 0)
        QTest::qFail("nothing is shared", __FILE__, __LINE__);
    ::close(file);
    ::close(other);
}

// The setup of one file's place, and the expected note of the job.
struct Case
{
    const char *name;
    LoopMount::Options volume;
    // Runs before the first mount.
    std::function<void(const QString &device)> tune;
    std::function<void(const QString &file, const QString &root)> make;
    std::optional<qint64> bytesElsewhere; // empty: no note expected
};

const QList<Case> &cases()
{
    const LoopMount::Options ext4{.fileSystem = LoopMount::Ext4};
    const LoopMount::Options inlining{.fileSystem = LoopMount::Ext4,
                                      .makeArguments = {u"-O"_s, u"inline_data"_s, u"-I"_s, u"256"_s}};
    const LoopMount::Options xfs{.fileSystem = LoopMount::Xfs, .makeArguments = {u"-m"_s, u"reflink=1"_s}};
    // Discarded blocks would become holes in the image, which a real medium does not guarantee.
    const LoopMount::Options btrfs{.fileSystem = LoopMount::Btrfs, .mountOptions = u"nodiscard"_s};
    const auto plainly = [](const QString &file, const QString &) { write(file); };
    const auto journalled = [](const QString &file, const QString &) { writeDeepInTheJournal(file); };
    const auto inPlace = [](const QString &file, const QString &) {
        append(makeFlagged(file, FS_NOCOW_FL), secret(Size));
    };
    LoopMount::Options journalling = ext4;
    journalling.mountOptions = u"data=journal"_s;
    LoopMount::Options compressing = btrfs;
    compressing.mountOptions = u"nodiscard,compress-force=zstd"_s;
    LoopMount::Options withoutRelocation = btrfs;
    withoutRelocation.mountOptions = u"nodiscard,nodatacow"_s;
    static const QList<Case> list{
        {"ext4", ext4, {}, plainly, {}},
        {"ext4, small file inside its record",
         inlining,
         {},
         [](const QString &file, const QString &) { writeFile(file, secret(60)); },
         60},
        {"ext4, large file beside its record", inlining, {}, plainly, {}},
        {"ext4 mounted with data=journal", journalling, {}, journalled, Size},
        {"ext4 with data=journal of its own", ext4,
         [](const QString &device) {
             run(u"tune2fs"_s, {u"-o"_s, u"journal_data"_s, device});
         },
         journalled, Size},
        {"xfs", xfs, {}, plainly, {}},
        {"xfs, copied by reference",
         xfs,
         {},
         [](const QString &file, const QString &root) {
             write(root + u"/copy"_s);
             clone(root + u"/copy"_s, file);
         },
         Size},
        {"xfs, beginning copied by reference",
         xfs,
         {},
         [](const QString &file, const QString &root) {
             writeFile(root + u"/copy"_s, secret(16 * KiB));
             clone(root + u"/copy"_s, file);
             append(file, secret(Size));
         },
         16 * KiB},
        {"xfs, the last of many pieces shared",
         xfs,
         {},
         [](const QString &file, const QString &root) { cloneLastOfMany(file, root + u"/copy"_s); },
         4 * KiB},
        {"xfs, no longer shared",
         xfs,
         {},
         [](const QString &file, const QString &root) {
             write(root + u"/copy"_s);
             clone(root + u"/copy"_s, file);
             QFile::remove(root + u"/copy"_s);
         },
         {}},
        {"btrfs", btrfs, {}, plainly, Size},
        {"btrfs, compressed", compressing, {}, plainly, Size},
        {"btrfs, in place", btrfs, {}, inPlace, {}},
        {"btrfs mounted to write in place", withoutRelocation, {}, plainly, {}},
        {"btrfs, in place and in a snapshot",
         btrfs,
         {},
         [=](const QString &file, const QString &root) {
             inPlace(file, root);
             run(u"btrfs"_s, {u"subvolume"_s, u"snapshot"_s, root, root + u"/snapshot"_s});
         },
         Size},
    };
    return list;
}

// Two layers on one volume, and their merged view.
class Overlay
{
public:
    Overlay(const QString &root, const QString &at)
        : m_at(platform::encodeName(at))
    {
        for (const QString &folder : {root + u"/upper"_s, root + u"/work"_s, at})
            QDir().mkpath(folder);
        const QByteArray options =
            platform::encodeName(u"lowerdir=%1/lower,upperdir=%1/upper,workdir=%1/work"_s.arg(root));
        m_isMounted = ::mount("overlay", m_at.constData(), "overlay", 0, options.constData()) == 0;
    }
    ~Overlay()
    {
        if (m_isMounted && ::umount(m_at.constData()) != 0)
            QTest::qFail("left mounted", __FILE__, __LINE__);
    }
    Overlay(const Overlay &) = delete;
    Overlay &operator=(const Overlay &) = delete;

    bool isMounted() const { return m_isMounted; }

private:
    QByteArray m_at;
    bool m_isMounted = false;
};

} // namespace

// The content reported as elsewhere is the content that stays on the medium, on real file systems.
class tst_ContentResidue : public QObject
{
    Q_OBJECT

private slots:
    void whatIsToldIsWhatStays_data();
    void whatIsToldIsWhatStays();
    void aFileWithAJournal();
    void aLowerLayerStays();
    void foldersAreForeseen();
    void aFreeSpaceJobNotesIt_data();
    void aFreeSpaceJobNotesIt();
    void namesThatAreNoText();

private:
    static void checkThatWhatIsToldStays(LoopMount &volume, const QString &file,
                                         std::optional<qint64> bytesElsewhere);
};

// The volume is mounted and holds the file.
void tst_ContentResidue::checkThatWhatIsToldStays(LoopMount &volume, const QString &file,
                                                  std::optional<qint64> bytesElsewhere)
{
    QVERIFY(volume.unmount());
    QVERIFY(volume.countInImage(marker()) > 0);
    QVERIFY(volume.mount());
    QList<Shortfall> told;
    if (bytesElsewhere)
        told.append({ShortfallKind::ContentElsewhere, file, *bytesElsewhere});
    {
        FileJob job;
        job.task.setFiles({file});
        // Before the job the forecast is the same, without the bytes.
        const QList<Shortfall> foreseen = foreseeableShortfalls(job.task).shortfalls();
        QCOMPARE(foreseen.size(), told.size());
        QVERIFY(job.run({file}));
        QCOMPARE(job.task.outcome().shortfalls(), told);
    }
    QVERIFY(!QFile::exists(file));
    QVERIFY(volume.unmount());
    const qint64 left = volume.countInImage(marker());
    QVERIFY(left >= 0);
    QCOMPARE(left > 0, !told.isEmpty());
}

void tst_ContentResidue::whatIsToldIsWhatStays_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < cases().size(); ++i)
        QTest::newRow(cases().at(i).name) << i;
}

void tst_ContentResidue::whatIsToldIsWhatStays()
{
    QFETCH(int, index);
    const Case &given = cases().at(index);
    if (const QString reason = LoopMount::unavailableReason(given.volume.fileSystem); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount::Options options = given.volume;
    options.mounted = false;
    LoopMount volume(folder.path(), options);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    if (given.tune)
        given.tune(volume.device());
    QVERIFY2(volume.mount(), qPrintable(volume.error()));
    const QString file = volume.mountPoint() + u"/secret"_s;
    given.make(file, volume.mountPoint());
    QVERIFY(!QTest::currentTestFailed());
    checkThatWhatIsToldStays(volume, file, given.bytesElsewhere);
}

// Setting the flag needs a capability; writing it into the image does not.
void tst_ContentResidue::aFileWithAJournal()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    // The flag has no effect with delayed allocation.
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4, .mountOptions = u"nodelalloc"_s});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString file = writeFile(volume.mountPoint() + u"/secret"_s, {});
    QVERIFY(volume.unmount());
    constexpr int Flags = FS_JOURNAL_DATA_FL | FS_EXTENT_FL;
    run(u"debugfs"_s, {u"-w"_s, u"-R"_s, u"set_inode_field /secret flags %1"_s.arg(Flags), volume.device()});
    QVERIFY(volume.mount());
    writeDeepInTheJournal(file);
    checkThatWhatIsToldStays(volume, file, Size);
}

void tst_ContentResidue::aLowerLayerStays()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    writeFile(volume.mountPoint() + u"/lower/secret"_s, secret(Size));
    {
        const Overlay overlay(volume.mountPoint(), folder.filePath(u"seen"_s));
        if (!overlay.isMounted())
            QSKIP("SKIPPED: this kernel mounts no overlays");
        const QString file = folder.filePath(u"seen/secret"_s);
        FileJob job;
        job.task.setFiles({file});
        QVERIFY(foreseeableShortfalls(job.task).has(ShortfallKind::ContentElsewhere));
        QVERIFY(job.run({file}));
        QVERIFY(!QFile::exists(file));
        QCOMPARE(job.task.outcome().shortfalls(),
                 (QList<Shortfall>{{ShortfallKind::ContentElsewhere, file, Size}}));
    }
    QCOMPARE(contentOf(volume.mountPoint() + u"/lower/secret"_s), secret(Size));
}

// A folder is judged by its files, not by files that would be created in it.
void tst_ContentResidue::foldersAreForeseen()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString target = volume.mountPoint() + u"/folder"_s;
    QVERIFY(QDir().mkpath(target + u"/deep"_s));
    append(makeFlagged(target + u"/deep/in place"_s, FS_NOCOW_FL), secret(Size));
    WipeTask task;
    task.setFiles({target});
    QVERIFY(foreseeableShortfalls(task).shortfalls().isEmpty());
    write(target + u"/deep/elsewhere"_s);
    QCOMPARE(foreseeableShortfalls(task).shortfalls(),
             (QList<Shortfall>{{ShortfallKind::ContentElsewhere, target}}));
}

void tst_ContentResidue::aFreeSpaceJobNotesIt_data()
{
    QTest::addColumn<int>("fileSystem");
    QTest::addColumn<bool>("isNoted");
    QTest::newRow("btrfs") << int(LoopMount::Btrfs) << true;
    QTest::newRow("ext4") << int(LoopMount::Ext4) << false;
}

void tst_ContentResidue::aFreeSpaceJobNotesIt()
{
    QFETCH(int, fileSystem);
    const auto kind = static_cast<LoopMount::FileSystem>(fileSystem);
    if (const QString reason = LoopMount::unavailableReason(kind); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = kind});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    WipeTask task;
    task.setOperationType(FreeSpaceWipe);
    PartitionInfo partition;
    partition.driveLetter = volume.mountPoint();
    task.setPartition(partition);
    FreeSpaceWipeWorker worker(&task);
    worker.process();
    QTEST(task.outcome().has(ShortfallKind::CopyOnWrite), "isNoted");
    QVERIFY(!task.outcome().has(ShortfallKind::ContentElsewhere));
}

void tst_ContentResidue::namesThatAreNoText()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    const LoopMount volume(folder.path(), {.fileSystem = LoopMount::Btrfs});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QByteArray name = QFile::encodeName(volume.mountPoint()) + "/f\xff";
    const int file = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    QVERIFY(file >= 0);
    QCOMPARE(::write(file, "abc", 3), 3);
    ::close(file);
    FileJob job;
    QVERIFY(job.run({platform::decodeName(name)}));
    QCOMPARE(job.task.outcome().shortfalls(),
             (QList<Shortfall>{{ShortfallKind::ContentElsewhere, platform::decodeName(name), 3}}));
}

QUORVEX_SUITE(tst_ContentResidue, QCoreApplication)
#include "tst_contentresidue.moc"
