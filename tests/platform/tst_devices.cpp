#include "model/units.h"
#include "platform/alignedbuffer.h"
#include "platform/devices.h"
#include "platform/platform.h"
#include "platform/storagereplies.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <memory>

#ifdef Q_OS_LINUX
#include "support/loopmount.h"
#endif

using namespace platform;

namespace {

// A drive owned by the test behind the real interfaces, with its bytes in a file.
class Backing
{
public:
    explicit Backing(const QString &kind)
    {
        if (kind == u"image") {
            makeImage(MiB);
        } else {
#ifdef Q_OS_LINUX
            LoopMount::Options options;
            options.fileSystem = LoopMount::NoFileSystem;
            options.sizeBytes = kind == u"loop, odd size" ? MiB + 512 * 3 : MiB;
            options.sectorSize = kind == u"loop, 4096" ? 4096 : 512;
            m_loop = std::make_unique<LoopMount>(m_folder.path(), options);
            m_image = m_loop->image();
            m_platform = createPlatform({});
            m_number = numberOf(m_loop->device());
#endif
        }
    }

    // An image file whose length may be no multiple of a sector.
    void makeImage(qint64 size)
    {
        m_image = writeZeros(m_folder.filePath(QStringLiteral("disk.img")), size);
        m_platform = createPlatform({{m_image}, true});
        m_number = 0;
    }

    bool isReady() const
    {
        return m_number >= 0;
    }
    Devices &devices()
    {
        return m_platform->devices();
    }
    int number() const
    {
        return m_number;
    }
    QString image() const
    {
        return m_image;
    }

    DriveIdentity identity()
    {
        auto query = devices().queryDrive(m_number);
        if (!query)
            return {};
        return identityOf(m_number, *query.value());
    }

    QByteArray bytes(qint64 offset, qint64 size) const
    {
        QFile file(m_image);
        return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && file.seek(offset) ? file.read(size)
                                                                                           : QByteArray();
    }

private:
#ifdef Q_OS_LINUX
    int numberOf(const QString &node)
    {
        for (int number = 0; number < 64; ++number) {
            if (devices().drivePath(number) == node)
                return number;
        }
        return -1;
    }

    std::unique_ptr<LoopMount> m_loop;
#endif

    QTemporaryDir m_folder;
    QString m_image;
    std::unique_ptr<Platform> m_platform;
    int m_number = -1;
};

AlignedBuffer filled(qint64 size, char value)
{
    AlignedBuffer buffer(size);
    std::memset(buffer.data(), value, static_cast<size_t>(size));
    return buffer;
}

} // namespace

// The contract of devices.h, for every backend that has drives.
class tst_Devices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void geometryAndLength();
    void describesItself();
    void pathOpensTheDrive();
    void writeReachesTheMediumAtItsPlace();
    void readSeesTheMedium();
    void positionAdvances();
    void writeAtTheEndIsShort();
    void writeBeyondTheEndIsRefused();
    void readAtTheEndIsShort();
    void unalignedTransfersAreRefused();
    void otherSerialNumberIsRefused();
    void otherProductIsRefused();
    void otherWorldWideNameIsRefused();
    void anotherImageInItsPlaceIsRefused();
    void otherSizeIsRefused();
    void unknownNumberIsRefused();
    void flushSucceeds();
    void readOnlyReadsAndNeverWrites();
    void readOnlyLeavesTheDriveToOthers();
};

// Why such a backing is missing here; empty when it exists.
static QString unavailable(const QString &kind)
{
#ifdef Q_OS_LINUX
    return kind == u"image" ? QString() : LoopMount::unavailableReason();
#else
    Q_UNUSED(kind);
    return {};
#endif
}

#define BACKING(name)                                                                                        \
    QFETCH_GLOBAL(QString, kind);                                                                            \
    if (const QString reason = unavailable(kind); !reason.isEmpty())                                         \
        QSKIP(qPrintable(reason));                                                                           \
    Backing name(kind);                                                                                      \
    QVERIFY(name.isReady())

void tst_Devices::initTestCase_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("sector");
    QTest::addColumn<qint64>("size");
    QTest::newRow("image") << QStringLiteral("image") << 512 << MiB;
#ifdef Q_OS_LINUX
    QTest::newRow("loop, 512") << QStringLiteral("loop, 512") << 512 << MiB;
    QTest::newRow("loop, odd size") << QStringLiteral("loop, odd size") << 512 << MiB + 512 * 3;
    QTest::newRow("loop, 4096") << QStringLiteral("loop, 4096") << 4096 << MiB;
#endif
}

void tst_Devices::geometryAndLength()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    QFETCH_GLOBAL(qint64, size);
    auto query = drive.devices().queryDrive(drive.number());
    QVERIFY(query.ok());
    QCOMPARE(query.value()->geometry().value().sizeBytes, size);
    QCOMPARE(query.value()->geometry().value().bytesPerSector, sector);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    QCOMPARE(device.value()->geometry().value().sizeBytes, size);
    QCOMPARE(device.value()->bytesPerSector().value(), sector);
    QCOMPARE(device.value()->length().value(), size);
}

void tst_Devices::describesItself()
{
    BACKING(drive);
    auto query = drive.devices().queryDrive(drive.number());
    QVERIFY(query.ok());
    const DeviceDescriptor descriptor = decodeDeviceDescriptor(query.value()->descriptor().value());
    QVERIFY2(descriptor.productId.contains(QFileInfo(drive.image()).fileName()),
             qPrintable(descriptor.productId));
    QCOMPARE(descriptor.busType, quint32(BusFileBackedVirtual));
    QVERIFY(!descriptor.removableMedia);
}

void tst_Devices::pathOpensTheDrive()
{
    BACKING(drive);
    QVERIFY(QFile::exists(drive.devices().drivePath(drive.number())));
}

void tst_Devices::writeReachesTheMediumAtItsPlace()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    const AlignedBuffer data = filled(3 * sector, 'W');
    QVERIFY(device.value()->seek(5 * sector).ok());
    QCOMPARE(device.value()->write(data.data(), data.size()).value(), data.size());
    QVERIFY(device.value()->flush().ok());
    QCOMPARE(drive.bytes(5 * sector, 3 * sector), QByteArray(3 * sector, 'W'));
    QCOMPARE(drive.bytes(4 * sector, sector), QByteArray(sector, '\0'));
    QCOMPARE(drive.bytes(8 * sector, sector), QByteArray(sector, '\0'));
}

void tst_Devices::readSeesTheMedium()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows lets nobody else write to an image that is open as a drive");
#endif
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    AlignedBuffer data = filled(sector, 'x');
    QVERIFY(device.value()->seek(0).ok());
    QCOMPARE(device.value()->read(data.data(), sector).value(), sector);
    QCOMPARE(static_cast<char>(data.data()[0]), '\0');
    // The file is changed below the device, so a cache above it would still answer with zeros.
    QFile image(drive.image());
    QVERIFY(image.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QCOMPARE(image.write(QByteArray(sector, 'N')), sector);
    image.close();
    QVERIFY(device.value()->seek(0).ok());
    QCOMPARE(device.value()->read(data.data(), sector).value(), sector);
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(data.data()), sector), QByteArray(sector, 'N'));
}

void tst_Devices::positionAdvances()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    QVERIFY(device.value()->seek(0).ok());
    QVERIFY(device.value()->write(filled(sector, 'A').data(), sector).ok());
    QVERIFY(device.value()->write(filled(sector, 'B').data(), sector).ok());
    QCOMPARE(drive.bytes(0, 2 * sector), QByteArray(sector, 'A') + QByteArray(sector, 'B'));
}

void tst_Devices::writeAtTheEndIsShort()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    QFETCH_GLOBAL(qint64, size);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    const AlignedBuffer data = filled(4 * sector, 'E');
    QVERIFY(device.value()->seek(size - sector).ok());
    QCOMPARE(device.value()->write(data.data(), data.size()).value(), sector);
    QCOMPARE(drive.bytes(size - sector, 4 * sector), QByteArray(sector, 'E'));
}

void tst_Devices::writeBeyondTheEndIsRefused()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    QFETCH_GLOBAL(qint64, size);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    QVERIFY(device.value()->seek(size).ok());
    QCOMPARE(device.value()->write(filled(sector, 'E').data(), sector).code(), quint32(SectorNotFound));
    QCOMPARE(QFileInfo(drive.image()).size(), size);
}

void tst_Devices::readAtTheEndIsShort()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    QFETCH_GLOBAL(qint64, size);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    AlignedBuffer data(4 * sector);
    QVERIFY(device.value()->seek(size - sector).ok());
    QCOMPARE(device.value()->read(data.data(), data.size()).value(), sector);
    QCOMPARE(device.value()->read(data.data(), data.size()).value(), 0);
}

void tst_Devices::unalignedTransfersAreRefused()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    AlignedBuffer data(2 * sector);
    QCOMPARE(device.value()->seek(1).code, quint32(InvalidParameter));
    QCOMPARE(device.value()->seek(-sector).code, quint32(InvalidParameter));
    QCOMPARE(device.value()->write(data.data(), sector - 1).code(), quint32(InvalidParameter));
    QCOMPARE(device.value()->read(data.data(), sector + 1).code(), quint32(InvalidParameter));
    // The answer of a device at its end must not be mistaken for a fault of this program.
    const QByteArray before = drive.bytes(0, MiB);
    QCOMPARE(device.value()->write(data.data() + 8, sector).code(), quint32(MisalignedBuffer));
    QCOMPARE(device.value()->read(data.data() + 8, sector).code(), quint32(MisalignedBuffer));
    QCOMPARE(drive.bytes(0, MiB), before);
}

void tst_Devices::otherSerialNumberIsRefused()
{
    BACKING(drive);
    DriveIdentity identity = drive.identity();
    identity.serialNumber = QStringLiteral("SOMEBODY ELSE");
    QCOMPARE(drive.devices().openDrive(identity, DriveAccess::Alone).code(), quint32(NotReady));
}

void tst_Devices::otherProductIsRefused()
{
    BACKING(drive);
    DriveIdentity identity = drive.identity();
    identity.product += u'2';
    QCOMPARE(drive.devices().openDrive(identity, DriveAccess::Alone).code(), quint32(NotReady));
}

void tst_Devices::otherWorldWideNameIsRefused()
{
    BACKING(drive);
    DriveIdentity identity = drive.identity();
    identity.worldWideName = QStringLiteral("naa.5000c500a1b2c3d4");
    QCOMPARE(drive.devices().openDrive(identity, DriveAccess::Alone).code(), quint32(NotReady));
}

void tst_Devices::anotherImageInItsPlaceIsRefused()
{
    QTemporaryDir folder;
    const QString path = writeZeros(folder.filePath(QStringLiteral("disk.img")), MiB);
    const QString other = writeZeros(folder.filePath(QStringLiteral("other.img")), MiB);
    const auto machine = createPlatform({{path}, true});
    const DriveIdentity chosen = identityOf(0, *machine->devices().queryDrive(0).value());
    QVERIFY(machine->devices().openDrive(chosen, DriveAccess::Alone).ok());
    QVERIFY(QFile::rename(path, path + u'x') && QFile::rename(other, path));
    QCOMPARE(machine->devices().openDrive(chosen, DriveAccess::Alone).code(), quint32(NotReady));
}

void tst_Devices::otherSizeIsRefused()
{
    BACKING(drive);
    DriveIdentity identity = drive.identity();
    identity.sizeBytes += 512;
    QCOMPARE(drive.devices().openDrive(identity, DriveAccess::Alone).code(), quint32(NotReady));
}

void tst_Devices::unknownNumberIsRefused()
{
    BACKING(drive);
    QCOMPARE(drive.devices().queryDrive(4711).code(), quint32(FileNotFound));
    QVERIFY(!drive.devices().openDrive({.number = 4711}, DriveAccess::Alone).ok());
}

void tst_Devices::flushSucceeds()
{
    BACKING(drive);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::Alone);
    QVERIFY(device.ok());
    QVERIFY(device.value()->flush().ok());
}

void tst_Devices::readOnlyReadsAndNeverWrites()
{
    BACKING(drive);
    QFETCH_GLOBAL(int, sector);
    const QByteArray before = drive.bytes(0, MiB);
    auto device = drive.devices().openDrive(drive.identity(), DriveAccess::ReadOnly);
    QVERIFY(device.ok());
    AlignedBuffer buffer = filled(sector, 'x');
    QCOMPARE(device.value()->read(buffer.data(), sector).value(), qint64(sector));
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(buffer.data()), sector), before.first(sector));
    QVERIFY(device.value()->seek(0).ok());
    AlignedBuffer other = filled(sector, 'x');
    QVERIFY(!device.value()->write(other.data(), sector).ok());
    QCOMPARE(drive.bytes(0, MiB), before);
}

void tst_Devices::readOnlyLeavesTheDriveToOthers()
{
    BACKING(drive);
    auto reader = drive.devices().openDrive(drive.identity(), DriveAccess::ReadOnly);
    QVERIFY(reader.ok());
    auto other = drive.identity();
    other.serialNumber += u'x';
    QCOMPARE(drive.devices().openDrive(other, DriveAccess::ReadOnly).code(), NotReady);
    QVERIFY(drive.devices().openDrive(drive.identity(), DriveAccess::Alone).ok());
}

QUORVEX_SUITE(tst_Devices, QCoreApplication)
#include "tst_devices.moc"
