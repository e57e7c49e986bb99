#include "platform/alignedbuffer.h"
#include "platform/devices.h"
#include "platform/linux/linuxsession.h"
#include "platform/platform.h"
#include "platform/storagereplies.h"
#include "support/fakesystemtree.h"
#include "support/loopmount.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

using namespace platform;

namespace {

int numberOf(Devices &devices, const QString &node)
{
    for (int number = 0; number < 64; ++number) {
        if (devices.drivePath(number) == node)
            return number;
    }
    return -1;
}

DriveIdentity identityOf(Devices &devices, int number)
{
    auto query = devices.queryDrive(number);
    if (!query)
        return {};
    return platform::identityOf(number, *query.value());
}

} // namespace

// Volumes of the Linux backend on loop devices with real file systems.
class tst_LinuxVolumes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void mountedVolumeIsListedWithItsRoom();
    void extentsNameTheDrive();
    void lockUnmountsEverywhere();
    void busyVolumeIsNotLocked();
    void unlockedVolumeTakesNoWrites();
    void lockedVolumeTakesWrites();
    void readOnlyMountIsUnmountedAndWritten();
    void lockIsExclusive();
    void volumeOfAnotherDriveIsRefused();
    void volumeOnTwoDrivesIsRefusedForEither();
    void changedDriveIsRefused();
    void driveInUseIsNotOpenedAlone();
    void driveOpensBesideOwnVolumes();
    void newAttachmentIsAnotherDrive();
    void theMediumOfALoopDeviceIsFoundWithoutItsMount();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LoopMount> m_volume;
    std::unique_ptr<Platform> m_platform;
    int m_number = -1;
    DriveIdentity m_identity;

    Devices &devices() { return m_platform->devices(); }
};

void tst_LinuxVolumes::initTestCase()
{
    const QString reason = LoopMount::unavailableReason(LoopMount::Ext4);
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_LinuxVolumes::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    LoopMount::Options options;
    options.fileSystem = LoopMount::Ext4;
    options.makeArguments = {QStringLiteral("-L"), QStringLiteral("my label")};
    m_volume = std::make_unique<LoopMount>(m_folder->path(), options);
    QVERIFY2(m_volume->isReady(), qPrintable(m_volume->error()));
    m_platform = createPlatform({});
    m_number = numberOf(devices(), m_volume->device());
    QVERIFY(m_number >= 0);
    m_identity = identityOf(devices(), m_number);
}

void tst_LinuxVolumes::cleanup()
{
    m_platform.reset();
    m_volume.reset();
    m_folder.reset();
}

void tst_LinuxVolumes::mountedVolumeIsListedWithItsRoom()
{
    const QList<MountedVolume> volumes = devices().mountedVolumes();
    const auto mine = std::find_if(volumes.begin(), volumes.end(), [this](const MountedVolume &volume) {
        return volume.name == m_volume->mountPoint();
    });
    QVERIFY(mine != volumes.end());
    QVERIFY(mine->isReady);
    QVERIFY(mine->isLocal);
    QCOMPARE(mine->rootPath, m_volume->mountPoint());
    QCOMPARE(mine->fileSystem, QByteArray("ext4"));
    QCOMPARE(mine->label, QStringLiteral("my label"));
    QVERIFY(mine->totalBytes > 0 && mine->totalBytes < m_identity.sizeBytes);
    QVERIFY(mine->freeBytes > 0 && mine->freeBytes <= mine->totalBytes);
}

void tst_LinuxVolumes::extentsNameTheDrive()
{
    auto query = devices().queryVolume(m_volume->mountPoint());
    QVERIFY(query.ok());
    QCOMPARE(query.value()->extents(OneExtent).value(), QList<Extent>({{m_number, 0, m_identity.sizeBytes}}));
}

void tst_LinuxVolumes::lockUnmountsEverywhere()
{
    const QString second = m_folder->filePath(QStringLiteral("second"));
    QVERIFY(QDir().mkpath(second));
    QCOMPARE(QProcess::execute(QStringLiteral("mount"), {m_volume->device(), second}), 0);
    auto volume = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(volume.ok());
    QVERIFY(volume.value()->lock().ok());
    QVERIFY(volume.value()->dismount().ok());
    QVERIFY(!m_volume->isMounted());
    QVERIFY(!devices().volumeNames().contains(second));
}

void tst_LinuxVolumes::busyVolumeIsNotLocked()
{
    QFile open(m_volume->mountPoint() + QStringLiteral("/open"));
    QVERIFY(open.open(QIODevice::WriteOnly));
    auto volume = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(volume.ok());
    QCOMPARE(volume.value()->lock().code, quint32(SharingViolation));
    QCOMPARE(volume.value()->dismount().code, quint32(SharingViolation));
    QVERIFY(m_volume->isMounted());
    open.close();
    QVERIFY(volume.value()->lock().ok());
}

void tst_LinuxVolumes::unlockedVolumeTakesNoWrites()
{
    const QByteArray before = m_volume->readImage(0, 4096);
    auto volume = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(volume.ok());
    AlignedBuffer data(4096);
    QVERIFY(volume.value()->seek(0).ok());
    QCOMPARE(volume.value()->write(data.data(), data.size()).code(), quint32(SharingViolation));
    QCOMPARE(m_volume->readImage(0, 4096), before);
}

void tst_LinuxVolumes::lockedVolumeTakesWrites()
{
    auto volume = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(volume.ok());
    QVERIFY(volume.value()->lock().ok());
    AlignedBuffer data(4096);
    QVERIFY(volume.value()->seek(0).ok());
    QCOMPARE(volume.value()->write(data.data(), data.size()).value(), data.size());
    QCOMPARE(m_volume->readImage(0, 4096), QByteArray(4096, '\0'));
    QVERIFY(volume.value()->unlock().ok());
    QCOMPARE(volume.value()->write(data.data(), data.size()).code(), quint32(SharingViolation));
}

void tst_LinuxVolumes::readOnlyMountIsUnmountedAndWritten()
{
    QVERIFY(m_volume->remount(QStringLiteral("ro")));
    auto query = devices().queryVolume(m_volume->mountPoint());
    QVERIFY(query.ok());
    QVERIFY(!query.value()->use().value().isReadOnly);
    auto volume = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(volume.ok());
    QVERIFY(volume.value()->lock().ok());
    AlignedBuffer data(4096);
    QCOMPARE(volume.value()->write(data.data(), data.size()).value(), data.size());
    QCOMPARE(m_volume->readImage(0, 4096), QByteArray(4096, '\0'));
}

void tst_LinuxVolumes::lockIsExclusive()
{
    auto first = devices().openVolume(m_volume->mountPoint(), m_identity);
    auto second = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(first.ok());
    QVERIFY(second.ok());
    QVERIFY(first.value()->lock().ok());
    QCOMPARE(second.value()->lock().code, quint32(SharingViolation));
    QVERIFY(first.value()->unlock().ok());
    QVERIFY(second.value()->lock().ok());
}

void tst_LinuxVolumes::volumeOfAnotherDriveIsRefused()
{
    DriveIdentity other = m_identity;
    other.number = m_number + 100;
    QCOMPARE(devices().openVolume(m_volume->mountPoint(), other).code(), quint32(NotReady));
    QVERIFY(m_volume->isMounted());
}

void tst_LinuxVolumes::volumeOnTwoDrivesIsRefusedForEither()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Btrfs); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    LoopMount::Options bare;
    bare.fileSystem = LoopMount::NoFileSystem;
    bare.sizeBytes = qint64(160) << 20;
    const LoopMount second(m_folder->path(), bare, QStringLiteral("second"));
    QVERIFY2(second.isReady(), qPrintable(second.error()));
    LoopMount::Options both;
    both.fileSystem = LoopMount::Btrfs;
    both.sizeBytes = bare.sizeBytes;
    both.makeArguments = {QStringLiteral("-f"), second.device()};
    const LoopMount first(m_folder->path(), both, QStringLiteral("first"));
    QVERIFY2(first.isReady(), qPrintable(first.error()));

    auto query = devices().queryVolume(first.mountPoint());
    QVERIFY(query.ok());
    QCOMPARE(query.value()->extents(ManyExtents).value().size(), 2);
    for (const QString &device : {first.device(), second.device()}) {
        const DriveIdentity identity = identityOf(devices(), numberOf(devices(), device));
        QVERIFY(identity.number >= 0);
        QCOMPARE(devices().openVolume(first.mountPoint(), identity).code(), quint32(NotReady));
    }
    QVERIFY(first.isMounted());
}

void tst_LinuxVolumes::changedDriveIsRefused()
{
    DriveIdentity other = m_identity;
    other.sizeBytes -= 512;
    QCOMPARE(devices().openVolume(m_volume->mountPoint(), other).code(), quint32(NotReady));
    QVERIFY(m_volume->isMounted());
}

void tst_LinuxVolumes::driveInUseIsNotOpenedAlone()
{
    QCOMPARE(devices().openDrive(m_identity, DriveAccess::Alone).code(), quint32(SharingViolation));
}

void tst_LinuxVolumes::driveOpensBesideOwnVolumes()
{
    auto volume = devices().openVolume(m_volume->mountPoint(), m_identity);
    QVERIFY(volume.ok());
    QVERIFY(volume.value()->lock().ok());
    auto drive = devices().openDrive(m_identity, DriveAccess::BesideOwnVolumes);
    QVERIFY(drive.ok());
    QCOMPARE(drive.value()->length().value(), m_identity.sizeBytes);
}

void tst_LinuxVolumes::newAttachmentIsAnotherDrive()
{
    QVERIFY(m_volume->unmount());
    // Another process that lists the volumes of the machine briefly opens the device.
    const int held = ::open(QFile::encodeName(m_volume->device()).constData(), O_RDONLY | O_CLOEXEC);
    QVERIFY(held >= 0);
    const std::jthread listing([held] {
        QTest::qSleep(400);
        ::close(held);
    });
    QVERIFY(m_volume->close());
    LoopMount::Options options;
    options.fileSystem = LoopMount::NoFileSystem;
    options.sizeBytes = m_identity.sizeBytes;
    LoopMount other(m_folder->path(), options, QStringLiteral("other"));
    QVERIFY2(other.isReady(), qPrintable(other.error()));
    // Node and size equal those of the chosen drive, and no serial number distinguishes them.
    QVERIFY(!devices().openDrive(m_identity, DriveAccess::Alone).ok());
    QVERIFY(numberOf(devices(), other.device()) != m_number);
    QCOMPARE(other.countInImage(QByteArray(1, 'x')), 0);
}

void tst_LinuxVolumes::theMediumOfALoopDeviceIsFoundWithoutItsMount()
{
    LoopMount::Options inner;
    inner.fileSystem = LoopMount::NoFileSystem;
    inner.sizeBytes = 1024 * 1024;
    LoopMount image(m_volume->mountPoint(), inner, QStringLiteral("inner"));
    QVERIFY2(image.isReady(), qPrintable(image.error()));
    // The mount table of a system whose media were hidden at boot.
    FakeSystemTree fake;
    fake.write(QStringLiteral("proc/self/mountinfo"), "1 0 0:20 / / rw - tmpfs tmpfs rw\n");
    platform::SystemTree tree;
    tree.proc = fake.tree().proc;
    const QStringList volumes = platform::LinuxSession(tree).systemVolumes();
    QVERIFY(volumes.contains(m_volume->device()));
    QVERIFY(!volumes.contains(image.device()));
}

QUORVEX_SUITE(tst_LinuxVolumes, QCoreApplication)
#include "tst_linuxvolumes.moc"
