#include "platform/fileflags.h"
#include "platform/places.h"
#include "support/bytes.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "model/units.h"
#include "platform/alignedbuffer.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/linux/linuxfiledescriptor.h"
#include "platform/linux/linuxfilehandle.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <limits>
#include <vector>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Page = 4096;

Files &files()
{
    return backend().files();
}

struct Stretch
{
    quint64 logical = 0;
    quint64 physical = 0; // position on the device
    quint64 length = 0;

    bool operator==(const Stretch &) const = default;
};

// The location of a file on its device; empty when the file system does not report it.
QList<Stretch> stretchesOf(const QString &path)
{
    const FileDescriptor file(::open(encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    alignas(fiemap) std::array<char, sizeof(fiemap) + 32 * sizeof(fiemap_extent)> memory = {};
    auto *const map = reinterpret_cast<fiemap *>(memory.data());
    map->fm_length = FIEMAP_MAX_OFFSET;
    map->fm_flags = FIEMAP_FLAG_SYNC;
    map->fm_extent_count = 32;
    if (!file.isValid() || ::ioctl(file.get(), FS_IOC_FIEMAP, map) != 0)
        return {};
    QList<Stretch> stretches;
    for (quint32 i = 0; i < map->fm_mapped_extents; ++i) {
        const fiemap_extent &extent = map->fm_extents[i];
        stretches.append({extent.fe_logical, extent.fe_physical, extent.fe_length});
    }
    return stretches;
}

// The pages of a file that are in memory.
int cachedPages(const QString &path)
{
    const qint64 size = QFileInfo(path).size();
    const FileDescriptor file(::open(encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    void *const mapped =
        ::mmap(nullptr, static_cast<std::size_t>(size), PROT_READ, MAP_SHARED, file.get(), 0);
    if (mapped == MAP_FAILED)
        return -1;
    std::vector<unsigned char> resident(static_cast<std::size_t>((size + Page - 1) / Page));
    const int answer = ::mincore(mapped, static_cast<std::size_t>(size), resident.data());
    ::munmap(mapped, static_cast<std::size_t>(size));
    if (answer != 0)
        return -1;
    return static_cast<int>(
        std::count_if(resident.begin(), resident.end(), [](unsigned char r) { return r & 1; }));
}

OpenedFile opened(const QString &path, int flags)
{
    OpenedFile file;
    file.descriptor = FileDescriptor(::open(encodeName(path).constData(), flags | O_CLOEXEC));
    return file;
}

} // namespace

// Writes that reach the medium and reads that come from it, on file systems that write in place.
class tst_FilesMedium : public ContractSuite
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void overwriteKeepsTheBlocks();
    void overwrittenBytesLeaveTheImage();
    void writtenBytesAreOnTheMediumAtOnce();
    void everyWriteHasTheDeviceFlushed_data();
    void everyWriteHasTheDeviceFlushed();
    void flushHasTheDeviceFlushed();
    void smallWritesFlushTheDeviceOnce();
    void readDoesNotComeFromTheCache_data();
    void readDoesNotComeFromTheCache();
    void readWithoutDirectTransfersDoesNotComeFromTheCache();
    void readWithoutDirectTransfersSeesWhatWasJustWritten();
    void verifyLeavesNothingInTheCache();
    void refusedFirstTransferGoesThroughTheCache();
    void unreadableBlocksAnswerIoDevice();
    void readOnlyVolume();
    void immutableFile();
    void fullVolumeEndsAWriteWithTheCountThatFitted();
};

void tst_FilesMedium::initTestCase_data()
{
    // btrfs writes elsewhere at every change, and a memory file system has no medium.
    Places::addRows({u"ext4"_s, u"ext4 on 4096-byte sectors"_s, u"xfs"_s});
}

void tst_FilesMedium::overwriteKeepsTheBlocks()
{
    const QString name = path(u"file"_s);
    const qint64 length = 3 * MiB + 700;
    writeThrough(name, QByteArray(length, 'a'));
    const QList<Stretch> before = stretchesOf(name);
    QVERIFY(!before.isEmpty());
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write(QByteArray(length, 'z').constData(), length).valueOr(-1), length);
    QVERIFY(file.value()->flush().ok());
    QCOMPARE(stretchesOf(name), before);
}

void tst_FilesMedium::overwrittenBytesLeaveTheImage()
{
    const QByteArray marker = "the bytes that must not stay " + QByteArray(5, '\x7F');
    const QString name = path(u"file"_s);
    writeThrough(name, marker.repeated(9000) + "odd");
    QCOMPARE(m_places.loop()->countInImage(marker), 9000);
    const qint64 length = QFileInfo(name).size();
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write(QByteArray(length, '\0').constData(), length).valueOr(-1), length);
    QVERIFY(file.value()->flush().ok());
    QCOMPARE(m_places.loop()->countInImage(marker), 0);
}

// Checked without a flush, as after a power cut following the call.
void tst_FilesMedium::writtenBytesAreOnTheMediumAtOnce()
{
    const QString name = path(u"file"_s);
    writeThrough(name, QByteArray(10000, 'a'));
    const QList<Stretch> stretches = stretchesOf(name);
    QCOMPARE(stretches.size(), 1);
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write(QByteArray(10000, 'z').constData(), 10000).valueOr(-1), 10000);
    QCOMPARE(m_places.loop()->readImage(qint64(stretches[0].physical), 10000), QByteArray(10000, 'z'));
}

void tst_FilesMedium::everyWriteHasTheDeviceFlushed_data()
{
    QTest::addColumn<qint64>("size");
    for (const qint64 size : {1, 700, 4096, 16384, 100000, 1048576, 1048577})
        QTest::addRow("%lld", static_cast<long long>(size)) << size;
}

void tst_FilesMedium::everyWriteHasTheDeviceFlushed()
{
    QFETCH(qint64, size);
    const QString name = path(u"file"_s);
    writeThrough(name, QByteArray(size, 'a'));
    const QList<Stretch> stretches = stretchesOf(name);
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    for (const char byte : {'y', 'z'}) {
        const qint64 before = m_places.loop()->flushCount();
        QVERIFY(before >= 0);
        QVERIFY(file.value()->seek(0).ok());
        QCOMPARE(file.value()->write(QByteArray(size, byte).constData(), size).valueOr(-1), size);
        QVERIFY(m_places.loop()->flushCount() > before);
        QCOMPARE(m_places.loop()->readImage(qint64(stretches[0].physical), qMin(size, Page)),
                 QByteArray(qMin(size, Page), byte));
    }
}

void tst_FilesMedium::flushHasTheDeviceFlushed()
{
    const QString name = path(u"file"_s);
    auto fill = files().open(name, OpenMode::CreateFill);
    QVERIFY(fill.ok());
    for (const qint64 size : {qint64(1), 4 * Page, 3 * MiB + 7}) {
        QCOMPARE(fill.value()->write(QByteArray(size, 'z').constData(), size).valueOr(-1), size);
        const qint64 before = m_places.loop()->flushCount();
        QVERIFY(fill.value()->flush().ok());
        QVERIFY(m_places.loop()->flushCount() > before);
    }
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Truncate}) {
        auto cut = files().open(name, mode);
        QVERIFY(cut.ok());
        QVERIFY(cut.value()->seek(mode == OpenMode::Overwrite ? 100 : 0).ok());
        QVERIFY(cut.value()->setEnd().ok());
        const qint64 before = m_places.loop()->flushCount();
        QVERIFY(cut.value()->flush().ok());
        QVERIFY(m_places.loop()->flushCount() > before);
    }
}

// A flush dominates the cost of a small file, so a second one doubles the time of a job.
void tst_FilesMedium::smallWritesFlushTheDeviceOnce()
{
    for (const qint64 size : {16384, 5000}) {
        const QString name = path(u"file%1"_s.arg(size));
        writeThrough(name, QByteArray(size, 'a'));
        auto file = files().open(name, OpenMode::Overwrite);
        QVERIFY(file.ok());
        // Takes the lowest count of several, because the file system writes its journal every few seconds.
        qint64 fewest = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 5; ++i) {
            const qint64 before = m_places.loop()->flushCount();
            QVERIFY(file.value()->seek(0).ok());
            QCOMPARE(file.value()->write(QByteArray(size, 'z').constData(), size).valueOr(-1), size);
            QVERIFY(file.value()->flush().ok());
            fewest = qMin(fewest, m_places.loop()->flushCount() - before);
        }
        QCOMPARE(fewest, 1);
    }
}

void tst_FilesMedium::readDoesNotComeFromTheCache_data()
{
    QTest::addColumn<OpenMode>("mode");
    QTest::newRow("Overwrite") << OpenMode::Overwrite;
    QTest::newRow("Verify") << OpenMode::Verify;
}

// The medium is changed below the file system, which does not notice it.
void tst_FilesMedium::readDoesNotComeFromTheCache()
{
    QFETCH(OpenMode, mode);
    const QString name = path(u"file"_s);
    const qint64 length = 16 * Page;
    writeThrough(name, QByteArray(length, 'a'));
    QCOMPARE(contentOf(name), QByteArray(length, 'a'));
    const QList<Stretch> stretches = stretchesOf(name);
    QCOMPARE(stretches.size(), 1);
    auto file = files().open(name, mode);
    QVERIFY(file.ok());
    QVERIFY(m_places.loop()->writeImage(qint64(stretches[0].physical), QByteArray(length, 'm')));
    QCOMPARE(contentOf(name), QByteArray(length, 'a')); // an ordinary read still sees the cache

    QByteArray sample(1024, '\0');
    for (const qint64 offset : {qint64(0), 3 * Page, 3 * Page + 77, length - 1024}) {
        sample.fill('\0');
        QVERIFY(file.value()->seek(offset).ok());
        QCOMPARE(file.value()->read(sample.data(), sample.size()).valueOr(-1), sample.size());
        QCOMPARE(sample, QByteArray(1024, 'm'));
    }
    QByteArray whole(length, '\0');
    QVERIFY(file.value()->seek(0).ok());
    QCOMPARE(file.value()->read(whole.data(), length).valueOr(-1), length);
    QCOMPARE(firstDifference(whole, QByteArray(length, 'm')), -1);
}

void tst_FilesMedium::readWithoutDirectTransfersDoesNotComeFromTheCache()
{
    const QString name = path(u"file"_s);
    const qint64 length = 16 * Page;
    writeThrough(name, QByteArray(length, 'a'));
    const QList<Stretch> stretches = stretchesOf(name);
    QCOMPARE(stretches.size(), 1);
    LinuxFileHandle file(opened(name, O_RDONLY));
    for (const char byte : {'m', 'n'}) {
        QCOMPARE(contentOf(name).size(), length); // in the cache, whole
        QVERIFY(m_places.loop()->writeImage(qint64(stretches[0].physical), QByteArray(length, byte)));
        for (const qint64 offset : {qint64(0), 3 * Page + 77, length - 1024}) {
            QByteArray sample(1024, '\0');
            QVERIFY(file.seek(offset).ok());
            QCOMPARE(file.read(sample.data(), sample.size()).valueOr(-1), sample.size());
            QCOMPARE(sample, QByteArray(1024, byte));
        }
    }
}

// Dirty pages must neither be lost nor be read instead of the medium.
void tst_FilesMedium::readWithoutDirectTransfersSeesWhatWasJustWritten()
{
    const QString name = path(u"file"_s);
    writeThrough(name, QByteArray(3 * Page, 'a'));
    const QList<Stretch> stretches = stretchesOf(name);
    LinuxFileHandle file(opened(name, O_RDWR));
    for (const char byte : {'y', 'z'}) {
        QVERIFY(file.seek(0).ok());
        QCOMPARE(file.write(QByteArray(3 * Page, byte).constData(), 3 * Page).valueOr(-1), 3 * Page);
        QByteArray found(3 * Page, '\0');
        QVERIFY(file.seek(0).ok());
        QCOMPARE(file.read(found.data(), found.size()).valueOr(-1), found.size());
        QCOMPARE(found, QByteArray(3 * Page, byte));
        QCOMPARE(m_places.loop()->readImage(qint64(stretches[0].physical), 3 * Page),
                 QByteArray(3 * Page, byte));
    }
}

void tst_FilesMedium::verifyLeavesNothingInTheCache()
{
    const QString name = path(u"file"_s);
    const qint64 length = 64 * Page + 100;
    writeThrough(name, QByteArray(length, 'a'));
    QCOMPARE(contentOf(name).size(), length);
    QVERIFY(cachedPages(name) >= 64); // the control; a partial last page may count as absent
    auto file = files().open(name, OpenMode::Verify);
    QVERIFY(file.ok());
    QByteArray found(length, '\0');
    QCOMPARE(file.value()->read(found.data(), length).valueOr(-1), length);
    QCOMPARE(cachedPages(name), 0);
}

// Some file systems accept O_DIRECT on opening and refuse the transfer.
void tst_FilesMedium::refusedFirstTransferGoesThroughTheCache()
{
    const QString name = path(u"file"_s);
    writeThrough(name, QByteArray(5000, 'a'));
    const auto openedWithWrongUnits = [&] {
        OpenedFile file = opened(name, O_RDWR | O_DIRECT | O_DSYNC);
        file.direct = {true, 1, 8};
        file.directOn = true;
        return file;
    };
    QByteArray expected(5000, 'a');
    {
        LinuxFileHandle file(openedWithWrongUnits());
        QVERIFY(file.seek(8).ok());
        QCOMPARE(file.write(QByteArray(808, 'z').constData(), 808).valueOr(-1), 808);
        std::memset(expected.data() + 8, 'z', 808);
    }
    QCOMPARE(contentOf(name), expected);
    LinuxFileHandle file(openedWithWrongUnits());
    QByteArray found(5000, '\0');
    QVERIFY(file.seek(8).ok());
    QCOMPARE(file.read(found.data(), 5000).valueOr(-1), 4992);
    QCOMPARE(found.left(4992), expected.mid(8));
}

void tst_FilesMedium::unreadableBlocksAnswerIoDevice()
{
    QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QString name = volume.mountPoint() + u"/file"_s;
    writeThrough(name, QByteArray(10 * Page, 'a'));
    const QList<Stretch> stretches = stretchesOf(name);
    QVERIFY(!stretches.isEmpty());
    auto file = files().open(name, OpenMode::Verify);
    QVERIFY(file.ok());
    QByteArray sample(1024, '\0');
    QCOMPARE(file.value()->read(sample.data(), sample.size()).valueOr(-1), sample.size());
    // The loop device keeps its length, but its end has no backing any more.
    QVERIFY(QFile::resize(volume.image(), qint64(stretches[0].physical)));
    QVERIFY(file.value()->seek(5 * Page).ok());
    QCOMPARE(file.value()->read(sample.data(), sample.size()).code(), quint32(IoDevice));
    QVERIFY(QFile::resize(volume.image(), LoopMount::defaultSize(LoopMount::Ext4)));
}

void tst_FilesMedium::readOnlyVolume()
{
    const QString name = path(u"file"_s);
    writeThrough(name, "abc");
    QVERIFY(m_places.loop()->remount(u"ro"_s));
    const auto restore = qScopeGuard([this] { m_places.loop()->remount(u"rw"_s); });
    QCOMPARE(files().open(name, OpenMode::Overwrite).code(), quint32(WriteProtect));
    QCOMPARE(files().open(name, OpenMode::Truncate).code(), quint32(WriteProtect));
    QCOMPARE(files().open(path(u"new"_s), OpenMode::CreateFill).code(), quint32(WriteProtect));
    QCOMPARE(files().rename(name, path(u"new"_s)).code, quint32(WriteProtect));
    QCOMPARE(files().remove(name).code, quint32(WriteProtect));
    QVERIFY(files().open(name, OpenMode::Verify).ok());
    QCOMPARE(contentOf(name), QByteArray("abc"));
}

void tst_FilesMedium::immutableFile()
{
    const QString name = path(u"file"_s);
    writeThrough(name, "abc");
    QVERIFY(setImmutable(name, true));
    const auto restore = qScopeGuard([&] { setImmutable(name, false); });
    QCOMPARE(files().open(name, OpenMode::Overwrite).code(), quint32(AccessDenied));
    QCOMPARE(files().rename(name, path(u"new"_s)).code, quint32(AccessDenied));
    QCOMPARE(files().remove(name).code, quint32(AccessDenied));
    QCOMPARE(::chmod(encodeName(name).constData(), 0400), -1);
    QCOMPARE(contentOf(name), QByteArray("abc"));
}

void tst_FilesMedium::fullVolumeEndsAWriteWithTheCountThatFitted()
{
    const QString name = path(u"fill"_s);
    auto file = files().open(name, OpenMode::CreateFill);
    QVERIFY(file.ok());
    AlignedBuffer buffer(8 * MiB);
    std::memset(buffer.data(), 'z', static_cast<std::size_t>(buffer.size()));
    qint64 total = 0;
    int shortWrites = 0;
    // Whole chunks are refused while smaller ones still fit.
    for (const qint64 chunk : {buffer.size(), qint64(200001)}) {
        Result<qint64> count = qint64(0);
        for (int i = 0; i < 1000 && count; ++i) {
            count = file.value()->write(buffer.data(), chunk);
            total += count.valueOr(0);
            shortWrites += count && count.value() < chunk;
        }
        QCOMPARE(count.code(), quint32(DiskFull));
    }
    QVERIFY(shortWrites > 0);
    QVERIFY(file.value()->flush().ok());
    QVERIFY(total > 20 * MiB);
    QCOMPARE(QFileInfo(name).size(), total);
    // All counted bytes are in the file.
    auto reader = files().open(name, OpenMode::Verify);
    QVERIFY(reader.ok());
    QVERIFY(reader.value()->seek(total - MiB).ok());
    QByteArray last(MiB, '\0');
    QCOMPARE(reader.value()->read(last.data(), MiB).valueOr(-1), MiB);
    QCOMPARE(firstDifference(last, QByteArray(MiB, 'z')), -1);
}

QUORVEX_SUITE(tst_FilesMedium, QCoreApplication)
#include "tst_filesmedium.moc"
