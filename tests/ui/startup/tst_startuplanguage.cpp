#include "ui/startup/language.h"

#include "services/applog.h"
#include "support/messagecapture.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Which language the program speaks, and how it says so.
class TestStartupLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theSystemDecidesUnlessTheUserDid_data();
    void theSystemDecidesUnlessTheUserDid();
    void everyLanguageButTheSourceHasACatalogue_data();
    void everyLanguageButTheSourceHasACatalogue();
    void aLanguageWithoutACatalogueLeavesTheSourceTexts_data();
    void aLanguageWithoutACatalogueLeavesTheSourceTexts();

private:
    QTemporaryDir m_folder;
};

void TestStartupLanguage::initTestCase()
{
    AppLog::instance().setLogFile(m_folder.filePath(u"quorvex.log"_s));
}

void TestStartupLanguage::theSystemDecidesUnlessTheUserDid_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("code");
    const auto row = [](const char *name, const QString &stored, const QString &locale, const QString &code) {
        QTest::newRow(name) << stored << locale << code;
    };
    row("French Canada", {}, u"fr_CA"_s, u"fr"_s);
    row("German", {}, u"de_DE"_s, u"de"_s);
    row("mainland China", {}, u"zh_CN"_s, u"zh_CN"_s);
    row("Taiwan is not told apart", {}, u"zh_TW"_s, u"zh_CN"_s);
    row("Russian has no catalogue", {}, u"ru_RU"_s, u"en"_s);
    row("no locale", {}, u"C"_s, u"en"_s);
    row("stored Taiwan", u"zh_TW"_s, u"de_DE"_s, u"zh_TW"_s);
    row("stored, unsupported", u"xx"_s, u"de_DE"_s, u"xx"_s);
}

void TestStartupLanguage::theSystemDecidesUnlessTheUserDid()
{
    QFETCH(QString, stored);
    QFETCH(QString, locale);
    QFETCH(QString, code);
    QCOMPARE(chooseLanguage(stored, locale), code);
}

void TestStartupLanguage::everyLanguageButTheSourceHasACatalogue_data()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"en", "fr", "de", "ja", "es", "ko", "nl", "pt", "it", "zh_TW"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestStartupLanguage::everyLanguageButTheSourceHasACatalogue()
{
    QFETCH(QString, code);
    QVERIFY(installLanguage(code));
    QVERIFY(QCoreApplication::translate("ProgressPage", "正在擦除数据...") != u"正在擦除数据..."_s);
}

void TestStartupLanguage::aLanguageWithoutACatalogueLeavesTheSourceTexts_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("source") << u"zh_CN"_s;
    QTest::newRow("unsupported") << u"xx"_s;
    QTest::newRow("empty") << QString();
}

void TestStartupLanguage::aLanguageWithoutACatalogueLeavesTheSourceTexts()
{
    QFETCH(QString, code);
    QVERIFY(!installLanguage(code));
}

QTEST_MAIN(TestStartupLanguage)
#include "tst_startuplanguage.moc"
