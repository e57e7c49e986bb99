#include "model/jsonwriter.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
using Layout = JsonWriter::Layout;

constexpr std::array bothLayouts{Layout::Indented, Layout::Compact};

template <typename Type>
concept Writable = requires(JsonWriter writer, Type content)
{
    writer.value(content);
};

static_assert(Writable<int> && Writable<double> && Writable<bool> && Writable<QString> &&
              Writable<QStringView>);
static_assert(!Writable<qint64> && !Writable<quint64> && !Writable<quint32> && !Writable<qsizetype>);
static_assert(!Writable<const char *> && !Writable<const void *>);

QByteArray arrayOf(const QString &text)
{
    JsonWriter writer(Layout::Compact);
    writer.beginArray().value(text).endArray();
    return writer.text();
}

QByteArray compact(const QByteArray &json)
{
    JsonWriter writer(Layout::Compact);
    return writer.raw(json) ? writer.text() : QByteArray();
}

/// Writes the content of Qt's own document. Qt sorts the keys, so that the two texts are comparable.
void write(JsonWriter &writer, const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        writer.beginObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            writer.key(it.key());
            write(writer, it.value());
        }
        writer.endObject();
        break;
    }
    case QJsonValue::Array:
        writer.beginArray();
        for (const QJsonValue &element : value.toArray())
            write(writer, element);
        writer.endArray();
        break;
    case QJsonValue::String:
        writer.value(value.toString());
        break;
    case QJsonValue::Double:
        writer.value(value.toDouble());
        break;
    case QJsonValue::Bool:
        writer.value(value.toBool());
        break;
    default:
        writer.nullValue();
    }
}

QJsonDocument sample()
{
    return QJsonDocument(QJsonObject{
        {u"a"_s, QJsonArray{}},
        {u"b"_s, QJsonObject{}},
        {u"c"_s,
         QJsonArray{1, u"two"_s, QJsonArray{}, QJsonObject{}, QJsonArray{QJsonArray{3}}, QJsonValue()}},
        {u"d"_s, QJsonObject{{u"x"_s, true}, {u"y"_s, false}, {u"z"_s, QJsonObject{{u"q"_s, -1.5}}}}},
        {u"e\"\n\\"_s, u"数据\u0007\U0001F4BE"_s},
    });
}
} // namespace

class tst_JsonWriter : public QObject
{
    Q_OBJECT

private slots:
    void indentedLayout();
    void compactLayout();
    void keysKeepTheirOrder();
    void indentedLooksLikeQtsOwn();
    void compactLooksLikeQtsOwn();
    void emptyDocuments();
    void everyUnitIsEscapedAsQtDoes();
    void everyUnitReadsBack();
    void longTextReadsBack();
    void loneSurrogatesAreReplaced_data();
    void loneSurrogatesAreReplaced();
    void keysAreEscaped();
    void latin1Strings();
    void integers();
    void doubles_data();
    void doubles();
    void notFiniteIsNull();
    void decimalsKeepEveryDigit();
    void membersAreKeysWithValues();
    void topLevelScalar();
    void rawIsBroughtIntoTheLayout();
    void rawInsideAnArray();
    void rawKeepsOrderAndSpelling();
    void rawStringsWithBracketsAndQuotes();
    void rawWithByteOrderMark();
    void rawWithLineFeedInAStringStaysOneLine();
    void rawRefusesWhatIsNoDocument_data();
    void rawRefusesWhatIsNoDocument();
};

void tst_JsonWriter::indentedLayout()
{
    JsonWriter writer;
    writer.beginObject()
        .key(u"b")
        .beginArray()
        .value(1)
        .value(true)
        .endArray()
        .key(u"a")
        .nullValue()
        .endObject();
    QCOMPARE(writer.text(), QByteArray("{\n"
                                       "    \"b\": [\n"
                                       "        1,\n"
                                       "        true\n"
                                       "    ],\n"
                                       "    \"a\": null\n"
                                       "}\n"));
}

void tst_JsonWriter::compactLayout()
{
    JsonWriter writer(Layout::Compact);
    writer.beginObject()
        .key(u"b")
        .beginArray()
        .value(1)
        .value(true)
        .endArray()
        .key(u"a")
        .nullValue()
        .endObject();
    QCOMPARE(writer.text(), QByteArray("{\"b\":[1,true],\"a\":null}"));
}

void tst_JsonWriter::keysKeepTheirOrder()
{
    JsonWriter writer(Layout::Compact);
    writer.beginObject().member(u"z", 1).member(u"a", 2).member(u"m", 3).endObject();
    QCOMPARE(writer.text(), QByteArray(R"({"z":1,"a":2,"m":3})"));
}

void tst_JsonWriter::indentedLooksLikeQtsOwn()
{
    JsonWriter writer(Layout::Indented);
    write(writer, sample().object());
    QCOMPARE(writer.text(), sample().toJson(QJsonDocument::Indented));
}

void tst_JsonWriter::compactLooksLikeQtsOwn()
{
    JsonWriter writer(Layout::Compact);
    write(writer, sample().object());
    QCOMPARE(writer.text(), sample().toJson(QJsonDocument::Compact));
}

void tst_JsonWriter::emptyDocuments()
{
    for (const Layout layout : bothLayouts) {
        const auto qtLayout = layout == Layout::Indented ? QJsonDocument::Indented : QJsonDocument::Compact;
        JsonWriter object(layout);
        object.beginObject().endObject();
        QCOMPARE(object.text(), QJsonDocument(QJsonObject()).toJson(qtLayout));
        JsonWriter array(layout);
        array.beginArray().endArray();
        QCOMPARE(array.text(), QJsonDocument(QJsonArray()).toJson(qtLayout));
    }
}

void tst_JsonWriter::everyUnitIsEscapedAsQtDoes()
{
    for (uint unit = 0; unit <= 0xFFFF; ++unit) {
        if (QChar::isSurrogate(unit))
            continue;
        const QString text{QChar(unit)};
        const QByteArray expected = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
        if (arrayOf(text) != expected)
            QFAIL(qPrintable(u"U+%1"_s.arg(unit, 4, 16, QLatin1Char('0'))));
    }
}

void tst_JsonWriter::everyUnitReadsBack()
{
    for (uint unit = 0; unit <= 0xFFFF; ++unit) {
        if (QChar::isSurrogate(unit))
            continue;
        const QString text = u"a"_s + QChar(unit) + u"b"_s;
        if (QJsonDocument::fromJson(arrayOf(text)).array().at(0).toString() != text)
            QFAIL(qPrintable(u"U+%1"_s.arg(unit, 4, 16, QLatin1Char('0'))));
    }
}

void tst_JsonWriter::longTextReadsBack()
{
    QString text =
        u"\"quoted\" C:\\path\\u0041 \b\f\n\r\t \u0000 \u001F \u007F \u2028 \U0001F4BE \U0010FFFF 数据 </x>"_s;
    text = text.repeated(1000);
    QCOMPARE(QJsonDocument::fromJson(arrayOf(text)).array().at(0).toString(), text);
}

void tst_JsonWriter::loneSurrogatesAreReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("high alone") << u"a"_s + QChar(0xD800) << u"a\uFFFD"_s;
    QTest::newRow("low alone") << QChar(0xDC00) + u"a"_s << u"\uFFFDa"_s;
    QTest::newRow("in the wrong order") << QString(QChar(0xDE00)) + QChar(0xD83D) << u"\uFFFD\uFFFD"_s;
    QTest::newRow("before a pair") << QChar(0xD83D) + u"\U0001F4BE"_s << u"\uFFFD\U0001F4BE"_s;
}

void tst_JsonWriter::loneSurrogatesAreReplaced()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(arrayOf(text), QByteArray("[\"" + expected.toUtf8() + "\"]"));
    QCOMPARE(QJsonDocument::fromJson(arrayOf(text)).array().at(0).toString(), expected);
}

void tst_JsonWriter::keysAreEscaped()
{
    const QString key = u"a\"b\\c\n\u0001"_s;
    JsonWriter writer(Layout::Compact);
    writer.beginObject().member(key, 1).endObject();
    QCOMPARE(writer.text(), QByteArray(R"({"a\"b\\c\n\u0001":1})"));
    QCOMPARE(QJsonDocument::fromJson(writer.text()).object().value(key).toInt(), 1);
}

void tst_JsonWriter::latin1Strings()
{
    JsonWriter writer(Layout::Compact);
    writer.beginArray().value(QLatin1String("a\xE9")).value("b"_L1).endArray();
    QCOMPARE(writer.text(), QByteArray("[\"a\xC3\xA9\",\"b\"]"));
}

void tst_JsonWriter::integers()
{
    JsonWriter writer(Layout::Compact);
    writer.beginArray()
        .value(0)
        .value(std::numeric_limits<int>::min())
        .value(std::numeric_limits<int>::max())
        .value(short(-7))
        .endArray();
    QCOMPARE(writer.text(), QByteArray("[0,-2147483648,2147483647,-7]"));
}

void tst_JsonWriter::doubles_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("tenth") << 0.1;
    QTest::newRow("third") << 1.0 / 3.0;
    QTest::newRow("whole") << 42.0;
    QTest::newRow("negative") << -2.5;
    QTest::newRow("large") << 1e300;
    QTest::newRow("largest") << std::numeric_limits<double>::max();
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min();
}

void tst_JsonWriter::doubles()
{
    QFETCH(double, number);
    JsonWriter writer(Layout::Compact);
    writer.beginArray().value(number).endArray();
    const QByteArray text = writer.text();
    bool ok = false;
    QVERIFY(text.sliced(1, text.size() - 2).toDouble(&ok) == number);
    QVERIFY(ok);
    QVERIFY(QJsonDocument::fromJson(text).array().at(0).toDouble() == number);
}

void tst_JsonWriter::notFiniteIsNull()
{
    JsonWriter writer(Layout::Compact);
    writer.beginArray()
        .value(std::numeric_limits<double>::infinity())
        .value(-std::numeric_limits<double>::infinity())
        .value(std::nan(""))
        .endArray();
    QCOMPARE(writer.text(), QByteArray("[null,null,null]"));
}

void tst_JsonWriter::decimalsKeepEveryDigit()
{
    JsonWriter writer(Layout::Compact);
    writer.beginArray()
        .decimal(std::numeric_limits<quint64>::max())
        .decimal(std::numeric_limits<qint64>::min())
        .decimal(0)
        .endArray();
    QCOMPARE(writer.text(), QByteArray(R"(["18446744073709551615","-9223372036854775808","0"])"));
}

void tst_JsonWriter::membersAreKeysWithValues()
{
    JsonWriter writer(Layout::Compact);
    writer.beginObject()
        .member(u"string", u"text"_s)
        .member(u"literal", u"text")
        .member(u"latin", "text"_L1)
        .member(u"int", 1)
        .member(u"double", 1.5)
        .member(u"bool", false)
        .decimalMember(u"bytes", quint64(5))
        .endObject();
    QCOMPARE(writer.text(), QByteArray(R"({"string":"text","literal":"text","latin":"text","int":1,)"
                                       R"("double":1.5,"bool":false,"bytes":"5"})"));
}

void tst_JsonWriter::topLevelScalar()
{
    JsonWriter writer(Layout::Compact);
    writer.value(u"x");
    QCOMPARE(writer.text(), QByteArray("\"x\""));
}

void tst_JsonWriter::rawIsBroughtIntoTheLayout()
{
    for (const Layout inner : bothLayouts) {
        for (const Layout outer : bothLayouts) {
            JsonWriter built(inner);
            write(built, sample().object());
            JsonWriter writer(outer);
            writer.beginObject().key(u"r");
            QVERIFY(writer.raw(built.text()));
            writer.member(u"s", 1).endObject();

            const QJsonDocument expected(QJsonObject{{u"r"_s, sample().object()}, {u"s"_s, 1}});
            QCOMPARE(writer.text(), expected.toJson(outer == Layout::Indented ? QJsonDocument::Indented
                                                                              : QJsonDocument::Compact));
        }
    }
}

void tst_JsonWriter::rawInsideAnArray()
{
    JsonWriter writer(Layout::Compact);
    writer.beginArray().value(1);
    QVERIFY(writer.raw("[ ]"));
    QVERIFY(writer.raw("{ }"));
    writer.value(2).endArray();
    QCOMPARE(writer.text(), QByteArray("[1,[],{},2]"));
}

void tst_JsonWriter::rawKeepsOrderAndSpelling()
{
    QCOMPARE(compact(" { \"z\" : 1.0 ,\t\"a\" : -0.5E+3 ,\r\n\"m\" : \"\\u0041\\/\" } "),
             QByteArray(R"({"z":1.0,"a":-0.5E+3,"m":"\u0041\/"})"));
}

void tst_JsonWriter::rawStringsWithBracketsAndQuotes()
{
    const QByteArray json = R"({"a{}[],: \" \\":"x\\","b":["\\\"]",true,false,null]})";
    QCOMPARE(compact(json), json);
}

void tst_JsonWriter::rawWithByteOrderMark()
{
    QCOMPARE(compact("\xEF\xBB\xBF{\"a\": 1}"), QByteArray(R"({"a":1})"));
}

void tst_JsonWriter::rawWithLineFeedInAStringStaysOneLine()
{
    QCOMPARE(compact("[\"a\nb\tc\", {\"k\n\": 1}]"), QByteArray(R"(["a\nb\tc",{"k\n":1}])"));
}

void tst_JsonWriter::rawRefusesWhatIsNoDocument_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("not json");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("string") << QByteArray("\"x\"");
    QTest::newRow("not closed") << QByteArray("{\"a\": [1");
    QTest::newRow("string not closed") << QByteArray("[\"a]");
    QTest::newRow("closed twice") << QByteArray("{}}");
    QTest::newRow("two documents") << QByteArray("{}{}");
    QTest::newRow("no UTF-8") << QByteArray("[\"\xFF\"]");
}

void tst_JsonWriter::rawRefusesWhatIsNoDocument()
{
    QFETCH(QByteArray, json);
    JsonWriter writer(Layout::Compact);
    writer.beginObject().key(u"r");
    QVERIFY(!writer.raw(json));
    writer.nullValue().endObject(); // nothing was written, so the key still waits for its value
    QCOMPARE(writer.text(), QByteArray(R"({"r":null})"));
}

QUORVEX_SUITE(tst_JsonWriter, QCoreApplication)
#include "tst_jsonwriter.moc"
