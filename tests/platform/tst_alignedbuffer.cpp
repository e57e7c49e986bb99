#include "platform/alignedbuffer.h"
#include "support/suite.h"

#include <QTest>

#include <algorithm>
#include <cstdint>
#include <limits>

using platform::AlignedBuffer;

class tst_AlignedBuffer : public QObject
{
    Q_OBJECT

private slots:
    void beginsOnAPageAndIsZero_data();
    void beginsOnAPageAndIsZero();
    void sizesBelowOneGiveNoBuffer();
    void whatIsTooLargeGivesNoBuffer();
    void movingHandsTheMemoryOver();
};

void tst_AlignedBuffer::beginsOnAPageAndIsZero_data()
{
    QTest::addColumn<qint64>("size");
    for (const qint64 size : {1, 511, 4096, 4097, 16 * 1024 * 1024})
        QTest::addRow("%lld", static_cast<long long>(size)) << size;
}

void tst_AlignedBuffer::beginsOnAPageAndIsZero()
{
    QFETCH(qint64, size);
    AlignedBuffer buffer(size);
    QVERIFY(!buffer.isNull());
    QCOMPARE(buffer.size(), size);
    QCOMPARE(reinterpret_cast<std::uintptr_t>(buffer.data()) % 4096, std::uintptr_t(0));
    QVERIFY(std::all_of(buffer.data(), buffer.data() + size, [](std::byte b) { return b == std::byte{}; }));
    std::fill_n(buffer.data(), size, std::byte{0xFF});
    QCOMPARE(buffer.data()[size - 1], std::byte{0xFF});
}

void tst_AlignedBuffer::sizesBelowOneGiveNoBuffer()
{
    QVERIFY(AlignedBuffer().isNull());
    QVERIFY(AlignedBuffer(0).isNull());
    QVERIFY(AlignedBuffer(-1).isNull());
    QCOMPARE(AlignedBuffer(-1).size(), qint64(0));
}

void tst_AlignedBuffer::whatIsTooLargeGivesNoBuffer()
{
    const AlignedBuffer buffer(std::numeric_limits<qint64>::max());
    QVERIFY(buffer.isNull());
    QCOMPARE(buffer.size(), qint64(0));
}

void tst_AlignedBuffer::movingHandsTheMemoryOver()
{
    AlignedBuffer first(4096);
    std::byte *const memory = first.data();
    memory[0] = std::byte{7};
    AlignedBuffer second(std::move(first));
    QCOMPARE(second.data(), memory);
    AlignedBuffer third(8192);
    third = std::move(second);
    QCOMPARE(third.data(), memory);
    QCOMPARE(third.size(), qint64(4096));
    QCOMPARE(third.data()[0], std::byte{7});
}

QUORVEX_SUITE(tst_AlignedBuffer, suites::NoApplication)
#include "tst_alignedbuffer.moc"
