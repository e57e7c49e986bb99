#include "markingtranslator.h"
#include "model/wipemethod.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {
/// "0" for a pass of zeros, "1" for ones, "R" for random, two hexadecimal digits for a byte, followed by "v"
/// for verification.
QString passText(const PassPattern &pass)
{
    QString text;
    if (pass.type == PatternType::Zeros && pass.value == 0)
        text = u"0"_s;
    else if (pass.type == PatternType::Ones && pass.value == 0xFF)
        text = u"1"_s;
    else if (pass.type == PatternType::Random && pass.value == 0)
        text = u"R"_s;
    else if (pass.type == PatternType::Custom)
        text = u"%1"_s.arg(uint(pass.value), 2, 16, QLatin1Char('0')).toUpper();
    else
        text = u"?"_s;
    return pass.verify ? text + u'v' : text;
}

QString passesText(const WipeMethod &method)
{
    QStringList texts;
    for (const PassPattern &pass : method.passes)
        texts.append(passText(pass));
    return texts.join(u' ');
}
} // namespace

class tst_WipeMethod : public QObject
{
    Q_OBJECT

private slots:
    void patternNumbersAreFixed();
    void methodNumbersAreFixed();
    void passDefaults();
    void standards_data();
    void standards();
    void defaultIsNist();
    void allMethodsComeInTypeOrder();
    void unknownTypeIsNistWithTheNumberAskedFor_data();
    void unknownTypeIsNistWithTheNumberAskedFor();
    void gutmannEntries();
    void onlyTheLastPassIsVerified();
    void dodHasSevenPassesAtTheLevelOfVsitr();
    void passCountIsTheLengthOfTheList();
    void levelNames_data();
    void levelNames();
    void descriptionsAndLevelsAreTranslatedAndNamesAreNot();
    void comparesByValue();
    void travelsInAVariant();
};

void tst_WipeMethod::patternNumbersAreFixed()
{
    QCOMPARE(qint32(PatternType::Zeros), 0);
    QCOMPARE(qint32(PatternType::Ones), 1);
    QCOMPARE(qint32(PatternType::Random), 2);
    QCOMPARE(qint32(PatternType::Custom), 3);
    QCOMPARE(qint32(PatternType::Complement), 4);
    QCOMPARE(sizeof(PatternType), sizeof(qint32));
}

void tst_WipeMethod::methodNumbersAreFixed()
{
    QCOMPARE(qint32(WipeMethod::Nist80088), 0);
    QCOMPARE(qint32(WipeMethod::BritishHmgIs5), 1);
    QCOMPARE(qint32(WipeMethod::Dod522022M), 2);
    QCOMPARE(qint32(WipeMethod::GermanVsitr), 3);
    QCOMPARE(qint32(WipeMethod::Gutmann), 4);
}

void tst_WipeMethod::passDefaults()
{
    const PassPattern pass;
    QCOMPARE(pass.type, PatternType::Zeros);
    QCOMPARE(pass.value, quint8(0));
    QVERIFY(!pass.verify);
}

void tst_WipeMethod::standards_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("passes");

    QTest::newRow("NIST") << 0 << u"NIST 800-88"_s
                          << u"美国国家标准技术研究院标准，单次覆写，适用于大多数场景"_s << 1 << u"0v"_s;
    QTest::newRow("HMG") << 1 << u"British HMG IS5"_s << u"英国政府安全标准，2次覆写"_s << 2 << u"0 Rv"_s;
    QTest::newRow("DoD") << 2 << u"DoD 5220.22-M"_s << u"美国国防部标准，7次覆写，军事级别安全"_s << 4
                         << u"0 1 R 0 1 R Rv"_s;
    QTest::newRow("VSITR") << 3 << u"German VSITR"_s << u"德国联邦信息安全办公室标准，7次覆写"_s << 4
                           << u"0 1 0 1 0 1 AAv"_s;
    QTest::newRow("Gutmann") << 4 << u"Gutmann"_s << u"Peter Gutmann提出的最高安全标准，35次覆写"_s << 5
                             << u"R R R R 55 AA 92 49 24 00 11 22 33 44 55 66 77 88 99 AA BB CC DD EE FF "
                                "92 49 24 6D B6 DB R R R Rv"_s;
}

void tst_WipeMethod::standards()
{
    QFETCH(int, type);
    const WipeMethod method = WipeMethod::fromType(type);
    QCOMPARE(method.type, type);
    QTEST(method.name, "name");
    QTEST(method.description, "description");
    QTEST(method.level, "level");
    QTEST(passesText(method), "passes");
}

void tst_WipeMethod::defaultIsNist()
{
    QCOMPARE(WipeMethod(), WipeMethod::fromType(0));
    QCOMPARE(WipeMethod().type, 0);
    QCOMPARE(WipeMethod().level, 1);
    QCOMPARE(WipeMethod().name, u"NIST 800-88"_s);
}

void tst_WipeMethod::allMethodsComeInTypeOrder()
{
    const QList<WipeMethod> methods = WipeMethod::allMethods();
    QCOMPARE(methods.size(), 5);
    for (int type = 0; type < 5; ++type)
        QCOMPARE(methods[type], WipeMethod::fromType(type));
}

void tst_WipeMethod::unknownTypeIsNistWithTheNumberAskedFor_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("7") << 7;
    QTest::newRow("first past the end") << static_cast<int>(WipeMethod::allMethods().size());
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_WipeMethod::unknownTypeIsNistWithTheNumberAskedFor()
{
    QFETCH(int, type);
    WipeMethod expected = WipeMethod::fromType(0);
    expected.type = type;
    QCOMPARE(WipeMethod::fromType(type), expected);
    QCOMPARE(passesText(WipeMethod::fromType(type)), u"0v"_s);
}

void tst_WipeMethod::gutmannEntries()
{
    const WipeMethod method = WipeMethod::fromType(4);
    const auto entry = [&method](int number) { return method.passes[number - 1]; };
    QCOMPARE(method.passes.size(), 35);
    for (const auto &[number, value] : std::initializer_list<std::pair<int, quint8>>{{5, 0x55},
                                                                                     {6, 0xAA},
                                                                                     {7, 0x92},
                                                                                     {8, 0x49},
                                                                                     {9, 0x24},
                                                                                     {10, 0x00},
                                                                                     {15, 0x55},
                                                                                     {25, 0xFF},
                                                                                     {26, 0x92},
                                                                                     {27, 0x49},
                                                                                     {28, 0x24},
                                                                                     {29, 0x6D},
                                                                                     {30, 0xB6},
                                                                                     {31, 0xDB}}) {
        QCOMPARE(entry(number).type, PatternType::Custom);
        QCOMPARE(entry(number).value, value);
    }
    for (const int number : {1, 2, 3, 4, 32, 33, 34, 35})
        QCOMPARE(entry(number).type, PatternType::Random);
}

void tst_WipeMethod::onlyTheLastPassIsVerified()
{
    for (const WipeMethod &method : WipeMethod::allMethods()) {
        for (qsizetype i = 0; i < method.passes.size(); ++i)
            QCOMPARE(method.passes[i].verify, i == method.passes.size() - 1);
    }
}

void tst_WipeMethod::dodHasSevenPassesAtTheLevelOfVsitr()
{
    const WipeMethod dod = WipeMethod::fromType(2);
    QCOMPARE(dod.passCount(), 7);
    QCOMPARE(dod.level, 4);
    QCOMPARE(dod.level, WipeMethod::fromType(3).level);
}

void tst_WipeMethod::passCountIsTheLengthOfTheList()
{
    QList<int> counts;
    for (const WipeMethod &method : WipeMethod::allMethods())
        counts.append(method.passCount());
    QCOMPARE(counts, QList<int>({1, 2, 7, 7, 35}));

    WipeMethod shortened = WipeMethod::fromType(4);
    shortened.passes.removeLast();
    QCOMPARE(shortened.passCount(), 34);
}

void tst_WipeMethod::levelNames_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("name");
    QTest::newRow("1") << 1 << u"基础"_s;
    QTest::newRow("2") << 2 << u"标准"_s;
    QTest::newRow("3") << 3 << u"增强"_s;
    QTest::newRow("4") << 4 << u"高级"_s;
    QTest::newRow("5") << 5 << u"最高"_s;
    QTest::newRow("0") << 0 << u"未知"_s;
    QTest::newRow("6") << 6 << u"未知"_s;
    QTest::newRow("negative") << -1 << u"未知"_s;
}

void tst_WipeMethod::levelNames()
{
    QFETCH(int, level);
    WipeMethod method;
    method.level = level;
    QTEST(method.levelName(), "name");

    const MarkingTranslator translator;
    QFETCH(QString, name);
    QCOMPARE(method.levelName(), u"<WipeMethod>"_s + name);
}

void tst_WipeMethod::descriptionsAndLevelsAreTranslatedAndNamesAreNot()
{
    const QList<WipeMethod> plain = WipeMethod::allMethods();
    const MarkingTranslator translator;
    const QList<WipeMethod> translated = WipeMethod::allMethods();
    for (int type = 0; type < WipeMethod::allMethods().size(); ++type) {
        QCOMPARE(translated[type].name, plain[type].name);
        QCOMPARE(translated[type].description, u"<WipeMethod>"_s + plain[type].description);
        QVERIFY(!plain[type].description.startsWith(u'<')); // a built record keeps its language
    }
}

void tst_WipeMethod::comparesByValue()
{
    WipeMethod method = WipeMethod::fromType(2);
    QCOMPARE(method, WipeMethod::fromType(2));
    method.passes[3].verify = true;
    QVERIFY(method != WipeMethod::fromType(2));
    QVERIFY(WipeMethod::fromType(2) != WipeMethod::fromType(3));
}

void tst_WipeMethod::travelsInAVariant()
{
    const WipeMethod method = WipeMethod::fromType(4);
    QCOMPARE(QVariant::fromValue(method).value<WipeMethod>(), method);
    QVERIFY(QMetaType::fromType<WipeMethod>().isEqualityComparable());
}

QUORVEX_SUITE(tst_WipeMethod, QCoreApplication)
#include "tst_wipemethod.moc"
