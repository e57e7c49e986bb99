#include "platform/places.h"
#include "support/bytes.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "model/units.h"
#include "platform/alignedbuffer.h"
#include "platform/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <cstring>
#include <filesystem>
#include <thread>
#include <vector>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

Files &files()
{
    return backend().files();
}

} // namespace

// The contract of files, on every backend and file system.
class tst_Files : public ContractSuite
{
    Q_OBJECT

private slots:
    void overwriteKeepsLengthAndReplacesEveryByte_data();
    void overwriteKeepsLengthAndReplacesEveryByte();
    void writeLeavesItsNeighboursAlone();
    void longWriteLeavesItsNeighboursAlone();
    void writeTakesBuffersThatAreNotAligned();
    void overwriteDoesNotCut();
    void overwriteDoesNotCreate();
    void readAnswersWhatIsThere();
    void readEndsAtTheEndOfTheFile();
    void readTakesBuffersThatAreNotAligned();
    void anyOrderOfOperations();
    void largeChunksFromAnAlignedBuffer();
    void sizesOfZeroAndBelow();
    void positionsBelowZeroAreRefused();
    void positionsBeyondAnyFileAreRefused();
    void seekBeyondTheEndIsAllowed();
    void setEndCutsAtThePosition();
    void setEndLengthensWithZeros();
    void truncateOpensWithoutCutting();
    void truncateCutsWithoutReading();
    void verifyDoesNotWrite();
    void verifyWhileOverwriting();
    void createFillCreates();
    void createFillCutsAnExistingFile();
    void createFillTakesAnyChunk_data();
    void createFillTakesAnyChunk();
    void createFillCannotRead();
    void openOfNothing_data();
    void openOfNothing();
    void openOfAFolderIsRefused_data();
    void openOfAFolderIsRefused();
    void infoOfAFile();
    void infoCountsHardLinks();
    void infoTellsWhatAFileOccupies();
    void infoOfAFolder();
    void infoOfNothing();
    void theIdStaysWithTheFile();
    void anotherFileHasAnotherId();
    void contentPlaceOfAnEmptyFile();
    void contentPlaceOfNothing();
    void clearReadOnlyMakesWritable();
    void clearReadOnlyOfNothingIsSuccess();
    void renameKeepsTheContents();
    void renameReplaces();
    void renameOfNothing();
    void removeRemovesTheName();
    void removeOfOneHardLinkKeepsTheOthers();
    void removeOfNothing();
    void removeOfAFolderIsRefused();
    void namesOutsideAscii_data();
    void namesOutsideAscii();
    void longPaths();
    void zeroInAPathIsRefused();
    void manyThreadsWithAFileEach();
};

static const QList<qint64> Lengths{1, 100, 511, 512, 513, 4095, 4096, 4097, 65535, 65536, 70000, MiB + 3};

void tst_Files::overwriteKeepsLengthAndReplacesEveryByte_data()
{
    QTest::addColumn<qint64>("length");
    QTest::newRow("0") << qint64(0);
    for (const qint64 length : Lengths)
        QTest::addRow("%lld", static_cast<long long>(length)) << length;
}

void tst_Files::overwriteKeepsLengthAndReplacesEveryByte()
{
    QFETCH(qint64, length);
    const QString name = path(u"file"_s);
    writeFile(name, QByteArray(length, 'a'));
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY2(file.ok(), qPrintable(file.status().diagnostic()));
    const QByteArray bytes(length, 'z');
    QVERIFY(file.value()->seek(0).ok());
    const Result<qint64> written = file.value()->write(bytes.constData(), length);
    QVERIFY2(written.ok(), qPrintable(written.status().diagnostic()));
    QCOMPARE(written.value(), length);
    QVERIFY(file.value()->flush().ok());
    QCOMPARE(QFileInfo(name).size(), length);
    file.take().reset();
    QCOMPARE(QFileInfo(name).size(), length);
    QCOMPARE(firstDifference(contentOf(name), bytes), -1);
}

void tst_Files::writeLeavesItsNeighboursAlone()
{
    const QString name = path(u"file"_s);
    const QByteArray before(3 * 4096 + 77, 'a');
    for (const qint64 offset : {0, 1, 511, 512, 4095, 4096, 4097, 12000}) {
        for (const qint64 size : {1, 511, 512, 4096, 4097, 8192}) {
            if (offset + size > before.size())
                continue;
            writeFile(name, before);
            auto file = files().open(name, OpenMode::Overwrite);
            QVERIFY(file.ok());
            QVERIFY(file.value()->seek(offset).ok());
            QCOMPARE(file.value()->write(QByteArray(size, 'z').constData(), size).valueOr(-1), size);
            file.take().reset();
            QByteArray after = before;
            std::memset(after.data() + offset, 'z', static_cast<std::size_t>(size));
            const QByteArray found = contentOf(name);
            QVERIFY2(found == after, qPrintable(u"%1 bytes at %2: differs at %3 of %4"_s.arg(size)
                                                    .arg(offset)
                                                    .arg(firstDifference(found, after))
                                                    .arg(found.size())));
        }
    }
}

void tst_Files::longWriteLeavesItsNeighboursAlone()
{
    const QString name = path(u"file"_s);
    const QByteArray before(2 * MiB + 77, 'a');
    for (const qint64 offset : {0, 1, 777, 4096, 69999}) {
        for (const qint64 size : {MiB, MiB + 3, MiB + 4096, before.size() - offset}) {
            writeFile(name, before);
            auto file = files().open(name, OpenMode::Overwrite);
            QVERIFY(file.ok());
            QVERIFY(file.value()->seek(offset).ok());
            QCOMPARE(file.value()->write(QByteArray(size, 'z').constData(), size).valueOr(-1), size);
            file.take().reset();
            QByteArray after = before;
            std::memset(after.data() + offset, 'z', static_cast<std::size_t>(size));
            QCOMPARE(firstDifference(contentOf(name), after), -1);
        }
    }
}

void tst_Files::writeTakesBuffersThatAreNotAligned()
{
    const QString name = path(u"file"_s);
    QRandomGenerator random = printedRandom();
    const qint64 length = 3 * MiB + 5;
    const QByteArray bytes = randomBytes(random, length);
    for (const qint64 shift : {0, 1, 8, 16, 512, 2048}) {
        AlignedBuffer buffer(length + shift);
        std::memcpy(buffer.data() + shift, bytes.constData(), static_cast<std::size_t>(length));
        writeFile(name, QByteArray(length, 'a'));
        auto file = files().open(name, OpenMode::Overwrite);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write(buffer.data() + shift, length).valueOr(-1), length);
        file.take().reset();
        QCOMPARE(firstDifference(contentOf(name), bytes), -1);
    }
}

void tst_Files::overwriteDoesNotCut()
{
    const QString name = path(u"file"_s);
    const QByteArray bytes(5000, 'a');
    writeFile(name, bytes);
    QVERIFY(files().open(name, OpenMode::Overwrite).ok());
    QCOMPARE(contentOf(name), bytes);
}

void tst_Files::overwriteDoesNotCreate()
{
    const QString name = path(u"file"_s);
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Verify, OpenMode::Truncate}) {
        QCOMPARE(files().open(name, mode).code(), quint32(FileNotFound));
        QVERIFY(!QFileInfo::exists(name));
    }
}

void tst_Files::readAnswersWhatIsThere()
{
    const QString name = path(u"file"_s);
    QRandomGenerator random = printedRandom();
    const QByteArray bytes = randomBytes(random, 3 * 4096 + 77);
    writeFile(name, bytes);
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Verify}) {
        auto file = files().open(name, mode);
        QVERIFY(file.ok());
        for (const qint64 offset : {0, 1, 511, 512, 513, 4095, 4096, 4097, 12287, 12288, 12364}) {
            for (const qint64 size : {1, 100, 511, 512, 513, 1024, 4095, 4096, 4097, 12288, 20000}) {
                const QByteArray expected = bytes.mid(offset, size);
                const QByteArray guard(8192, '\xEE');
                QByteArray buffer = QByteArray(size, '\xEE') + guard;
                QVERIFY(file.value()->seek(offset).ok());
                QCOMPARE(file.value()->read(buffer.data(), size).valueOr(-1), expected.size());
                QVERIFY(buffer.startsWith(expected));
                // Bytes behind the requested size stay untouched.
                QCOMPARE(buffer.mid(size), guard);
            }
        }
    }
}

void tst_Files::readEndsAtTheEndOfTheFile()
{
    const QString name = path(u"file"_s);
    for (const qint64 length : Lengths) {
        writeFile(name, QByteArray(length, 'a'));
        auto file = files().open(name, OpenMode::Verify);
        QVERIFY(file.ok());
        QByteArray buffer(length + 10000, 'x');
        QCOMPARE(file.value()->read(buffer.data(), buffer.size()).valueOr(-1), length);
        QCOMPARE(file.value()->read(buffer.data(), buffer.size()).valueOr(-1), 0);
        QVERIFY(file.value()->seek(length + 5000).ok());
        QCOMPARE(file.value()->read(buffer.data(), buffer.size()).valueOr(-1), 0);
    }
}

void tst_Files::readTakesBuffersThatAreNotAligned()
{
    const QString name = path(u"file"_s);
    QRandomGenerator random = printedRandom();
    const qint64 length = 3 * MiB + 5;
    const QByteArray bytes = randomBytes(random, length);
    writeFile(name, bytes);
    auto file = files().open(name, OpenMode::Verify);
    QVERIFY(file.ok());
    for (const qint64 shift : {0, 1, 8, 512, 2048}) {
        AlignedBuffer buffer(length + shift);
        QVERIFY(file.value()->seek(0).ok());
        QCOMPARE(file.value()->read(buffer.data() + shift, length).valueOr(-1), length);
        QCOMPARE(std::memcmp(buffer.data() + shift, bytes.constData(), static_cast<std::size_t>(length)), 0);
    }
}

// Compared with a plain array, which has no sectors.
void tst_Files::anyOrderOfOperations()
{
    const QString name = path(u"file"_s);
    QRandomGenerator random = printedRandom();
    QByteArray model = randomBytes(random, 1000000);
    writeFile(name, model);
    auto opened = files().open(name, OpenMode::Overwrite);
    QVERIFY(opened.ok());
    FileHandle &file = *opened.value();
    qint64 position = 0;
    for (int round = 0; round < 200; ++round) {
        const qint64 unit = QList<qint64>{1, 512, 4096}.at(random.bounded(3));
        // Some transfers are long, so that they reach the device in pieces.
        const qint64 size = random.bounded(qint64(20)) * unit +
                            (random.bounded(2) ? 0 : random.bounded(700)) + (random.bounded(4) ? 0 : 307200);
        switch (random.bounded(8)) {
        case 0:
        case 1:
            position = random.bounded(model.size() / unit + 1) * unit;
            QVERIFY(file.seek(position).ok());
            break;
        case 2:
        case 3:
        case 4: {
            const QByteArray bytes = randomBytes(random, size);
            QCOMPARE(file.write(bytes.constData(), size).valueOr(-1), size);
            if (size > 0)
                model.resize(qMax(model.size(), position + size));
            std::copy(bytes.begin(), bytes.end(), model.begin() + position);
            position += size;
            break;
        }
        case 5:
        case 6: {
            QByteArray bytes(size, '\0');
            const QByteArray expected = model.mid(position, size);
            QCOMPARE(file.read(bytes.data(), size).valueOr(-1), expected.size());
            QVERIFY(bytes.startsWith(expected));
            position += expected.size();
            break;
        }
        default:
            if (random.bounded(4) == 0) {
                QVERIFY(file.setEnd().ok());
                model.resize(position);
            }
            QVERIFY(file.flush().ok());
        }
    }
    opened.take().reset();
    QCOMPARE(firstDifference(contentOf(name), model), -1);
}

void tst_Files::largeChunksFromAnAlignedBuffer()
{
    const QString name = path(u"file"_s);
    const qint64 length = 32 * MiB + 1000;
    QRandomGenerator random = printedRandom();
    const QByteArray bytes = randomBytes(random, length);
    writeFile(name, QByteArray(length, 'a'));
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    AlignedBuffer buffer(16 * MiB);
    for (qint64 offset = 0; offset < length; offset += buffer.size()) {
        const qint64 chunk = qMin(buffer.size(), length - offset);
        std::memcpy(buffer.data(), bytes.constData() + offset, static_cast<std::size_t>(chunk));
        QVERIFY(file.value()->seek(offset).ok());
        QCOMPARE(file.value()->write(buffer.data(), chunk).valueOr(-1), chunk);
    }
    QVERIFY(file.value()->flush().ok());
    file.take().reset();
    QCOMPARE(firstDifference(contentOf(name), bytes), -1);
}

void tst_Files::sizesOfZeroAndBelow()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    char byte = 'x';
    QCOMPARE(file.value()->write(&byte, 0).valueOr(-1), 0);
    QCOMPARE(file.value()->read(&byte, 0).valueOr(-1), 0);
    QCOMPARE(file.value()->write(&byte, -1).code(), quint32(InvalidParameter));
    QCOMPARE(file.value()->read(&byte, -1).code(), quint32(InvalidParameter));
    QCOMPARE(byte, 'x');
    QCOMPARE(contentOf(name), QByteArray("abc"));
}

void tst_Files::positionsBelowZeroAreRefused()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Verify);
    QVERIFY(file.ok());
    QVERIFY(file.value()->seek(1).ok());
    QCOMPARE(file.value()->seek(-1).code, quint32(InvalidParameter));
    char byte = 'x';
    QCOMPARE(file.value()->read(&byte, 1).valueOr(-1), 1);
    QCOMPARE(byte, 'b'); // the position stayed
}

void tst_Files::positionsBeyondAnyFileAreRefused()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QVERIFY(file.value()->seek(std::numeric_limits<qint64>::max()).ok());
    char byte = 'x';
    QVERIFY(!file.value()->write(&byte, 1).ok());
    QVERIFY(!file.value()->read(&byte, 1).ok());
    QCOMPARE(contentOf(name), QByteArray("abc"));
}

void tst_Files::seekBeyondTheEndIsAllowed()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Overwrite);
    QVERIFY(file.ok());
    QVERIFY(file.value()->seek(10000).ok());
    QCOMPARE(QFileInfo(name).size(), 3);
    QCOMPARE(file.value()->write("z", 1).valueOr(-1), 1);
    file.take().reset();
    QCOMPARE(firstDifference(contentOf(name), "abc" + QByteArray(9997, '\0') + "z"), -1);
}

void tst_Files::setEndCutsAtThePosition()
{
    const QString name = path(u"file"_s);
    const QByteArray bytes(10000, 'a');
    for (const OpenMode mode : {OpenMode::Overwrite, OpenMode::Truncate}) {
        for (const qint64 length : {9999, 8192, 513, 1, 0}) {
            writeFile(name, bytes);
            auto file = files().open(name, mode);
            QVERIFY(file.ok());
            QVERIFY(file.value()->seek(length).ok());
            QVERIFY(file.value()->setEnd().ok());
            QVERIFY(file.value()->flush().ok());
            QCOMPARE(contentOf(name), bytes.left(length));
        }
    }
}

void tst_Files::setEndLengthensWithZeros()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Truncate);
    QVERIFY(file.ok());
    QVERIFY(file.value()->seek(6000).ok());
    QVERIFY(file.value()->setEnd().ok());
    QVERIFY(file.value()->flush().ok());
    QCOMPARE(contentOf(name), "abc" + QByteArray(5997, '\0'));
}

void tst_Files::truncateOpensWithoutCutting()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Truncate);
    QVERIFY(file.ok());
    QCOMPARE(contentOf(name), QByteArray("abc"));
    QVERIFY(file.value()->seek(1).ok());
    QCOMPARE(file.value()->write("z", 1).valueOr(-1), 1);
    QVERIFY(file.value()->flush().ok());
    QCOMPARE(contentOf(name), QByteArray("azc"));
}

void tst_Files::truncateCutsWithoutReading()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    auto file = files().open(name, OpenMode::Truncate);
    QVERIFY(file.ok());
    char byte = 0;
    QVERIFY(!file.value()->read(&byte, 1).ok());
}

void tst_Files::verifyDoesNotWrite()
{
    const QString name = path(u"file"_s);
    const QByteArray bytes(8192, 'a');
    writeFile(name, bytes);
    auto file = files().open(name, OpenMode::Verify);
    QVERIFY(file.ok());
    for (const qint64 size : {1, 4096}) {
        QVERIFY(file.value()->seek(0).ok());
        QVERIFY(!file.value()->write(QByteArray(size, 'z').constData(), size).ok());
    }
    QVERIFY(!file.value()->setEnd().ok());
    QCOMPARE(contentOf(name), bytes);
}

void tst_Files::verifyWhileOverwriting()
{
    const QString name = path(u"file"_s);
    writeFile(name, QByteArray(10001, 'a'));
    auto writer = files().open(name, OpenMode::Overwrite);
    QVERIFY(writer.ok());
    QCOMPARE(writer.value()->write(QByteArray(10001, 'z').constData(), 10001).valueOr(-1), 10001);
    QVERIFY(writer.value()->flush().ok());
    auto reader = files().open(name, OpenMode::Verify);
    QVERIFY(reader.ok());
    QByteArray found(10001, '\0');
    QCOMPARE(reader.value()->read(found.data(), found.size()).valueOr(-1), 10001);
    QCOMPARE(firstDifference(found, QByteArray(10001, 'z')), -1);
}

void tst_Files::createFillCreates()
{
    const QString name = path(u"fill_000000.tmp"_s);
    auto file = files().open(name, OpenMode::CreateFill);
    QVERIFY2(file.ok(), qPrintable(file.status().diagnostic()));
    QCOMPARE(QFileInfo(name).size(), 0);
    const QByteArray bytes(MiB + 3, 'z');
    QCOMPARE(file.value()->write(bytes.constData(), bytes.size()).valueOr(-1), bytes.size());
    QVERIFY(file.value()->flush().ok());
    QCOMPARE(QFileInfo(name).size(), bytes.size());
    file.take().reset();
    QCOMPARE(firstDifference(contentOf(name), bytes), -1);
}

void tst_Files::createFillCutsAnExistingFile()
{
    const QString name = path(u"file"_s);
    writeFile(name, QByteArray(10000, 'a'));
    auto file = files().open(name, OpenMode::CreateFill);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write("z", 1).valueOr(-1), 1);
    QVERIFY(file.value()->flush().ok());
    file.take().reset();
    QCOMPARE(contentOf(name), QByteArray("z"));
}

void tst_Files::createFillTakesAnyChunk_data()
{
    QTest::addColumn<qint64>("chunk");
    for (const qint64 chunk : {1000, 4096, 5000, 65536, 100003})
        QTest::addRow("%lld", static_cast<long long>(chunk)) << chunk;
}

// A fill ends with a chunk as long as the remaining space.
void tst_Files::createFillTakesAnyChunk()
{
    QFETCH(qint64, chunk);
    const QString name = path(u"file"_s);
    QRandomGenerator random = printedRandom();
    const QByteArray bytes = randomBytes(random, chunk * 8);
    auto file = files().open(name, OpenMode::CreateFill);
    QVERIFY(file.ok());
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(file.value()->write(bytes.constData() + i * chunk, chunk).valueOr(-1), chunk);
        QVERIFY(file.value()->flush().ok());
    }
    file.take().reset();
    QCOMPARE(firstDifference(contentOf(name), bytes), -1);
}

void tst_Files::createFillCannotRead()
{
    auto file = files().open(path(u"file"_s), OpenMode::CreateFill);
    QVERIFY(file.ok());
    QCOMPARE(file.value()->write("z", 1).valueOr(-1), 1);
    QVERIFY(file.value()->seek(0).ok());
    char byte = 0;
    QVERIFY(!file.value()->read(&byte, 1).ok());
}

static void addModes()
{
    QTest::addColumn<OpenMode>("mode");
    QTest::newRow("Overwrite") << OpenMode::Overwrite;
    QTest::newRow("Verify") << OpenMode::Verify;
    QTest::newRow("Truncate") << OpenMode::Truncate;
    QTest::newRow("CreateFill") << OpenMode::CreateFill;
}

void tst_Files::openOfNothing_data()
{
    addModes();
}

void tst_Files::openOfNothing()
{
    QFETCH(OpenMode, mode);
    writeFile(path(u"file"_s), "abc");
    const quint32 noFolder = files().open(path(u"none/file"_s), mode).code();
    QVERIFY(noFolder == FileNotFound || noFolder == PathNotFound);
    QCOMPARE(files().open(path(u"file/below"_s), mode).code(), quint32(PathNotFound));
    QVERIFY(!files().open(QString(), mode).ok());
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("abc"));
}

void tst_Files::openOfAFolderIsRefused_data()
{
    addModes();
}

void tst_Files::openOfAFolderIsRefused()
{
    QFETCH(OpenMode, mode);
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QCOMPARE(files().open(path(u"folder"_s), mode).code(), quint32(AccessDenied));
    QCOMPARE(files().open(path(u"folder/"_s), mode).code(), quint32(AccessDenied));
    QVERIFY(QFileInfo(path(u"folder"_s)).isDir());
}

void tst_Files::infoOfAFile()
{
    writeFile(path(u"empty"_s), {});
    writeFile(path(u"file"_s), QByteArray(12345, 'a'));
    const Result<FileInfo> empty = files().info(path(u"empty"_s));
    QVERIFY(empty.ok());
    QCOMPARE(empty.value().kind, FileKind::Regular);
    QCOMPARE(empty.value().size, 0);
    const Result<FileInfo> file = files().info(path(u"file"_s));
    QVERIFY(file.ok());
    QCOMPARE(file.value().kind, FileKind::Regular);
    QCOMPARE(file.value().size, 12345);
    QCOMPARE(file.value().linkCount, 1);
}

void tst_Files::infoCountsHardLinks()
{
    writeFile(path(u"file"_s), "abc");
    for (int links = 2; links <= 4; ++links) {
        std::filesystem::create_hard_link(nativePath(path(u"file"_s)),
                                          nativePath(path(u"link%1"_s.arg(links))));
        QCOMPARE(files().info(path(u"file"_s)).value().linkCount, links);
        QCOMPARE(files().info(path(u"link%1"_s.arg(links))).value().linkCount, links);
    }
}

void tst_Files::infoTellsWhatAFileOccupies()
{
    writeFile(path(u"dense"_s), QByteArray(1 << 20, 'x'));
    writeFile(path(u"hollow"_s), QByteArray(1 << 16, 'x'));
    QVERIFY(QFile::resize(path(u"hollow"_s), 64 << 20));
    QVERIFY(files().open(path(u"dense"_s), OpenMode::Overwrite).value()->flush().ok()); // otherwise not
                                                                                        // allocated yet
    const Result<FileInfo> dense = files().info(path(u"dense"_s));
    QVERIFY(dense.value().allocatedBytes < 0 || dense.value().allocatedBytes >= 1 << 20);
#ifdef Q_OS_LINUX
    QVERIFY(dense.value().allocatedBytes >= 1 << 20);
    const Result<FileInfo> hollow = files().info(path(u"hollow"_s));
    QCOMPARE(hollow.value().size, qint64(64 << 20));
    QVERIFY(hollow.value().allocatedBytes >= 0 && hollow.value().allocatedBytes < 1 << 20);
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QCOMPARE(files().info(path(u"folder"_s)).value().allocatedBytes, qint64(-1));
#endif
}

void tst_Files::infoOfAFolder()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    for (const QString &name : {u"folder"_s, u"folder/"_s}) {
        const Result<FileInfo> folder = files().info(path(name));
        QVERIFY(folder.ok());
        QCOMPARE(folder.value().kind, FileKind::Folder);
        QCOMPARE(folder.value().size, 0);
        QVERIFY(folder.value().linkCount >= 1);
    }
}

// The id does not depend on the name, the content or neighbouring files.
void tst_Files::theIdStaysWithTheFile()
{
    writeFile(path(u"file"_s), "abc");
    const FileId id = files().info(path(u"file"_s)).value().id;
    {
        const auto opened = files().open(path(u"file"_s), OpenMode::Overwrite);
        QVERIFY(opened.ok());
        if (opened.value()->id().code() == NotSupported)
            QSKIP("SKIPPED: files have no lasting numbers here");
        QCOMPARE(opened.value()->id().value(), id);
        QVERIFY(opened.value()->write("xyzuvw", 6).ok());
        QVERIFY(opened.value()->flush().ok());
        QCOMPARE(opened.value()->id().value(), id);
    }
    QVERIFY(files().rename(path(u"file"_s), path(u"other"_s)).ok());
    QCOMPARE(files().info(path(u"other"_s)).value().id, id);
    for (const OpenMode mode : {OpenMode::Verify, OpenMode::Truncate, OpenMode::CreateFill}) {
        const auto opened = files().open(path(u"other"_s), mode);
        QVERIFY(opened.ok());
        QCOMPARE(opened.value()->id().value(), id);
    }
}

void tst_Files::anotherFileHasAnotherId()
{
    writeFile(path(u"file"_s), "abc");
    const FileId id = files().info(path(u"file"_s)).value().id;
    if (files().open(path(u"file"_s), OpenMode::Verify).value()->id().code() == NotSupported)
        QSKIP("SKIPPED: files have no lasting numbers here");
    writeFile(path(u"beside"_s), "abc");
    QVERIFY(files().info(path(u"beside"_s)).value().id != id);
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows gives no number twice, and Wine knows no births");
#endif
    // Some file systems reuse a number at once. The times of birth differ by a few milliseconds.
    QTest::qSleep(50);
    QVERIFY(files().remove(path(u"file"_s)).ok());
    writeFile(path(u"file"_s), "abc");
    QVERIFY(files().info(path(u"file"_s)).value().id != id);
    QVERIFY(files().open(path(u"file"_s), OpenMode::Verify).value()->id().value() != id);
}

void tst_Files::contentPlaceOfAnEmptyFile()
{
    writeFile(path(u"empty"_s), {});
    const ContentPlace nowhere{.elsewhere = {}, .bytes = 0};
    QCOMPARE(files().contentPlace(path(u"empty"_s)).value(), nowhere);
    QCOMPARE(files().open(path(u"empty"_s), OpenMode::Overwrite).value()->contentPlace().value(), nowhere);
}

void tst_Files::contentPlaceOfNothing()
{
    QCOMPARE(files().contentPlace(path(u"none"_s)).code(), quint32(FileNotFound));
    QVERIFY(!files().contentPlace(path(u"none/file"_s)).ok());
}

void tst_Files::infoOfNothing()
{
    writeFile(path(u"file"_s), "abc");
    QCOMPARE(files().info(path(u"none"_s)).code(), quint32(FileNotFound));
    const quint32 noFolder = files().info(path(u"none/none"_s)).code();
    QVERIFY(noFolder == FileNotFound || noFolder == PathNotFound);
    QCOMPARE(files().info(path(u"file/none"_s)).code(), quint32(PathNotFound));
}

void tst_Files::clearReadOnlyMakesWritable()
{
    const QString name = path(u"file"_s);
    writeFile(name, "abc");
    QVERIFY(QFile::setPermissions(name, QFileDevice::ReadOwner | QFileDevice::ReadUser));
    QVERIFY(!(QFile::permissions(name) & QFileDevice::WriteOwner));
    QVERIFY(files().clearReadOnly(name).ok());
    QVERIFY(QFile::permissions(name) & QFileDevice::WriteOwner);
    QVERIFY(files().clearReadOnly(name).ok()); // already cleared
    QVERIFY(files().open(name, OpenMode::Overwrite).ok());
    QCOMPARE(contentOf(name), QByteArray("abc"));
}

void tst_Files::clearReadOnlyOfNothingIsSuccess()
{
    QVERIFY(files().clearReadOnly(path(u"none"_s)).ok());
    QVERIFY(files().clearReadOnly(path(u"none/none"_s)).ok());
    QVERIFY(QDir(m_folder).isEmpty());
}

void tst_Files::renameKeepsTheContents()
{
    writeFile(path(u"old"_s), "abc");
    QVERIFY(files().rename(path(u"old"_s), path(u"A1B2C3D4E5F6.tmp"_s)).ok());
    QVERIFY(!QFileInfo::exists(path(u"old"_s)));
    QCOMPARE(contentOf(path(u"A1B2C3D4E5F6.tmp"_s)), QByteArray("abc"));
}

void tst_Files::renameReplaces()
{
    writeFile(path(u"old"_s), "abc");
    writeFile(path(u"new"_s), "another");
    QVERIFY(files().rename(path(u"old"_s), path(u"new"_s)).ok());
    QVERIFY(!QFileInfo::exists(path(u"old"_s)));
    QCOMPARE(contentOf(path(u"new"_s)), QByteArray("abc"));
}

void tst_Files::renameOfNothing()
{
    writeFile(path(u"new"_s), "another");
    QCOMPARE(files().rename(path(u"old"_s), path(u"new"_s)).code, quint32(FileNotFound));
    QCOMPARE(contentOf(path(u"new"_s)), QByteArray("another"));
}

void tst_Files::removeRemovesTheName()
{
    writeFile(path(u"file"_s), "abc");
    writeFile(path(u"other"_s), "other");
    QVERIFY(files().remove(path(u"file"_s)).ok());
    QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"other"_s});
}

void tst_Files::removeOfOneHardLinkKeepsTheOthers()
{
    writeFile(path(u"file"_s), "abc");
    std::filesystem::create_hard_link(nativePath(path(u"file"_s)), nativePath(path(u"link"_s)));
    QVERIFY(files().remove(path(u"file"_s)).ok());
    QCOMPARE(contentOf(path(u"link"_s)), QByteArray("abc"));
}

void tst_Files::removeOfNothing()
{
    QCOMPARE(files().remove(path(u"none"_s)).code, quint32(FileNotFound));
}

void tst_Files::removeOfAFolderIsRefused()
{
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    QCOMPARE(files().remove(path(u"folder"_s)).code, quint32(AccessDenied));
    QVERIFY(QFileInfo(path(u"folder"_s)).isDir());
}

void tst_Files::namesOutsideAscii_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Chinese") << u"文件粉碎.txt"_s;
    QTest::newRow("beyond the basic plane") << u"\U0001F5D1.txt"_s;
    QTest::newRow("right to left") << u"\u202Etxt.exe"_s;
    QTest::newRow("blanks") << u"a  b .txt"_s;
    QTest::newRow("leading dot") << u".hidden"_s;
}

void tst_Files::namesOutsideAscii()
{
    QFETCH(QString, name);
    writeFile(path(name), "abc");
    QCOMPARE(files().info(path(name)).value().size, 3);
    {
        auto file = files().open(path(name), OpenMode::Overwrite);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write("xyz", 3).valueOr(-1), 3);
    }
    QCOMPARE(contentOf(path(name)), QByteArray("xyz"));
    QVERIFY(files().rename(path(name), path(u"plain"_s)).ok());
    QVERIFY(files().rename(path(u"plain"_s), path(name)).ok());
    QVERIFY(files().clearReadOnly(path(name)).ok());
    QVERIFY(files().remove(path(name)).ok());
    QVERIFY(QDir(m_folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void tst_Files::longPaths()
{
    // Well beyond the 260 characters above which Windows needs the long form of a path.
    QString folder = m_folder;
    for (int i = 0; i < 6; ++i)
        folder += u'/' + QString(100, QChar(u'a' + i));
    QVERIFY(QDir().mkpath(folder));
    const QString name = folder + u"/file"_s;
    writeFile(name, "abc");
    {
        auto file = files().open(name, OpenMode::Overwrite);
        QVERIFY(file.ok());
        QCOMPARE(file.value()->write("xyz", 3).valueOr(-1), 3);
    }
    QCOMPARE(contentOf(name), QByteArray("xyz"));
    QVERIFY(files().rename(name, folder + u"/other"_s).ok());
    QVERIFY(files().remove(folder + u"/other"_s).ok());
    QVERIFY(QDir(folder).isEmpty());
}

// "file\0.txt" would end at the zero and name "file".
void tst_Files::zeroInAPathIsRefused()
{
    writeFile(path(u"file"_s), "abc");
    const QString name = path(u"file"_s) + QChar(u'\0') + u".txt"_s;
    QCOMPARE(files().info(name).code(), quint32(InvalidParameter));
    QCOMPARE(files().open(name, OpenMode::Overwrite).code(), quint32(InvalidParameter));
    QCOMPARE(files().open(name, OpenMode::CreateFill).code(), quint32(InvalidParameter));
    QCOMPARE(files().clearReadOnly(name).code, quint32(InvalidParameter));
    QCOMPARE(files().rename(name, path(u"other"_s)).code, quint32(InvalidParameter));
    QCOMPARE(files().rename(path(u"file"_s), name).code, quint32(InvalidParameter));
    QCOMPARE(files().remove(name).code, quint32(InvalidParameter));
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("abc"));
}

void tst_Files::manyThreadsWithAFileEach()
{
    constexpr int Count = 8;
    for (int i = 0; i < Count; ++i)
        writeFile(path(QString::number(i)), QByteArray(20000 + i, 'a'));
    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < Count; ++i) {
        threads.emplace_back([this, i, &good] {
            const QString name = path(QString::number(i));
            const QByteArray bytes(20000 + i, char('b' + i));
            auto file = files().open(name, OpenMode::Overwrite);
            if (file && file.value()->write(bytes.constData(), bytes.size()).valueOr(-1) == bytes.size() &&
                file.value()->flush().ok())
                ++good;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(good.load(), Count);
    for (int i = 0; i < Count; ++i)
        QCOMPARE(contentOf(path(QString::number(i))), QByteArray(20000 + i, char('b' + i)));
}

QUORVEX_SUITE(tst_Files, QCoreApplication)
#include "tst_files.moc"
