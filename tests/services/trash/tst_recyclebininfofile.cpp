#include "services/trash/recyclebininfofile.h"
#include "support/infofiles.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using recyclebin::parseInfo;

namespace {
RecycleBinItem item(const QString &name, const QString &path, quint64 size)
{
    RecycleBinItem item;
    item.fileName = name;
    item.originalPath = path;
    item.size = size;
    return item;
}

QByteArray version2(const QString &stored, quint32 length)
{
    return infoHeader(2, 7) + littleEndian(length) + utf16(stored);
}

quint64 byteByByte(const QByteArray &bytes, qsizetype offset, int width)
{
    quint64 number = 0;
    for (int i = width - 1; i >= 0; --i)
        number = number * 256 + static_cast<quint8>(bytes.at(offset + i));
    return number;
}

// The position of the path, computed independently of the code under test: offset and units, -1 for none.
std::pair<qint64, qint64> pathField(const QByteArray &bytes)
{
    const quint64 version = byteByByte(bytes, 0, 8);
    if (version == 1)
        return bytes.size() < 544 ? std::pair<qint64, qint64>{-1, 0} : std::pair<qint64, qint64>{24, 260};
    if (version != 2 || bytes.size() < 29)
        return {-1, 0};
    const auto room = static_cast<quint64>((bytes.size() - 28) / 2);
    const quint64 length = byteByByte(bytes, 24, 4);
    return length > room ? std::pair<qint64, qint64>{-1, 0}
                         : std::pair<qint64, qint64>{28, static_cast<qint64>(length)};
}

QString expectedPath(const QByteArray &bytes)
{
    const auto [offset, units] = pathField(bytes);
    QString path;
    for (qint64 i = 0; offset >= 0 && i < units; ++i)
        path += QChar(static_cast<char16_t>(byteByByte(bytes, offset + 2 * i, 2)));
    while (!path.isEmpty() && path.front().isSpace())
        path.remove(0, 1);
    while (!path.isEmpty() && path.back().isSpace())
        path.chop(1);
    if (!path.isEmpty() && path.back() == QChar(u'\0'))
        path.chop(1);
    return path;
}

// Random bytes with a version and a length with which most of them reach the path.
QByteArray randomFile(QRandomGenerator &random, int length)
{
    QByteArray bytes;
    for (int i = 0; i < length; ++i)
        bytes += static_cast<char>(random.bounded(256));
    const auto put = [&bytes](qsizetype offset, const QByteArray &field) {
        for (qsizetype i = 0; i < field.size() && offset + i < bytes.size(); ++i)
            bytes[offset + i] = field.at(i);
    };
    put(0, littleEndian(quint64(random.bounded(4))));
    if (random.bounded(4) != 0)
        put(24, littleEndian(quint32(random.bounded(300))));
    // The path is cut at zeros, white space and separators. Decoders change half surrogate pairs and byte
    // order marks.
    constexpr std::array<char16_t, 7> units{0, u' ', u'\\', u'/', 0xD800, 0xDC00, 0xFEFF};
    for (int i = 0; i < length / 16; ++i) {
        const QChar unit(units.at(static_cast<std::size_t>(random.bounded(int(units.size())))));
        put(28 + 2 * random.bounded(300), utf16(QString(unit)));
    }
    return bytes;
}
} // namespace

class tst_RecycleBinInfoFile : public QObject
{
    Q_OBJECT

private slots:
    void plainValues();
    void version2();
    void version1KeepsTheZerosOfItsField();
    void aFullFieldOfVersion1();
    void version2Of28BytesHasASizeAndNoPath();
    void lessThan28BytesTellNothing();
    void version1Needs544Bytes();
    void otherVersionsHaveASizeOnly_data();
    void otherVersionsHaveASizeOnly();
    void aLyingLengthGivesNoPath_data();
    void aLyingLengthGivesNoPath();
    void bytesBehindThePathAreIgnored();
    void thePathIsTrimmed_data();
    void thePathIsTrimmed();
    void theNameIsTheLastComponent_data();
    void theNameIsTheLastComponent();
    void unitsStayAsTheyAre();
    void sizesAreUnsigned();
    void anythingCanBeParsed();
};

void tst_RecycleBinInfoFile::plainValues()
{
    RecycleBinInfo info;
    QCOMPARE(info, RecycleBinInfo());
    RecycleBinItem both = item(u"a"_s, u"C:\\a"_s, 5);
    both.infoPath = u"/bin/$I1"_s;
    both.recyclePath = u"/bin/$R1"_s;
    RecycleBinItem alone = item(u"b"_s, u"C:\\b"_s, 7);
    alone.infoPath = u"/bin/$I2"_s;
    info.add(both);
    info.add(alone);
    QCOMPARE(info.items, (QList{both, alone}));
    QCOMPARE(info.filePaths, (QStringList{u"/bin/$I1"_s, u"/bin/$R1"_s, u"/bin/$I2"_s}));
    QCOMPARE(info.totalSize, quint64(12));
    QCOMPARE(info.fileCount, 2);
    RecycleBinInfo copy = info;
    QCOMPARE(copy, info);
    copy.items.first().isDirectory = true;
    QVERIFY(!(copy == info));
}

void tst_RecycleBinInfoFile::version2()
{
    QCOMPARE(parseInfo(infoVersion2(u"C:\\Users\\Ann\\letter.txt"_s, 1234)),
             item(u"letter.txt"_s, u"C:\\Users\\Ann\\letter.txt"_s, 1234));
}

void tst_RecycleBinInfoFile::version1KeepsTheZerosOfItsField()
{
    const QByteArray contents = infoVersion1(u"C:\\a\\b.txt"_s, 9);
    QCOMPARE(contents.size(), 544);
    QCOMPARE(parseInfo(contents), item(u"b.txt"_s.leftJustified(254, QChar(u'\0')),
                                       u"C:\\a\\b.txt"_s.leftJustified(259, QChar(u'\0')), 9));
}

void tst_RecycleBinInfoFile::aFullFieldOfVersion1()
{
    const QString path = u"C:\\"_s + QString(257, u'x');
    QCOMPARE(parseInfo(infoVersion1(path, 9)), item(QString(257, u'x'), path, 9));
}

void tst_RecycleBinInfoFile::version2Of28BytesHasASizeAndNoPath()
{
    QCOMPARE(parseInfo(infoHeader(2, 77) + littleEndian(quint32(0))), item({}, {}, 77));
}

void tst_RecycleBinInfoFile::lessThan28BytesTellNothing()
{
    QByteArray contents = infoVersion2(u"C:\\a"_s, 77);
    for (int size = 0; size < 28; ++size)
        QCOMPARE(parseInfo(contents.first(size)), RecycleBinItem());
}

void tst_RecycleBinInfoFile::version1Needs544Bytes()
{
    const QByteArray contents = infoVersion1(u"C:\\a"_s, 77);
    QCOMPARE(parseInfo(contents.chopped(1)), item({}, {}, 77));
    QVERIFY(!parseInfo(contents).originalPath.isEmpty());
}

void tst_RecycleBinInfoFile::otherVersionsHaveASizeOnly_data()
{
    QTest::addColumn<quint64>("version");
    QTest::newRow("0") << quint64(0);
    QTest::newRow("3") << quint64(3);
    // All eight bytes count.
    QTest::newRow("2 + 2^32") << (quint64(1) << 32 | 2);
    QTest::newRow("1 + 2^63") << (quint64(1) << 63 | 1);
}

void tst_RecycleBinInfoFile::otherVersionsHaveASizeOnly()
{
    QFETCH(quint64, version);
    const QString path(300, u'x');
    const QByteArray contents = infoHeader(version, 5) + littleEndian(quint32(300)) + utf16(path);
    QCOMPARE(parseInfo(contents), item({}, {}, 5));
}

void tst_RecycleBinInfoFile::aLyingLengthGivesNoPath_data()
{
    QTest::addColumn<quint32>("length");
    QTest::addColumn<QString>("path");
    QTest::newRow("none") << 0U << QString();
    QTest::newRow("shorter") << 3U << u"C:\\"_s;
    QTest::newRow("exact") << 6U << u"C:\\abc"_s;
    QTest::newRow("one more") << 7U << QString();
    QTest::newRow("2^31 - 14, whose bytes overflow 32 bits with the offset") << 0x7FFFFFF2U << QString();
    QTest::newRow("2^31, whose bytes are 0 in 32 bits") << 0x80000000U << QString();
    QTest::newRow("2^32 - 14, whose bytes end at 0") << 0xFFFFFFF2U << QString();
    QTest::newRow("2^32 - 1") << 0xFFFFFFFFU << QString();
}

void tst_RecycleBinInfoFile::aLyingLengthGivesNoPath()
{
    QFETCH(quint32, length);
    QFETCH(QString, path);
    QCOMPARE(parseInfo(::version2(u"C:\\abc"_s, length)).originalPath, path);
    QCOMPARE(parseInfo(::version2(u"C:\\abc"_s, length)).size, quint64(7));
}

void tst_RecycleBinInfoFile::bytesBehindThePathAreIgnored()
{
    for (const char *behind : {"x", "xy", "xyz"})
        QCOMPARE(parseInfo(::version2(u"C:\\abc"_s, 6) + behind).originalPath, u"C:\\abc"_s);
    // Half a UTF-16 unit does not count.
    QCOMPARE(parseInfo(::version2(u"C:\\abc"_s, 7) + 'x').originalPath, QString());
}

void tst_RecycleBinInfoFile::thePathIsTrimmed_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("path");
    const QString zero(QChar(u'\0'));
    QTest::newRow("white space") << u"\t C:\\a b \n"_s << u"C:\\a b"_s;
    QTest::newRow("white space behind the zero") << u"C:\\a"_s + zero + u" "_s << u"C:\\a"_s;
    QTest::newRow("white space before the zero") << u"C:\\a "_s + zero << u"C:\\a "_s;
    QTest::newRow("two zeros") << u"C:\\a"_s + zero + zero << u"C:\\a"_s + zero;
    QTest::newRow("zeros within") << u"C:\\a"_s + zero + u"b"_s << u"C:\\a"_s + zero + u"b"_s;
    QTest::newRow("only a zero") << zero << QString();
    QTest::newRow("only white space") << u"   "_s << QString();
}

void tst_RecycleBinInfoFile::thePathIsTrimmed()
{
    QFETCH(QString, stored);
    QFETCH(QString, path);
    QCOMPARE(parseInfo(::version2(stored, static_cast<quint32>(stored.size()))).originalPath, path);
}

void tst_RecycleBinInfoFile::theNameIsTheLastComponent_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("backslashes") << u"C:\\a\\b.txt"_s << u"b.txt"_s;
    QTest::newRow("slashes") << u"C:/a/b.txt"_s << u"b.txt"_s;
    QTest::newRow("a backslash before a slash") << u"C:\\a/b.txt"_s << u"a/b.txt"_s;
    QTest::newRow("a slash before a backslash") << u"C:/a\\b.txt"_s << u"b.txt"_s;
    QTest::newRow("neither") << u"b.txt"_s << u"b.txt"_s;
    QTest::newRow("a backslash at the end") << u"C:\\a\\"_s << QString();
    QTest::newRow("nothing") << QString() << QString();
}

void tst_RecycleBinInfoFile::theNameIsTheLastComponent()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    QCOMPARE(recyclebin::lastComponent(path), name);
    QCOMPARE(parseInfo(infoVersion2(path, 1)).fileName, name);
}

void tst_RecycleBinInfoFile::unitsStayAsTheyAre()
{
    QString path = u"\uFEFFC:\\"_s;
    path += QChar(0xD83D); // half of a pair
    path += u"x\u0645\u202E"_s;
    path += QChar(0xDC00);
    QCOMPARE(parseInfo(infoVersion2(path, 1)).originalPath, path);
}

void tst_RecycleBinInfoFile::sizesAreUnsigned()
{
    QCOMPARE(parseInfo(infoVersion2(u"a"_s, 18446744073709551615ULL)).size, 18446744073709551615ULL);
}

void tst_RecycleBinInfoFile::anythingCanBeParsed()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    int withPath = 0;
    for (int length = 0; length <= 600; ++length) {
        for (int round = 0; round < 20; ++round) {
            const QByteArray bytes = randomFile(random, length);
            const RecycleBinItem parsed = parseInfo(bytes);
            if (length < 28) {
                QCOMPARE(parsed, RecycleBinItem());
                continue;
            }
            const QString path = expectedPath(bytes);
            QCOMPARE(parsed, item(recyclebin::lastComponent(path), path, byteByByte(bytes, 8, 8)));
            withPath += path.isEmpty() ? 0 : 1;
        }
    }
    QVERIFY(withPath > 500);
}

QUORVEX_SUITE(tst_RecycleBinInfoFile, QCoreApplication)
#include "tst_recyclebininfofile.moc"
