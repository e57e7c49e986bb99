#include "platform/image/imagedevices.h"
#include "platform/platform.h"
#include "platform/storagereplies.h"
#include "support/memorydevices.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace platform;

namespace {

const QString volumeName = u"/media/a"_s;

// A machine with the drives 0 and 2, one of them with a volume, and an image file.
class Machine
{
public:
    explicit Machine(bool onlyImages)
    {
        m_base.addDrive(MemoryDrive(0, 1 << 20));
        m_base.addDrive(MemoryDrive(2, 1 << 20));
        m_base.addVolume(volumeName, 2, 0, 1 << 20);
        devices = std::make_unique<ImageDevices>(m_base, m_platform->files(),
                                                 ImageDriveOptions{{image}, onlyImages});
        // The medium behind the machine's own drive.
        real = identityOf(2, *m_base.queryDrive(2).value());
    }

    const MemoryDevices &base() const { return m_base; }

private:
    QTemporaryDir m_folder;
    MemoryDevices m_base;
    std::unique_ptr<Platform> m_platform = createPlatform({{}, true});

public:
    const QString image = writeFile(m_folder.filePath(u"drive.img"_s), QByteArray(4096, 'x'));
    std::unique_ptr<ImageDevices> devices;
    DriveIdentity real;
};

} // namespace

// Image files beside the machine's own drives, and in their place.
class tst_ImageDevices : public QObject
{
    Q_OBJECT

private slots:
    void imagesAloneHideTheMachine();
    void imagesFollowTheDrivesOfTheMachine();
    void anImageHasNoVolumes();
    void anImageThatIsGoneDoesNotAnswer();
    void aFolderInPlaceOfTheImageIsNoDrive();
};

void tst_ImageDevices::imagesAloneHideTheMachine()
{
    Machine machine(true);
    ImageDevices &devices = *machine.devices;
    QCOMPARE(QFileInfo(devices.drivePath(0)).fileName(), u"drive.img"_s);
    for (const int number : {1, 2}) {
        QCOMPARE(devices.drivePath(number), QString());
        QVERIFY(!devices.queryDrive(number));
    }
    QVERIFY(!devices.queryVolume(volumeName));
    QVERIFY(!devices.openDrive(machine.real, DriveAccess::Alone));
    QVERIFY(!devices.openDrive(machine.real, DriveAccess::ReadOnly));
    QVERIFY(!devices.openVolume(volumeName, machine.real));
    const VolumeRelease release = devices.releaseVolumes(machine.real);
    QVERIFY(!release.volumes);
    QVERIFY(!release.failure);
    QCOMPARE(devices.volumeNames(), QStringList());
    QCOMPARE(devices.machineVolumes().valueOr({u"x"_s}), QStringList());
    QVERIFY(devices.mountedVolumes().isEmpty());
    QCOMPARE(machine.base().openings(), 0);
    QCOMPARE(machine.base().releasedDrives(), 0);
}

void tst_ImageDevices::imagesFollowTheDrivesOfTheMachine()
{
    Machine machine(false);
    ImageDevices &devices = *machine.devices;
    QCOMPARE(devices.drivePath(2), u"memory drive 2"_s);
    QCOMPARE(QFileInfo(devices.drivePath(3)).fileName(), u"drive.img"_s);
    QVERIFY(devices.queryDrive(0));
    QVERIFY(!devices.queryDrive(1));
    QVERIFY(devices.queryVolume(volumeName));
    QVERIFY(devices.openDrive(machine.real, DriveAccess::ReadOnly));
    QVERIFY(devices.openVolume(volumeName, machine.real));
    QCOMPARE(devices.volumeNames(), QStringList{volumeName});
    QCOMPARE(devices.mountedVolumes().size(), 1);
    QCOMPARE(devices.machineVolumes().code(), NotSupported);
    const VolumeRelease release = devices.releaseVolumes(machine.real);
    QVERIFY(release.volumes);
    QCOMPARE(machine.base().releasedDrives(), 1);
}

void tst_ImageDevices::anImageHasNoVolumes()
{
    Machine machine(false);
    ImageDevices &devices = *machine.devices;
    const auto query = devices.queryDrive(3);
    QVERIFY(query);
    QCOMPARE(query.value()->extents(8).code(), NotSupported);
    const DriveIdentity image = identityOf(3, *query.value());
    QVERIFY(!devices.openVolume(volumeName, image));
    const VolumeRelease release = devices.releaseVolumes(image);
    QVERIFY(release.volumes);
    QCOMPARE(release.volumes->names(), QStringList());
    QVERIFY(!release.volumes->holds(volumeName));
    QVERIFY(release.volumes->keep());
    QCOMPARE(release.volumes->restore(), QStringList());
    QCOMPARE(machine.base().releasedDrives(), 0);
}

void tst_ImageDevices::anImageThatIsGoneDoesNotAnswer()
{
    Machine machine(true);
    ImageDevices &devices = *machine.devices;
    const DriveIdentity image = identityOf(0, *devices.queryDrive(0).value());
    QVERIFY(QFile::remove(machine.image));
    QCOMPARE(devices.queryDrive(0).code(), FileNotFound);
    QCOMPARE(devices.openDrive(image, DriveAccess::Alone).code(), FileNotFound);
    QVERIFY(!QFile::exists(machine.image));
}

void tst_ImageDevices::aFolderInPlaceOfTheImageIsNoDrive()
{
    Machine machine(true);
    const DriveIdentity image = identityOf(0, *machine.devices->queryDrive(0).value());
    QVERIFY(QFile::remove(machine.image));
    QVERIFY(QDir().mkpath(machine.image));
    QCOMPARE(machine.devices->queryDrive(0).code(), CannotAccessFile);
    QVERIFY(!machine.devices->openDrive(image, DriveAccess::Alone));
}

QUORVEX_SUITE(tst_ImageDevices, QCoreApplication)
#include "tst_imagedevices.moc"
