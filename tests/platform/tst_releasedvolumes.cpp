#include "platform/devices.h"
#include "platform/platform.h"
#include "platform/storagereplies.h"
#include "support/partitionedloop.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/mount.h>
#include <unistd.h>

#include <memory>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

DriveIdentity identityOf(Devices &devices, const QString &node)
{
    for (int number = 0; number < 64; ++number) {
        auto query = devices.queryDrive(number);
        if (query && devices.drivePath(number) == node)
            return platform::identityOf(number, *query.value());
    }
    return {};
}

// Detects whether a file system mounted on one of the places is unmounted, even briefly. Does not keep it
// mounted.
class UnmountWatch
{
public:
    explicit UnmountWatch(const QStringList &places)
        : m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        for (const QString &place : places) {
            if (::inotify_add_watch(m_queue, QFile::encodeName(place).constData(), IN_DELETE_SELF) < 0)
                qFatal("no watch");
        }
    }
    ~UnmountWatch() { ::close(m_queue); }
    UnmountWatch(const UnmountWatch &) = delete;
    UnmountWatch &operator=(const UnmountWatch &) = delete;

    bool sawUnmount() const
    {
        inotify_event event{};
        return ::read(m_queue, &event, sizeof(event)) > 0;
    }

private:
    int m_queue;
};

} // namespace

// Partitioned drives owned by the test whose volumes are released and restored.
class tst_ReleasedVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void volumesComeBackAsTheyWere_data();
    void volumesComeBackAsTheyWere();
    void everyMountOfAVolumeComesBack();
    void foldersOfAVolumeComeBack();
    void aFolderComesBackWithoutItsVolume();
    void aVolumeInsideAnotherComesBack();
    void stackedMountsComeBackInTheirOrder();
    void aMountThatWasMovedComesBack();
    void mountsThatArePassedOnComeBackOnce();
    void subvolumesComeBack();
    void filesAreThereAgain();

    void aVolumeInUseIsInTheWay();
    void aVolumeUnderAnotherDriveIsInTheWay();
    void aVolumeCoveredByAnotherDriveIsInTheWay();
    void aVolumeHiddenByAnotherDriveIsInTheWay();
    void aPartitionHeldWithoutAMountIsInTheWay();
    void aVolumeOnAnotherDriveTooIsInTheWay();
    void anotherDriveIsNotReleased();

    void nobodyMountsMeanwhile();
    void theDriveIsWrittenMeanwhile();
    void keptIsNothingMounted();
    void destructionRestores();
    void whatCannotComeBackIsNamed();
    void aDriveWithoutVolumesIsReleased();
    void namesAreThoseOfVolumes();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PartitionedLoop> m_loop;
    std::unique_ptr<Platform> m_platform;
    DriveIdentity m_identity;

    VolumeRelease release() { return m_platform->devices().releaseVolumes(m_identity); }
    // Releases and restores. No volume is mounted in between.
    void releaseAndRestore();
    // The release fails on that volume and changes nothing.
    void isInTheWay(const QString &volume, quint32 code = SharingViolation);
    // In addition, no volume was unmounted even briefly.
    void isInTheWayAtOnce(const QString &volume, quint32 code = SharingViolation);
};

void tst_ReleasedVolumes::initTestCase()
{
    const QString reason = PartitionedLoop::unavailableReason();
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_ReleasedVolumes::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_loop = std::make_unique<PartitionedLoop>(m_folder->path());
    QVERIFY2(m_loop->isReady(), qPrintable(m_loop->drive().error()));
    m_platform = createPlatform({});
    m_identity = identityOf(m_platform->devices(), m_loop->device());
    QVERIFY(m_identity.number >= 0);
}

void tst_ReleasedVolumes::cleanup()
{
    m_platform.reset();
    m_loop.reset();
    m_folder.reset();
}

void tst_ReleasedVolumes::releaseAndRestore()
{
    const QStringList before = m_loop->mounts();
    QVERIFY(!before.isEmpty());
    VolumeRelease released = release();
    QVERIFY2(released.volumes, qPrintable(released.failure.diagnostic() + released.volume));
    QCOMPARE(m_loop->mounts(), QStringList());
    QCOMPARE(released.volumes->restore(), QStringList());
    QCOMPARE(m_loop->mounts(), before);
}

void tst_ReleasedVolumes::isInTheWay(const QString &volume, quint32 code)
{
    const QStringList before = m_loop->mounts();
    const VolumeRelease released = release();
    QVERIFY(!released.volumes);
    QCOMPARE(released.failure.code, code);
    QCOMPARE(released.volume, volume);
    QCOMPARE(released.notRestored, QStringList());
    QCOMPARE(m_loop->mounts(), before);
}

void tst_ReleasedVolumes::isInTheWayAtOnce(const QString &volume, quint32 code)
{
    const UnmountWatch watch({m_loop->folder(u"one"_s), m_loop->folder(u"two"_s)});
    isInTheWay(volume, code);
    QVERIFY(!watch.sawUnmount());
}

void tst_ReleasedVolumes::volumesComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("further"); // for mount --make-...
    QTest::newRow("as usual") << QString() << QString();
    QTest::newRow("flags") << u"nosuid,nodev,noexec,noatime,nodiratime"_s << QString();
    QTest::newRow("every access") << u"strictatime"_s << QString();
    QTest::newRow("read-only") << u"ro"_s << QString();
    QTest::newRow("of the file system") << u"sync,dirsync,lazytime"_s << QString();
    QTest::newRow("of the driver") << u"errors=remount-ro,commit=33,data=journal"_s << QString();
    QTest::newRow("shared") << QString() << u"--make-shared"_s;
    QTest::newRow("private") << QString() << u"--make-private"_s;
    QTest::newRow("unbindable") << QString() << u"--make-unbindable"_s;
    QTest::newRow("read-only place") << QString() << u"-oremount,bind,ro"_s;
    QTest::newRow("blank in its name") << QString() << u"--make-private"_s;
}

void tst_ReleasedVolumes::volumesComeBackAsTheyWere()
{
    QFETCH(const QString, options);
    QFETCH(const QString, further);
    const bool isOdd = QByteArray(QTest::currentDataTag()).startsWith("blank");
    const QString one = m_loop->folder(isOdd ? u"my one,\\x"_s : u"one"_s);
    QVERIFY(m_loop->mount(1, one, options));
    QVERIFY(further.isEmpty() || PartitionedLoop::mount({further, one}));
    QVERIFY(m_loop->mount(2, m_loop->folder(u"two"_s)));
    releaseAndRestore();
}

void tst_ReleasedVolumes::everyMountOfAVolumeComesBack()
{
    QVERIFY(m_loop->mount(1, m_loop->folder(u"one"_s)));
    QVERIFY(m_loop->mount(2, m_loop->folder(u"two"_s)));
    QVERIFY(m_loop->mount(1, m_loop->folder(u"again"_s), u"ro"_s) ||
            PartitionedLoop::mount({u"--bind"_s, m_loop->folder(u"one"_s), m_loop->folder(u"again"_s)}));
    QVERIFY(PartitionedLoop::mount({u"-oremount,bind,ro,noexec"_s, m_loop->folder(u"again"_s)}));
    releaseAndRestore();
}

void tst_ReleasedVolumes::foldersOfAVolumeComeBack()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one));
    const QString below = m_loop->folder(u"one/my folder"_s);
    const QString place = m_loop->folder(u"place"_s);
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, below, place}));
    QVERIFY(PartitionedLoop::mount({u"-oremount,bind,ro,nosuid"_s, place}));
    releaseAndRestore();
    QVERIFY(QDir(one).exists(u"my folder"_s));
}

// The file system has no other mount from which the folder could be bound.
void tst_ReleasedVolumes::aFolderComesBackWithoutItsVolume()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one));
    const QString place = m_loop->folder(u"place"_s);
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, m_loop->folder(u"one/deep/er"_s), place}));
    QCOMPARE(::umount2(QFile::encodeName(one).constData(), 0), 0);
    const auto hidden = [] {
        return QDir(QDir::tempPath()).entryList({u"quorvex-mount-*"_s}, QDir::Dirs | QDir::Hidden);
    };
    const QStringList before = hidden();
    releaseAndRestore();
    QCOMPARE(hidden(), before);
}

void tst_ReleasedVolumes::aVolumeInsideAnotherComesBack()
{
    QVERIFY(m_loop->mount(2, m_loop->folder(u"outer"_s)));
    QVERIFY(m_loop->mount(1, m_loop->folder(u"outer/inner"_s)));
    releaseAndRestore();
}

void tst_ReleasedVolumes::stackedMountsComeBackInTheirOrder()
{
    const QString place = m_loop->folder(u"place"_s);
    for (const int partition : {1, 2, 1})
        QVERIFY(m_loop->mount(partition, place));
    releaseAndRestore();
}

// The mount lies on a younger mount.
void tst_ReleasedVolumes::aMountThatWasMovedComesBack()
{
    const QString first = m_loop->folder(u"first"_s);
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, m_loop->folder(u"."_s), m_loop->folder(u"."_s)}));
    const auto unbound = qScopeGuard([this] {
        m_loop->unmountAll();
        QCOMPARE(::umount2(QFile::encodeName(m_folder->path()).constData(), MNT_DETACH), 0);
    });
    QVERIFY(PartitionedLoop::mount({u"--make-private"_s, m_folder->path()}));
    QVERIFY(m_loop->mount(1, first));
    QVERIFY(m_loop->mount(2, m_loop->folder(u"second"_s)));
    QVERIFY(PartitionedLoop::mount({u"--move"_s, first, m_loop->folder(u"second/moved"_s)}));
    QStringList before = m_loop->mounts();
    VolumeRelease released = release();
    QVERIFY2(released.volumes, qPrintable(released.failure.diagnostic() + released.volume));
    QCOMPARE(m_loop->mounts(), QStringList());
    QCOMPARE(released.volumes->restore(), QStringList());
    // The order may differ, as long as the mounts are possible in it.
    QStringList after = m_loop->mounts();
    before.sort();
    after.sort();
    QCOMPARE(after, before);
}

void tst_ReleasedVolumes::mountsThatArePassedOnComeBackOnce()
{
    const QString from = m_loop->folder(u"from"_s);
    const QString to = m_loop->folder(u"to"_s);
    QVERIFY(PartitionedLoop::mount({u"-ttmpfs"_s, u"none"_s, from}));
    QVERIFY(PartitionedLoop::mount({u"--make-shared"_s, from}));
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, from, to}));
    QVERIFY(m_loop->mount(1, m_loop->folder(u"from/one"_s)));
    QCOMPARE(m_loop->mounts().filter(m_loop->node(1)).size(), 2);
    const QStringList before = m_loop->mounts();
    VolumeRelease released = release();
    QVERIFY2(released.volumes, qPrintable(released.failure.diagnostic() + released.volume));
    QCOMPARE(m_loop->mounts().filter(m_loop->node(1)), QStringList());
    QCOMPARE(released.volumes->restore(), QStringList());
    QCOMPARE(m_loop->mounts(), before);
}

void tst_ReleasedVolumes::subvolumesComeBack()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    LoopMount::Options options;
    options.fileSystem = LoopMount::Btrfs;
    LoopMount volume(m_folder->path(), options, u"btrfs"_s);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString root = volume.mountPoint();
    QCOMPARE(QProcess::execute(u"btrfs"_s, {u"-q"_s, u"subvolume"_s, u"create"_s, root + u"/@home"_s}), 0);
    const QString home = m_loop->folder(u"home"_s);
    QVERIFY(PartitionedLoop::mount({u"-osubvol=@home,noatime"_s, volume.device(), home}));
    QVERIFY(QDir(home).mkpath(u"me/deep"_s));
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, home + u"/me/deep"_s, m_loop->folder(u"deep"_s)}));
    m_identity = identityOf(m_platform->devices(), volume.device());
    releaseAndRestore();
    QVERIFY(QDir(home).exists(u"me/deep"_s));
    QVERIFY(QDir(root).exists(u"@home/me"_s));
    m_loop->unmountAll(); // the folders mounted beside it keep the volume busy
}

void tst_ReleasedVolumes::filesAreThereAgain()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one));
    QFile file(one + u"/file"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("content");
    file.close();
    releaseAndRestore();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("content"));
}

void tst_ReleasedVolumes::aVolumeInUseIsInTheWay()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one, u"noexec,commit=33"_s));
    // The later mount is already released when the one in use is reached.
    QVERIFY(m_loop->mount(2, m_loop->folder(u"two"_s), u"ro,nosuid"_s));
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, one, m_loop->folder(u"again"_s)}));
    QFile open(one + u"/open"_s);
    QVERIFY(open.open(QIODevice::WriteOnly));
    isInTheWay(one);
    open.close();
    releaseAndRestore();
}

void tst_ReleasedVolumes::aVolumeUnderAnotherDriveIsInTheWay()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one));
    QVERIFY(PartitionedLoop::mount({u"-ttmpfs"_s, u"none"_s, m_loop->folder(u"one/other"_s)}));
    QVERIFY(m_loop->mount(2, m_loop->folder(u"two"_s)));
    isInTheWayAtOnce(one);
}

void tst_ReleasedVolumes::aVolumeCoveredByAnotherDriveIsInTheWay()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one));
    QVERIFY(PartitionedLoop::mount({u"-ttmpfs"_s, u"other"_s, one}));
    QVERIFY(m_loop->mount(2, m_loop->folder(u"two"_s)));
    isInTheWayAtOnce(one);
}

// The path leads to another mount, which must not be unmounted.
void tst_ReleasedVolumes::aVolumeHiddenByAnotherDriveIsInTheWay()
{
    const QString place = m_loop->folder(u"above/one"_s);
    QVERIFY(PartitionedLoop::mount({u"-ttmpfs"_s, u"below"_s, m_loop->folder(u"above"_s)}));
    QVERIFY(QDir().mkpath(place));
    QVERIFY(m_loop->mount(1, place));
    QVERIFY(PartitionedLoop::mount({u"-ttmpfs"_s, u"over"_s, m_loop->folder(u"above"_s)}));
    QVERIFY(QDir().mkpath(place));
    QVERIFY(PartitionedLoop::mount({u"-ttmpfs"_s, u"other"_s, place}));
    isInTheWay(place);
}

void tst_ReleasedVolumes::aPartitionHeldWithoutAMountIsInTheWay()
{
    QVERIFY(m_loop->mount(1, m_loop->folder(u"one"_s), u"noexec"_s));
    const int holder = ::open(QFile::encodeName(m_loop->node(2)).constData(), O_RDONLY | O_EXCL | O_CLOEXEC);
    QVERIFY(holder >= 0);
    isInTheWay(QString());
    ::close(holder);
    releaseAndRestore();
}

void tst_ReleasedVolumes::aVolumeOnAnotherDriveTooIsInTheWay()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    LoopMount::Options bare;
    bare.fileSystem = LoopMount::NoFileSystem;
    bare.sizeBytes = qint64(160) << 20;
    const LoopMount second(m_folder->path(), bare, u"second"_s);
    QVERIFY2(second.isReady(), qPrintable(second.error()));
    LoopMount::Options both;
    both.fileSystem = LoopMount::Btrfs;
    both.sizeBytes = bare.sizeBytes;
    both.makeArguments = {u"-f"_s, second.device()};
    const LoopMount first(m_folder->path(), both, u"first"_s);
    QVERIFY2(first.isReady(), qPrintable(first.error()));
    for (const QString &device : {first.device(), second.device()}) {
        m_identity = identityOf(m_platform->devices(), device);
        QVERIFY(m_identity.number >= 0);
        isInTheWayAtOnce(first.mountPoint(), NotReady);
    }
}

void tst_ReleasedVolumes::anotherDriveIsNotReleased()
{
    QVERIFY(m_loop->mount(1, m_loop->folder(u"one"_s)));
    const DriveIdentity chosen = m_identity;
    m_identity.sizeBytes -= 512;
    isInTheWayAtOnce(QString(), NotReady);
    m_identity = chosen;
    m_identity.number += 100;
    isInTheWayAtOnce(QString(), NotReady);
}

void tst_ReleasedVolumes::nobodyMountsMeanwhile()
{
    const QString one = m_loop->folder(u"one"_s);
    QVERIFY(m_loop->mount(1, one));
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    const QByteArray node = QFile::encodeName(m_loop->node(2));
    QCOMPARE(::mount(node.constData(), QFile::encodeName(one).constData(), "ext4", 0, nullptr), -1);
    QCOMPARE(errno, EBUSY);
    QCOMPARE(m_platform->devices().openDrive(m_identity, DriveAccess::Alone).code(),
             quint32(SharingViolation));
    QVERIFY(!released.volumes->holds(one));
}

void tst_ReleasedVolumes::theDriveIsWrittenMeanwhile()
{
    QVERIFY(m_loop->mount(1, m_loop->folder(u"one"_s)));
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    auto drive = m_platform->devices().openDrive(m_identity, DriveAccess::BesideOwnVolumes);
    QVERIFY(drive.ok());
    QCOMPARE(drive.value()->length().value(), PartitionedLoop::Size);
}

void tst_ReleasedVolumes::keptIsNothingMounted()
{
    QVERIFY(m_loop->mount(1, m_loop->folder(u"one"_s)));
    QVERIFY(m_loop->mount(2, m_loop->folder(u"two"_s)));
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    QVERIFY(m_loop->drive().writeImage(0, QByteArray(512, '\0')));
    QVERIFY(released.volumes->keep().ok());
    released.volumes.reset();
    QCOMPARE(m_loop->mounts(), QStringList());
    // Without a partition table there are no partitions to mount.
    QVERIFY(!QFileInfo::exists(u"/sys/class/block/"_s + QFileInfo(m_loop->node(1)).fileName()));
    QVERIFY(m_platform->devices().openDrive(m_identity, DriveAccess::Alone).ok());
}

void tst_ReleasedVolumes::destructionRestores()
{
    QVERIFY(m_loop->mount(1, m_loop->folder(u"one"_s), u"noexec"_s));
    const QStringList before = m_loop->mounts();
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    QCOMPARE(m_loop->mounts(), QStringList());
    released.volumes.reset();
    QCOMPARE(m_loop->mounts(), before);
}

void tst_ReleasedVolumes::whatCannotComeBackIsNamed()
{
    const QString one = m_loop->folder(u"one"_s);
    const QString two = m_loop->folder(u"two"_s);
    QVERIFY(m_loop->mount(1, one));
    QVERIFY(m_loop->mount(2, two));
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    QVERIFY(QDir().rmdir(one));
    QCOMPARE(released.volumes->restore(), QStringList{one});
    QCOMPARE(m_loop->mounts().size(), 1);
    QVERIFY(m_loop->mounts().constFirst().contains(two));
}

void tst_ReleasedVolumes::aDriveWithoutVolumesIsReleased()
{
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    QCOMPARE(released.volumes->names(), QStringList());
    QCOMPARE(m_platform->devices().openDrive(m_identity, DriveAccess::Alone).code(),
             quint32(SharingViolation));
    QVERIFY(released.volumes->keep().ok());
}

void tst_ReleasedVolumes::namesAreThoseOfVolumes()
{
    const QString one = m_loop->folder(u"one"_s);
    const QString two = m_loop->folder(u"two"_s);
    QVERIFY(m_loop->mount(1, one));
    QVERIFY(m_loop->mount(2, two));
    QVERIFY(PartitionedLoop::mount({u"--bind"_s, one, m_loop->folder(u"again"_s)}));
    const QStringList listed = m_platform->devices().volumeNames();
    VolumeRelease released = release();
    QVERIFY(released.volumes);
    QCOMPARE(released.volumes->names(), (QStringList{one, two}));
    for (const QString &name : released.volumes->names())
        QVERIFY(listed.contains(name) && !m_platform->devices().volumeNames().contains(name));
    QCOMPARE(released.volumes->restore(), QStringList());
}

QUORVEX_SUITE(tst_ReleasedVolumes, QCoreApplication)
#include "tst_releasedvolumes.moc"
