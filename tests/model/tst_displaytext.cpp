#include "model/displaytext.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_DisplayText : public QObject
{
    Q_OBJECT

private slots:
    void marks_data();
    void marks();
    void marksEveryControlCharacter();
    void keepsWhatIsCleanAsItIs();
};

void tst_DisplayText::marks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("line feed") << u"two\nlines"_s << u"two[U+000A]lines"_s;
    QTest::newRow("carriage return and tab") << u"a\r\tb"_s << u"a[U+000D][U+0009]b"_s;
    QTest::newRow("terminal colour sequence") << u"\u001B[31mred"_s << u"[U+001B][31mred"_s;
    QTest::newRow("nul") << QString(u"a\0b"_s) << u"a[U+0000]b"_s;
    QTest::newRow("one-byte control sequence introducer") << u"a\u009B31mb"_s << u"a[U+009B]31mb"_s;
    QTest::newRow("right-to-left override") << u"report\u202Efdp.exe"_s << u"report[U+202E]fdp.exe"_s;
    QTest::newRow("embeddings") << u"\u202Aa\u202Bb\u202Cc\u202D"_s
                                << u"[U+202A]a[U+202B]b[U+202C]c[U+202D]"_s;
    QTest::newRow("isolates") << u"\u2066a\u2067b\u2068c\u2069"_s << u"[U+2066]a[U+2067]b[U+2068]c[U+2069]"_s;
    QTest::newRow("marks") << u"a\u200Eb\u200Fc\u061Cd"_s << u"a[U+200E]b[U+200F]c[U+061C]d"_s;
    QTest::newRow("zero-width characters")
        << u"a\u200Bb\u200Cc\u200Dd\uFEFFe"_s << u"a[U+200B]b[U+200C]c[U+200D]d[U+FEFF]e"_s;
    QTest::newRow("line and paragraph separators") << u"a\u2028b\u2029c"_s << u"a[U+2028]b[U+2029]c"_s;
    QTest::newRow("tag outside the basic plane") << u"a\U000E0041b"_s << u"a[U+E0041]b"_s;
    QTest::newRow("lone high surrogate") << u"a"_s + QChar(0xD800) + u"b"_s << u"a[U+D800]b"_s;
    QTest::newRow("lone low surrogate") << u"a"_s + QChar(0xDC00) + u"b"_s << u"a[U+DC00]b"_s;
    QTest::newRow("byte that is no text") << u"caf"_s + QChar(0xDCE9) << u"caf[0xE9]"_s;
    QTest::newRow("first and last of the bytes")
        << QString(QChar(0xDC80)) + QChar(0xDCFF) << u"[0x80][0xFF]"_s;
    QTest::newRow("what is no byte") << QString(QChar(0xDC7F)) + QChar(0xDD00) << u"[U+DC7F][U+DD00]"_s;
    QTest::newRow("high surrogate at the end") << u"ab"_s + QChar(0xDBFF) << u"ab[U+DBFF]"_s;
    QTest::newRow("two high surrogates before a pair")
        << QChar(0xD83D) + u"\U0001F4BE"_s << u"[U+D83D]\U0001F4BE"_s;
    QTest::newRow("nothing else") << u"\u202E\n"_s << u"[U+202E][U+000A]"_s;
}

void tst_DisplayText::marks()
{
    QFETCH(QString, text);
    QTEST(displayText(text), "expected");
}

void tst_DisplayText::marksEveryControlCharacter()
{
    const auto mark = [](ushort code) { return u"[U+%1]"_s.arg(uint(code), 4, 16, QChar(u'0')).toUpper(); };
    for (ushort code = 0; code < 0x20; ++code)
        QCOMPARE(displayText(QChar(code)), mark(code));
    for (ushort code = 0x7F; code < 0xA0; ++code)
        QCOMPARE(displayText(QChar(code)), mark(code));
}

void tst_DisplayText::keepsWhatIsCleanAsItIs()
{
    for (const QString &text : {u"Contoso SSD 1 TB %1 \\ / \"'"_s, u"数据盘 東京 Привет עברית"_s,
                                u"\U0001F4BE disk"_s, u"e\u0301 \u00A0 \uFFFD \uE000"_s})
        QCOMPARE(displayText(text), text);
}

QUORVEX_SUITE(tst_DisplayText, QCoreApplication)
#include "tst_displaytext.moc"
