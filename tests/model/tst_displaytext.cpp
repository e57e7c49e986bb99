#include "model/displaytext.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_DisplayText : public QObject
{
    Q_OBJECT

private slots:
    void cleans_data();
    void cleans();
    void removesEveryControlCharacter();
    void keepsWhatIsCleanAsItIs();
};

void tst_DisplayText::cleans_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("line feed") << u"two\nlines"_s << u"twolines"_s;
    QTest::newRow("carriage return and tab") << u"a\r\tb"_s << u"ab"_s;
    QTest::newRow("terminal colour sequence loses its escape") << u"\u001B[31mred"_s << u"[31mred"_s;
    QTest::newRow("nul") << QString(u"a\0b"_s) << u"ab"_s;
    QTest::newRow("one-byte control sequence introducer") << u"a\u009B31mb"_s << u"a31mb"_s;
    QTest::newRow("right-to-left override") << u"report\u202Efdp.exe"_s << u"reportfdp.exe"_s;
    QTest::newRow("embeddings") << u"\u202Aa\u202Bb\u202Cc\u202D"_s << u"abc"_s;
    QTest::newRow("isolates") << u"\u2066a\u2067b\u2068c\u2069"_s << u"abc"_s;
    QTest::newRow("marks") << u"a\u200Eb\u200Fc\u061Cd"_s << u"abcd"_s;
    QTest::newRow("zero-width characters") << u"a\u200Bb\u200Cc\u200Dd\uFEFFe"_s << u"abcde"_s;
    QTest::newRow("line and paragraph separators") << u"a\u2028b\u2029c"_s << u"abc"_s;
    QTest::newRow("tag outside the basic plane") << u"a\U000E0041b"_s << u"ab"_s;
    QTest::newRow("lone high surrogate") << u"a"_s + QChar(0xD800) + u"b"_s << u"ab"_s;
    QTest::newRow("lone low surrogate") << u"a"_s + QChar(0xDC00) + u"b"_s << u"ab"_s;
    QTest::newRow("high surrogate at the end") << u"ab"_s + QChar(0xDBFF) << u"ab"_s;
    QTest::newRow("two high surrogates before a pair") << QChar(0xD83D) + u"\U0001F4BE"_s << u"\U0001F4BE"_s;
    QTest::newRow("nothing is left") << u"\u202E\n"_s << u""_s;
}

void tst_DisplayText::cleans()
{
    QFETCH(QString, text);
    QTEST(displayText(text), "expected");
}

void tst_DisplayText::removesEveryControlCharacter()
{
    for (ushort code = 0; code < 0x20; ++code)
        QCOMPARE(displayText(QChar(code)), QString());
    for (ushort code = 0x7F; code < 0xA0; ++code)
        QCOMPARE(displayText(QChar(code)), QString());
}

void tst_DisplayText::keepsWhatIsCleanAsItIs()
{
    for (const QString &text : {u"Contoso SSD 1 TB %1 \\ / \"'"_s, u"数据盘 東京 Привет עברית"_s,
                                u"\U0001F4BE disk"_s, u"e\u0301 \u00A0 \uFFFD \uE000"_s})
        QCOMPARE(displayText(text), text);
}

QUORVEX_SUITE(tst_DisplayText, QCoreApplication)
#include "tst_displaytext.moc"
