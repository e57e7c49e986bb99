#include "platform/filenames.h"
#include "support/suite.h"

#include <QRandomGenerator>
#include <QTest>

using platform::decodeName;
using platform::encodeName;
using platform::encodePath;

class tst_FileNames : public QObject
{
    Q_OBJECT

private slots:
    void textIsUtf8_data();
    void textIsUtf8();
    void undecodableBytesBecomeLoneSurrogates_data();
    void undecodableBytesBecomeLoneSurrogates();
    void everyPairOfBytesComesBack();
    void anyBytesComeBack();
    void differentBytesGiveDifferentNames();
    void surrogatesThatAreNoBytesNameNothingElse();
    void pathLosesItsLastSlashes_data();
    void pathLosesItsLastSlashes();
    void pathWithAZeroIsRefused();
};

void tst_FileNames::textIsUtf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("ascii") << QByteArray("/a b/c.txt") << QStringLiteral("/a b/c.txt");
    QTest::newRow("backslash stays") << QByteArray("a\\b") << QStringLiteral("a\\b");
    QTest::newRow("two bytes") << QByteArray("\xC3\xA9") << QStringLiteral("\u00E9");
    QTest::newRow("not composed") << QByteArray("e\xCC\x81") << QStringLiteral("e\u0301");
    QTest::newRow("three bytes") << QByteArray("\xE6\x96\x87") << QStringLiteral("文");
    QTest::newRow("four bytes") << QByteArray("\xF0\x9F\x97\x91") << QStringLiteral("\U0001F5D1");
    QTest::newRow("last code point") << QByteArray("\xF4\x8F\xBF\xBF") << QStringLiteral("\U0010FFFF");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFx") << QStringLiteral("\uFEFFx");
    QTest::newRow("replacement character") << QByteArray("\xEF\xBF\xBD") << QStringLiteral("\uFFFD");
}

void tst_FileNames::textIsUtf8()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QCOMPARE(decodeName(bytes), name);
    QCOMPARE(encodeName(name), bytes);
}

void tst_FileNames::undecodableBytesBecomeLoneSurrogates_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    const auto name = [](std::initializer_list<char16_t> units) {
        return QString(reinterpret_cast<const QChar *>(units.begin()), qsizetype(units.size()));
    };
    QTest::newRow("Latin-1") << QByteArray("caf\xE9") << name({u'c', u'a', u'f', 0xDCE9});
    QTest::newRow("continuation alone") << QByteArray("\x80z") << name({0xDC80, u'z'});
    QTest::newRow("cut off at the end") << QByteArray("a\xE6\x96") << name({u'a', 0xDCE6, 0xDC96});
    QTest::newRow("cut off in the middle") << QByteArray("\xF0\x9F/") << name({0xDCF0, 0xDC9F, u'/'});
    QTest::newRow("not the shortest slash") << QByteArray("\xC0\xAF") << name({0xDCC0, 0xDCAF});
    QTest::newRow("not the shortest of three")
        << QByteArray("\xE0\x82\xA9") << name({0xDCE0, 0xDC82, 0xDCA9});
    QTest::newRow("surrogate") << QByteArray("\xED\xB2\x80") << name({0xDCED, 0xDCB2, 0xDC80});
    QTest::newRow("above the last") << QByteArray("\xF4\x90\x80\x80")
                                    << name({0xDCF4, 0xDC90, 0xDC80, 0xDC80});
    QTest::newRow("never in UTF-8") << QByteArray("\xFF\xFE") << name({0xDCFF, 0xDCFE});
    QTest::newRow("after a pair") << QByteArray("\xF0\x9F\x97\x91\x91") << name({0xD83D, 0xDDD1, 0xDC91});
}

void tst_FileNames::undecodableBytesBecomeLoneSurrogates()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QCOMPARE(decodeName(bytes), name);
    QCOMPARE(encodeName(name), bytes);
}

void tst_FileNames::everyPairOfBytesComesBack()
{
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            const QByteArray bytes{QByteArray(1, char(first)) + char(second)};
            QCOMPARE(encodeName(decodeName(bytes)), bytes);
        }
    }
}

void tst_FileNames::anyBytesComeBack()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes;
        // Mostly bytes that begin, continue and break sequences.
        for (int i = random.bounded(1, 24); i > 0; --i)
            bytes += char(random.bounded(4) ? random.bounded(0x80, 0x100) : random.bounded(1, 0x80));
        QCOMPARE(encodeName(decodeName(bytes)), bytes);
    }
}

void tst_FileNames::differentBytesGiveDifferentNames()
{
    // Each of these looks the same on screen, or is the same to a lax decoder.
    const QByteArrayList alike{"\xC3\xA9", "\xE9", "e\xCC\x81", "\xE0\x83\xA9", "\xEF\xBB\xBF\xC3\xA9"};
    QStringList names;
    for (const QByteArray &bytes : alike)
        names.append(decodeName(bytes));
    QCOMPARE(names.removeDuplicates(), 0);
}

void tst_FileNames::surrogatesThatAreNoBytesNameNothingElse()
{
    for (const char16_t unit : {char16_t(0xD800), char16_t(0xDBFF), char16_t(0xDC00), char16_t(0xDC7F),
                                char16_t(0xDD00), char16_t(0xDFFF)}) {
        const QByteArray bytes = encodeName(QStringLiteral("a") + QChar(unit) + QStringLiteral("b"));
        QCOMPARE(bytes.size(), 5);
        QCOMPARE(bytes[1], '\xED');
    }
}

void tst_FileNames::pathLosesItsLastSlashes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("none") << QStringLiteral("/a/b") << QByteArray("/a/b");
    QTest::newRow("one") << QStringLiteral("/a/b/") << QByteArray("/a/b");
    QTest::newRow("several") << QStringLiteral("/a/b///") << QByteArray("/a/b");
    QTest::newRow("the root") << QStringLiteral("/") << QByteArray("/");
    QTest::newRow("the root again") << QStringLiteral("//") << QByteArray("/");
    QTest::newRow("empty") << QString() << QByteArray();
}

void tst_FileNames::pathLosesItsLastSlashes()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, bytes);
    const platform::Result<QByteArray> encoded = encodePath(path);
    QVERIFY(encoded.ok());
    QCOMPARE(encoded.value(), bytes);
}

void tst_FileNames::pathWithAZeroIsRefused()
{
    QCOMPARE(encodePath(QStringLiteral("/a") + QChar(u'\0') + QStringLiteral("b")).code(),
             quint32(platform::InvalidParameter));
}

QUORVEX_SUITE(tst_FileNames, suites::NoApplication)
#include "tst_filenames.moc"
