#include "engine/chunkpipeline.h"
#include "engine/patterngenerator.h"
#include "support/suite.h"

#include "refusedthreads.h"

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstring>

namespace {
constexpr qint64 Limit = 64 * 1024;
const PassPattern randomPass{PatternType::Random};

PassPattern constantPass(quint8 value)
{
    return {PatternType::Custom, value};
}

// Fills like the workers and counts the calls.
struct Source
{
    void operator()(std::byte *data, qint64 size, const PassPattern &pattern)
    {
        ++calls;
        filled += size;
        switch (pattern.type) {
        case PatternType::Random:
            generator.fill(data, size);
            break;
        case PatternType::Complement:
            std::transform(data, data + size, data, [](std::byte b) { return ~b; });
            break;
        default:
            std::memset(data, pattern.value, static_cast<std::size_t>(size));
        }
    }
    PatternGenerator generator{4711};
    int calls = 0;
    qint64 filled = 0;
};

QByteArray taken(ChunkPipeline &chunks, qint64 size)
{
    return QByteArray(reinterpret_cast<const char *>(chunks.take(size)), size);
}

QByteArray generated(qint64 size)
{
    PatternGenerator generator(4711);
    QByteArray bytes(size, '\0');
    generator.fill(reinterpret_cast<std::byte *>(bytes.data()), size);
    return bytes;
}
} // namespace

class tst_ChunkPipeline : public QObject
{
    Q_OBJECT

private slots:
    void chunksBeginOnAPageBoundary();
    void randomChunksAreOneUnbrokenSequence_data();
    void randomChunksAreOneUnbrokenSequence();
    void fewerBytesThanPreparedLoseNothing();
    void randomSequenceSurvivesAConstantPass();
    void preparingDoesNotWaitForTheData();
    void withoutAHelperNothingIsLost();
    void constantDataIsFilledOncePerPass();
    void laterLargerChunkIsFilledWholly();
    void complementIsThatOfThePassBefore();
    void complementOfARandomPassIsNotWhatItWrote();
    void memoryThatIsNotToBeHad();
    void destructionWaitsForTheHelper();
};

void tst_ChunkPipeline::chunksBeginOnAPageBoundary()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(reinterpret_cast<quintptr>(chunks.take(512)) % 4096, quintptr(0));
        chunks.prepare(1024);
    }
}

void tst_ChunkPipeline::randomChunksAreOneUnbrokenSequence_data()
{
    QTest::addColumn<QList<qint64>>("sizes");
    QTest::addColumn<QList<qint64>>("prepared"); // size prepared after each chunk
    using Sizes = QList<qint64>;
    QTest::newRow("nothing ahead") << Sizes{512, 1024, 512} << Sizes{0, 0, 0};
    QTest::newRow("as expected") << Sizes{Limit, Limit, 512} << Sizes{Limit, 512, 0};
    QTest::newRow("more than expected") << Sizes{512, 2048, Limit} << Sizes{512, 1024, 0};
    QTest::newRow("fewer than expected") << Sizes{Limit, 512, Limit, 512} << Sizes{Limit, 512, Limit, 0};
    QTest::newRow("far fewer, again and again")
        << Sizes{512, 512, 512, 512, 512, Limit} << Sizes{Limit, 2048, 0, 4096, 8, 0};
}

void tst_ChunkPipeline::randomChunksAreOneUnbrokenSequence()
{
    QFETCH(QList<qint64>, sizes);
    QFETCH(QList<qint64>, prepared);
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    QByteArray bytes;
    for (qsizetype i = 0; i < sizes.size(); ++i) {
        const std::byte *chunk = chunks.take(sizes[i]);
        chunks.prepare(prepared[i]);
        bytes.append(reinterpret_cast<const char *>(chunk), sizes[i]);
    }
    QVERIFY(bytes == generated(bytes.size()));
}

void tst_ChunkPipeline::fewerBytesThanPreparedLoseNothing()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator choice(seed);
    const auto size = [&choice](int from) { return qint64(choice.bounded(from, Limit / 512 + 1)) * 512; };
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    QByteArray bytes;
    for (int i = 0; i < 300; ++i) {
        if (choice.bounded(10) == 0)
            QVERIFY(chunks.beginPass(randomPass, Limit));
        const qint64 count = size(1);
        const std::byte *chunk = chunks.take(count);
        chunks.prepare(size(0));
        bytes.append(reinterpret_cast<const char *>(chunk), count);
    }
    QVERIFY(bytes == generated(bytes.size()));
}

void tst_ChunkPipeline::randomSequenceSurvivesAConstantPass()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    QByteArray bytes = taken(chunks, 4096);
    chunks.prepare(8192);
    QVERIFY(chunks.beginPass(constantPass(0x11), Limit));
    QCOMPARE(taken(chunks, Limit), QByteArray(Limit, '\x11'));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    bytes += taken(chunks, 1024);
    bytes += taken(chunks, Limit);
    QVERIFY(bytes == generated(bytes.size()));
}

void tst_ChunkPipeline::preparingDoesNotWaitForTheData()
{
    QSemaphore allowed;
    std::atomic<int> waitsInVain{0};
    QThread *filledOn = nullptr;
    ChunkPipeline chunks([&](std::byte *data, qint64 size, const PassPattern &) {
        if (!allowed.tryAcquire(1, 60'000))
            ++waitsInVain;
        filledOn = QThread::currentThread();
        std::memset(data, 0x3C, static_cast<std::size_t>(size));
    });
    QVERIFY(chunks.beginPass(randomPass, Limit));
    allowed.release();
    chunks.take(512);
    QCOMPARE(filledOn, QThread::currentThread());
    // prepare() returns before the data is produced, so that the caller can write meanwhile.
    chunks.prepare(512);
    allowed.release();
    QCOMPARE(taken(chunks, 512), QByteArray(512, '\x3C'));
    QCOMPARE(waitsInVain.load(), 0);
    QVERIFY(filledOn != QThread::currentThread() || QThread::idealThreadCount() < 1);
}

void tst_ChunkPipeline::withoutAHelperNothingIsLost()
{
    if (!RefusedThreads::isPossible())
        QSKIP(RefusedThreads::whyNot);
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    QByteArray bytes = taken(chunks, 512);
    chunks.prepare(4096);
    bytes += taken(chunks, 1024); // leaves 3072 bytes that the helper produced
    {
        const RefusedThreads refused;
        chunks.prepare(Limit);
        bytes += taken(chunks, Limit);
        chunks.prepare(Limit);
        QCOMPARE(refused.count(), 2);
    }
    bytes += taken(chunks, 2048);
    chunks.prepare(Limit);
    bytes += taken(chunks, Limit);
    QVERIFY(bytes == generated(bytes.size()));
}

void tst_ChunkPipeline::constantDataIsFilledOncePerPass()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    for (const quint8 value : {0x00, 0xAA, 0xAA}) {
        source.calls = 0;
        QVERIFY(chunks.beginPass(constantPass(value), Limit));
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(taken(chunks, Limit), QByteArray(Limit, static_cast<char>(value)));
            chunks.prepare(Limit);
        }
        QCOMPARE(taken(chunks, 512), QByteArray(512, static_cast<char>(value)));
        QCOMPARE(source.calls, 1);
    }
}

void tst_ChunkPipeline::laterLargerChunkIsFilledWholly()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(constantPass(0x21), Limit));
    QCOMPARE(taken(chunks, 512), QByteArray(512, '\x21'));
    QCOMPARE(taken(chunks, Limit), QByteArray(Limit, '\x21'));
    QCOMPARE(source.filled, Limit);
}

void tst_ChunkPipeline::complementIsThatOfThePassBefore()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(constantPass(0x0F), Limit));
    chunks.take(Limit);
    QVERIFY(chunks.beginPass({PatternType::Complement}, Limit));
    // Every chunk of the pass is inverted, not every other one.
    for (int i = 0; i < 3; ++i)
        QCOMPARE(taken(chunks, Limit), QByteArray(Limit, '\xF0'));
    QVERIFY(chunks.beginPass({PatternType::Complement}, Limit));
    QCOMPARE(taken(chunks, Limit), QByteArray(Limit, '\x0F'));
}

void tst_ChunkPipeline::complementOfARandomPassIsNotWhatItWrote()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    QByteArray written = taken(chunks, Limit);
    QVERIFY(chunks.beginPass({PatternType::Complement}, Limit));
    for (char &byte : written)
        byte = static_cast<char>(~byte);
    QVERIFY(taken(chunks, Limit) == written);
}

void tst_ChunkPipeline::memoryThatIsNotToBeHad()
{
    Source source;
    ChunkPipeline chunks(std::ref(source));
    QVERIFY(!chunks.beginPass(constantPass(0), qint64(1) << 60));
    QVERIFY(!chunks.beginPass(randomPass, qint64(1) << 60));
    QVERIFY(chunks.beginPass(randomPass, Limit));
    QVERIFY(taken(chunks, Limit) == generated(Limit));
}

void tst_ChunkPipeline::destructionWaitsForTheHelper()
{
    Source source;
    {
        ChunkPipeline chunks([&source](std::byte *data, qint64 size, const PassPattern &pattern) {
            QThread::msleep(20);
            source(data, size, pattern);
        });
        QVERIFY(chunks.beginPass(randomPass, Limit));
        chunks.take(512);
        chunks.prepare(Limit);
    }
    QCOMPARE(source.filled, 512 + Limit);
}

QUORVEX_SUITE(tst_ChunkPipeline, suites::NoApplication)
#include "tst_chunkpipeline.moc"
