#include "engine/patterngenerator.h"
#include "support/suite.h"

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {
QByteArray filled(PatternGenerator &generator, qint64 size)
{
    QByteArray bytes(size, '\0');
    generator.fill(reinterpret_cast<std::byte *>(bytes.data()), size);
    return bytes;
}

// Single 64-bit draws, the last one cut off.
QByteArray drawn(QRandomGenerator &generator, qint64 size)
{
    QByteArray bytes;
    while (bytes.size() < size) {
        const quint64 word = qToLittleEndian(generator.generate64());
        bytes.append(QByteArrayView(reinterpret_cast<const char *>(&word), sizeof(word)));
    }
    return bytes.first(size);
}
} // namespace

class tst_PatternGenerator : public QObject
{
    Q_OBJECT

private slots:
    void fixedBytes_data();
    void fixedBytes();
    void singleDrawsAreThoseOfQtsGenerator();
    void everyShortLengthIsDrawnAs64BitWords();
    void thirteenBytesConsumeTwoWords();
    void longBufferIsDrawnAs64BitWords();
    void bulkEqualsPieceByPiece();
    void fillsAndSingleDrawsMix();
    void nothingBeyondTheSizeIsTouched();
    void unalignedDestination();
    void emptyAndNegativeSizesDrawNothing();
};

void tst_PatternGenerator::fixedBytes_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<QByteArray>("hex");
    QTest::newRow("0") << 0U << "c1ef265b93c01f52da1b1f0161a8f78230679113b2147a3cf4b6158633"_ba;
    QTest::newRow("1") << 1U << "e3afdc32d870d58e16685cb49e25f5b186f3d4a78af74c14d674d0d572"_ba;
    QTest::newRow("0xDEADBEEF") << 0xDEADBEEFU
                                << "3c39bddb33753c0adc5474a963b59c53bbf8d990703f8e165c0ccf4075"_ba;
}

void tst_PatternGenerator::fixedBytes()
{
    QFETCH(quint32, seed);
    QFETCH(QByteArray, hex);
    PatternGenerator generator(seed);
    QCOMPARE(filled(generator, 29).toHex(), hex);
}

void tst_PatternGenerator::singleDrawsAreThoseOfQtsGenerator()
{
    for (quint32 seed = 0; seed < 2000; seed += 7) {
        const quint32 spread = seed * 2654435761U;
        PatternGenerator ours(spread);
        QRandomGenerator reference(spread);
        for (int i = 0; i < 1500; ++i) // more than two blocks of 624
            QCOMPARE(ours.generate(), reference.generate());
    }
}

void tst_PatternGenerator::everyShortLengthIsDrawnAs64BitWords()
{
    for (qint64 size = 0; size <= 64; ++size) {
        PatternGenerator ours(42);
        QRandomGenerator reference(42);
        for (int i = 0; i < 200; ++i)
            QCOMPARE(filled(ours, size), drawn(reference, size));
    }
}

void tst_PatternGenerator::thirteenBytesConsumeTwoWords()
{
    PatternGenerator ours(7);
    QRandomGenerator reference(7);
    quint64 words[3];
    reference.fillRange(words);
    for (quint64 &word : words)
        word = qToLittleEndian(word);
    const QByteArray expected(reinterpret_cast<const char *>(words), sizeof(words));
    QCOMPARE(filled(ours, 13), expected.first(13));
    QCOMPARE(filled(ours, 8), expected.last(8));
}

void tst_PatternGenerator::longBufferIsDrawnAs64BitWords()
{
    const qint64 size = 1048576 + 5;
    PatternGenerator ours(0x12345678);
    QRandomGenerator reference(0x12345678);
    QVERIFY(filled(ours, size) == drawn(reference, size));
    QCOMPARE(ours.generate(), reference.generate());
}

void tst_PatternGenerator::bulkEqualsPieceByPiece()
{
    PatternGenerator bulk(99);
    PatternGenerator pieces(99);
    QByteArray joined;
    for (const qint64 size : {8, 16, 4096, 2496, 2488, 24, 65536, 8})
        joined += filled(pieces, size);
    QVERIFY(filled(bulk, joined.size()) == joined);
}

void tst_PatternGenerator::fillsAndSingleDrawsMix()
{
    PatternGenerator ours(5);
    QRandomGenerator reference(5);
    for (int i = 0; i < 1000; ++i) {
        QCOMPARE(ours.generate(), reference.generate());
        QCOMPARE(filled(ours, i % 37), drawn(reference, i % 37));
    }
}

void tst_PatternGenerator::nothingBeyondTheSizeIsTouched()
{
    for (qint64 size = 0; size < 40; ++size) {
        QByteArray bytes(64, '\x77');
        PatternGenerator generator(3);
        generator.fill(reinterpret_cast<std::byte *>(bytes.data()), size);
        QCOMPARE(bytes.sliced(size), QByteArray(64 - size, '\x77'));
    }
}

void tst_PatternGenerator::unalignedDestination()
{
    PatternGenerator aligned(11);
    PatternGenerator shifted(11);
    QByteArray bytes(10001, '\0');
    shifted.fill(reinterpret_cast<std::byte *>(bytes.data() + 1), 10000);
    QVERIFY(bytes.sliced(1) == filled(aligned, 10000));
}

void tst_PatternGenerator::emptyAndNegativeSizesDrawNothing()
{
    PatternGenerator ours(1);
    QRandomGenerator reference(1);
    ours.fill(nullptr, 0);
    ours.fill(nullptr, -8);
    QCOMPARE(ours.generate(), reference.generate());
}

QUORVEX_SUITE(tst_PatternGenerator, suites::NoApplication)
#include "tst_patterngenerator.moc"
