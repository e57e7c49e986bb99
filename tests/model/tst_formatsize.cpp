#include "model/formatsize.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class tst_FormatSize : public QObject
{
    Q_OBJECT

private slots:
    void formats_data();
    void formats();
    void ignoresTheLocale();
};

void tst_FormatSize::formats_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("expected");

    QTest::newRow("zero") << qint64(0) << u"0 B"_s;
    QTest::newRow("one") << qint64(1) << u"1 B"_s;
    QTest::newRow("a sector") << qint64(512) << u"512 B"_s;
    QTest::newRow("last of the bytes") << qint64(1023) << u"1023 B"_s;
    QTest::newRow("first of the kilobytes") << qint64(1024) << u"1.00 KB"_s;
    QTest::newRow("a half") << qint64(1536) << u"1.50 KB"_s;
    QTest::newRow("rounding up stays in its unit") << qint64(1048575) << u"1024.00 KB"_s;
    QTest::newRow("megabyte") << (qint64(1) << 20) << u"1.00 MB"_s;
    QTest::newRow("gigabyte") << (qint64(1) << 30) << u"1.00 GB"_s;
    QTest::newRow("one and a half gigabytes") << qint64(1610612736) << u"1.50 GB"_s;
    QTest::newRow("a drive sold as 1 TB") << qint64(1000204886016) << u"931.51 GB"_s;
    QTest::newRow("terabyte") << (qint64(1) << 40) << u"1.00 TB"_s;
    QTest::newRow("petabyte") << (qint64(1) << 50) << u"1.00 PB"_s;
    QTest::newRow("the unit never passes PB") << (qint64(1) << 60) << u"1024.00 PB"_s;
    QTest::newRow("largest signed") << std::numeric_limits<qint64>::max() << u"8192.00 PB"_s;
    QTest::newRow("negative counts as unsigned") << qint64(-1) << u"16384.00 PB"_s;
    QTest::newRow("most negative") << std::numeric_limits<qint64>::min() << u"8192.00 PB"_s;
}

void tst_FormatSize::formats()
{
    QFETCH(qint64, bytes);
    QTEST(formatSize(bytes), "expected");
}

void tst_FormatSize::ignoresTheLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = formatSize(qint64(1234567890));
    QLocale::setDefault(before);
    QCOMPARE(text, u"1.15 GB"_s);
}

QUORVEX_SUITE(tst_FormatSize, QCoreApplication)
#include "tst_formatsize.moc"
