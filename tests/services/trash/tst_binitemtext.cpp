#include "services/trash/binitemtext.h"
#include "services/trash/recyclebininfofile.h"
#include "support/infofiles.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class tst_BinItemText : public QObject
{
    Q_OBJECT

private slots:
    void pathsEndAtTheirFirstZero();
    void whatStandsBehindTheZeroGivesNoName();
    void namesWithoutAZeroAreAsRecorded();
    void withoutARecordedNameItIsThatInTheBin();
    void sizes_data();
    void sizes();
    void detailsTellWhatIsWrong();
    void impossibleSizesAreCounted();
    void sumsDoNotWrap();

private:
    static constexpr quint64 Largest = std::numeric_limits<quint64>::max();
    static RecycleBinItem item(const QString &name, const QString &path, quint64 size = 0)
    {
        RecycleBinItem item;
        item.fileName = name;
        item.originalPath = path;
        item.size = size;
        return item;
    }
};

void tst_BinItemText::pathsEndAtTheirFirstZero()
{
    const RecycleBinItem old = recyclebin::parseInfo(infoVersion1(u"C:\\a\\b.txt"_s, 9));
    QVERIFY(old.originalPath.size() > 200); // the record stays as it is
    QCOMPARE(BinItemText::originalPath(old), u"C:\\a\\b.txt"_s);
    QCOMPARE(BinItemText::fileName(old), u"b.txt"_s);
    QCOMPARE(BinItemText::details(old), u"C:\\a\\b.txt"_s);
}

void tst_BinItemText::whatStandsBehindTheZeroGivesNoName()
{
    const QString rest = QString(u"C:\\a\\b.txt\0\\harmless.txt"_s);
    const RecycleBinItem old = recyclebin::parseInfo(infoVersion1(rest, 9));
    QCOMPARE(BinItemText::originalPath(old), u"C:\\a\\b.txt"_s);
    QCOMPARE(BinItemText::fileName(old), u"b.txt"_s);
}

void tst_BinItemText::namesWithoutAZeroAreAsRecorded()
{
    // On Linux names may contain the folder separator of other systems.
    QCOMPARE(BinItemText::fileName(item(u"a\\b"_s, u"/tmp/a\\b"_s)), u"a\\b"_s);
}

void tst_BinItemText::withoutARecordedNameItIsThatInTheBin()
{
    RecycleBinItem nameless = item({}, QString(u"\0C:\\a"_s));
    nameless.recyclePath = u"/bin/$R1.txt"_s;
    QCOMPARE(BinItemText::fileName(nameless), u"$R1.txt"_s);
    nameless.originalPath.clear();
    QCOMPARE(BinItemText::fileName(nameless), u"$R1.txt"_s);
}

void tst_BinItemText::sizes_data()
{
    QTest::addColumn<quint64>("size");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << quint64(4096) << u"4.00 KB"_s;
    QTest::newRow("the largest that can be") << Largest / 2 << u"8192.00 PB"_s;
    QTest::newRow("the smallest that cannot") << Largest / 2 + 1 << u"8192.00 PB, an impossible size"_s;
    QTest::newRow("all bits") << Largest << u"16384.00 PB, an impossible size"_s;
}

void tst_BinItemText::sizes()
{
    QFETCH(const quint64, size);
    QTEST(BinItemText::size(item(u"a"_s, u"C:\\a"_s, size)), "expected");
}

void tst_BinItemText::detailsTellWhatIsWrong()
{
    QCOMPARE(BinItemText::details(item(u"a"_s, u"C:\\\u202Ea"_s, 1)), u"C:\\[U+202E]a"_s);
    QCOMPARE(BinItemText::details(item(u"a"_s, u"C:\\a"_s, Largest)),
             u"C:\\a\nIts record says 18446744073709551615 bytes, more than any file can have."_s);
}

void tst_BinItemText::impossibleSizesAreCounted()
{
    RecycleBinInfo found;
    found.add(item(u"a"_s, u"C:\\a"_s, 5));
    QCOMPARE(BinItemText::impossibleSizes(found), QString());
    found.add(item(u"b"_s, u"C:\\b"_s, Largest));
    found.add(item(u"c"_s, u"C:\\c"_s, Largest - 1));
    QCOMPARE(BinItemText::impossibleSizes(found), u"Impossible sizes in the sum: 2"_s);
}

void tst_BinItemText::sumsDoNotWrap()
{
    RecycleBinInfo found;
    found.add(item(u"a"_s, u"C:\\a"_s, Largest - 5));
    QCOMPARE(found.totalSize, Largest - 5);
    found.add(item(u"b"_s, u"C:\\b"_s, 5));
    QCOMPARE(found.totalSize, Largest);
    found.add(item(u"c"_s, u"C:\\c"_s, 1));
    QCOMPARE(found.totalSize, Largest);
    found.unrecorded = {item(u"d"_s, {}, Largest), item(u"e"_s, {}, 2)};
    QCOMPARE(found.unrecordedSize(), Largest);
}

QUORVEX_SUITE(tst_BinItemText, QCoreApplication)
#include "tst_binitemtext.moc"
