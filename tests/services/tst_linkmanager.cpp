#include "services/linkmanager.h"
#include "support/suite.h"

#include "support/messagecapture.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
// A partial catalogue; the program's own is checked separately.
const QByteArray smallCatalogue = "{\"metadata\": {\"version\": \"2.1\", \"last_updated\": \"2026-02-03\","
                                  " \"supported_languages\": [\"en\", \"de\", \"zh_TW\"],"
                                  " \"fallback_language\": \"en\"},"
                                  "\"help\": {"
                                  "\"all\": {\"en\": \"https://a.example/\","
                                  " \"de\": \"https://a.example/de/\","
                                  " \"zh_TW\": \"https://a.example/zh/\"},"
                                  "\"english\": {\"en\": \"https://a.example/english\"},"
                                  "\"german\": {\"de\": \"https://a.example/de/german\"},"
                                  "\"blank\": {\"de\": \"\", \"en\": \"https://a.example/blank\"},"
                                  "\"wrong\": {\"de\": 7, \"en\": [\"https://a.example/wrong\"]},"
                                  "\"none\": {},"
                                  "\"text\": \"https://a.example/text\"},"
                                  "\"list\": [\"https://a.example/list\"]}";

const QStringList programLanguages{u"en"_s, u"fr"_s,    u"de"_s, u"ja"_s, u"es"_s,
                                   u"ko"_s, u"zh_TW"_s, u"nl"_s, u"pt"_s, u"it"_s};

bool logged(const MessageCapture &capture, const QString &line)
{
    return capture.messages().contains(MessageCapture::Message{QtDebugMsg, line});
}

struct Warning
{
    QWidget *parent = nullptr;
    QString title;
    QString text;

    bool operator==(const Warning &) const = default;
};
} // namespace

class tst_LinkManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theProgramHasOneInstance();
    void theProgramsSourcesAreItsOwn();
    void theCatalogueHasItsMetadata();
    void theCatalogueHasEveryPageInEveryLanguage_data();
    void theCatalogueHasEveryPageInEveryLanguage();
    void theCatalogueHasNoOtherCategories();
    void someKeysShareOnePage();

    void theSettingDecidesBeforeTheSystem_data();
    void theSettingDecidesBeforeTheSystem();
    void otherSettingsLeaveItToTheSystem_data();
    void otherSettingsLeaveItToTheSystem();
    void theSystemsLocaleIsMapped_data();
    void theSystemsLocaleIsMapped();
    void aMappedLanguageWithoutSupportFallsBack();
    void theChoiceIsNotStored();
    void loadingTellsItsSteps();

    void addressesComeInTheCurrentLanguage_data();
    void addressesComeInTheCurrentLanguage();
    void aPageInEnglishOnlyIsEnglishInEveryLanguage();
    void aPageWithoutTheFallbackLanguageIsMissing();
    void unknownCategoriesAndKeysAreEmpty();
    void valuesOfAnotherTypeAreMissing_data();
    void valuesOfAnotherTypeAreMissing();
    void theMetadataIsNoCategory();

    void setLanguageStoresTheChoice();
    void setLanguageRefusesOthers_data();
    void setLanguageRefusesOthers();
    void aSettingThatCannotBeStoredStillApplies();

    void openLinkOpensTheAddress();
    void openLinkShowsTheAddressWhenNothingOpensIt();
    void openLinkWarnsOfAMissingAddress();
    void withoutABrowserOpenLinkWarns();
    void withoutAWarningBoxOpenLinkOnlyLogs();

    void aMissingCatalogueLeavesEveryLookupEmpty();
    void aBrokenCatalogueLeavesEveryLookupEmpty_data();
    void aBrokenCatalogueLeavesEveryLookupEmpty();
    void metadataOfAnotherShapeLeavesNoLanguage();

private:
    QString settingsPath() const { return m_dir->filePath(u"settings.ini"_s); }
    void store(const QString &key, const QVariant &value)
    {
        QSettings(settingsPath(), QSettings::IniFormat).setValue(key, value);
    }
    QVariant stored(const QString &key) const
    {
        return QSettings(settingsPath(), QSettings::IniFormat).value(key);
    }
    LinkSources sources(const QString &locale, const QByteArray &catalogue = smallCatalogue)
    {
        LinkSources sources = programSources(locale);
        sources.catalogue = writeFile(m_dir->filePath(u"links.json"_s), catalogue);
        return sources;
    }
    // With the program's catalogue.
    LinkSources programSources(const QString &locale) const
    {
        LinkSources sources = LinkSources::ofProgram();
        sources.systemLocale = locale;
        const QString path = settingsPath();
        sources.openSettings = [path] { return std::make_unique<QSettings>(path, QSettings::IniFormat); };
        return sources;
    }

    // Records the addresses and warnings of openLink().
    void watch(LinkManager &links, bool opens)
    {
        links.setBrowser([this, opens](const QUrl &address) {
            m_opened.append(address);
            return opens;
        });
        links.setWarningBox([this](QWidget *parent, const QString &title, const QString &text) {
            m_warnings.append({parent, title, text});
        });
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QList<QUrl> m_opened;
    QList<Warning> m_warnings;
};

void tst_LinkManager::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_opened.clear();
    m_warnings.clear();
}

void tst_LinkManager::cleanup()
{
    QVERIFY(m_dir->remove());
}

void tst_LinkManager::theProgramHasOneInstance()
{
    const MessageCapture capture;
    LinkManager &links = LinkManager::instance();
    QCOMPARE(&LinkManager::instance(), &links);
    QCOMPARE(links.supportedLanguages(), programLanguages);
    QVERIFY(programLanguages.contains(links.currentLanguage()));
    QVERIFY(!links.getLink(u"website"_s, u"home"_s).isEmpty());
}

void tst_LinkManager::theProgramsSourcesAreItsOwn()
{
    const LinkSources sources = LinkSources::ofProgram();
    QCOMPARE(sources.catalogue, u":/links/links.json"_s);
    QCOMPARE(sources.systemLocale, QLocale::system().name());
    const std::unique_ptr<QSettings> settings = sources.openSettings();
    QCOMPARE(settings->organizationName(), u"Veltrano"_s);
    QCOMPARE(settings->applicationName(), u"Quorvex"_s);
    QCOMPARE(settings->format(), QSettings::NativeFormat);
    QCOMPARE(settings->scope(), QSettings::UserScope);
}

void tst_LinkManager::theCatalogueHasItsMetadata()
{
    const QString text = QString::fromUtf8(contentOf(LinkSources::ofProgram().catalogue));
    const QJsonObject metadata =
        QJsonDocument::fromJson(text.toUtf8()).object().value(u"metadata").toObject();
    QCOMPARE(metadata.value(u"version").toString(), u"1.0.0"_s);
    QCOMPARE(metadata.value(u"last_updated").toString(), u"2026-01-14"_s);
    QCOMPARE(metadata.value(u"supported_languages").toArray(), QJsonArray::fromStringList(programLanguages));
    QCOMPARE(metadata.value(u"fallback_language").toString(), u"en"_s);
}

void tst_LinkManager::theCatalogueHasEveryPageInEveryLanguage_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("key");
    QTest::newRow("help") << u"support"_s << u"help"_s;
    QTest::newRow("contact") << u"support"_s << u"contact"_s;
    QTest::newRow("tutorial") << u"support"_s << u"tutorial"_s;
    QTest::newRow("faq") << u"support"_s << u"faq"_s;
    QTest::newRow("about") << u"menu"_s << u"about"_s;
    QTest::newRow("support") << u"menu"_s << u"support"_s;
    QTest::newRow("updates") << u"menu"_s << u"updates"_s;
    QTest::newRow("home") << u"website"_s << u"home"_s;
    QTest::newRow("product") << u"website"_s << u"product"_s;
}

void tst_LinkManager::theCatalogueHasEveryPageInEveryLanguage()
{
    QFETCH(QString, category);
    QFETCH(QString, key);
    const MessageCapture capture;
    LinkManager links(programSources(u"en_US"_s));
    const QString english = links.getLink(category, key);
    const QUrl page(english, QUrl::StrictMode);
    for (const QString &language : programLanguages) {
        links.setLanguage(language);
        const QString link = links.getLink(category, key);
        const QUrl address(link, QUrl::StrictMode);
        QVERIFY2(address.isValid(), qPrintable(link));
        QCOMPARE(address.scheme(), u"https"_s);
        QCOMPARE(address.host(), u"www." QUORVEX_WEB_DOMAIN ""_s);
        QVERIFY(!link.contains(u'@'));
        QCOMPARE(address.toString(QUrl::FullyEncoded), link);
        const QString segment = language == u"en"      ? QString()
                                : language == u"zh_TW" ? u"/zh"_s
                                                       : u"/"_s + language;
        QCOMPARE(address.path(), segment + page.path());
        QVERIFY(!address.hasQuery() && !address.hasFragment());
        QVERIFY(logged(capture, u"[LinkManager] 获取链接: \"%1\""_s.arg(link)));
    }
    QVERIFY(!capture.texts().join(u'\n').contains(u"使用回退语言"_s));
}

void tst_LinkManager::theCatalogueHasNoOtherCategories()
{
    const QString text = QString::fromUtf8(contentOf(LinkSources::ofProgram().catalogue));
    const QJsonObject catalogue = QJsonDocument::fromJson(text.toUtf8()).object();
    QCOMPARE(catalogue.keys(), (QStringList{u"menu"_s, u"metadata"_s, u"support"_s, u"website"_s}));
    QCOMPARE(catalogue.value(u"support").toObject().keys(),
             (QStringList{u"contact"_s, u"faq"_s, u"help"_s, u"tutorial"_s}));
    QCOMPARE(catalogue.value(u"menu").toObject().keys(),
             (QStringList{u"about"_s, u"support"_s, u"updates"_s}));
    QCOMPARE(catalogue.value(u"website").toObject().keys(), (QStringList{u"home"_s, u"product"_s}));
}

void tst_LinkManager::someKeysShareOnePage()
{
    const MessageCapture capture;
    LinkManager links(programSources(u"fr_FR"_s));
    const QString help = links.getLink(u"support"_s, u"help"_s);
    QCOMPARE(links.getLink(u"support"_s, u"tutorial"_s), help);
    QCOMPARE(links.getLink(u"support"_s, u"faq"_s), help);
    QCOMPARE(links.getLink(u"menu"_s, u"updates"_s), links.getLink(u"website"_s, u"product"_s));
    QVERIFY(links.getLink(u"support"_s, u"contact"_s) != help);
}

void tst_LinkManager::theSettingDecidesBeforeTheSystem_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : programLanguages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_LinkManager::theSettingDecidesBeforeTheSystem()
{
    QFETCH(QString, language);
    store(u"language"_s, language);
    const MessageCapture capture;
    const LinkManager links(programSources(language == u"it" ? u"nl_NL"_s : u"it_IT"_s));
    QCOMPARE(links.currentLanguage(), language);
    QVERIFY(logged(capture, u"[LinkManager] 使用用户设置的语言: \"%1\""_s.arg(language)));
    QVERIFY(!capture.texts().join(u'\n').contains(u"系统语言"_s));
}

void tst_LinkManager::otherSettingsLeaveItToTheSystem_data()
{
    QTest::addColumn<QVariant>("setting");
    QTest::newRow("none") << QVariant();
    QTest::newRow("empty") << QVariant(u""_s);
    QTest::newRow("a language of the interface only") << QVariant(u"zh_CN"_s);
    QTest::newRow("unknown") << QVariant(u"xx"_s);
    QTest::newRow("other case") << QVariant(u"DE"_s);
    QTest::newRow("with a country") << QVariant(u"de_DE"_s);
    QTest::newRow("a number") << QVariant(7);
    QTest::newRow("truth") << QVariant(true);
    QTest::newRow("a list") << QVariant(QStringList{u"de"_s, u"fr"_s});
    QTest::newRow("a map") << QVariant(QVariantMap{{u"language"_s, u"de"_s}});
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\x00\x80", 3));
    QTest::newRow("long") << QVariant(QString(1 << 20, u'd'));
}

void tst_LinkManager::otherSettingsLeaveItToTheSystem()
{
    QFETCH(QVariant, setting);
    if (setting.isValid())
        store(u"language"_s, setting);
    store(u"wipe/language"_s, u"ja"_s);
    const MessageCapture capture;
    const LinkManager links(programSources(u"pt_BR"_s));
    QCOMPARE(links.currentLanguage(), u"pt"_s);
    QVERIFY(!capture.texts().join(u'\n').contains(u"使用用户设置的语言"_s));
}

void tst_LinkManager::theSystemsLocaleIsMapped_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("mapped");
    QTest::addColumn<QString>("language");
    const auto row = [](const char *locale, const QString &mapped) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << mapped
                              << (mapped.isEmpty() ? u"en"_s : mapped);
    };
    row("zh_TW", u"zh_TW"_s);
    row("zh_HK", u"zh_TW"_s);
    row("zh_CN", u"en"_s);
    row("zh_SG", {});
    row("zh", {});
    row("en_US", u"en"_s);
    row("en_GB", u"en"_s);
    row("fr_CA", u"fr"_s);
    row("de_DE", u"de"_s);
    row("de_AT", u"de"_s);
    row("DE_de", u"de"_s);
    row("de", u"de"_s);
    row("ja_JP", u"ja"_s);
    row("es_MX", u"es"_s);
    row("ko_KR", u"ko"_s);
    row("nl_BE", u"nl"_s);
    row("pt_BR", u"pt"_s);
    row("it_CH", u"it"_s);
    row("ru_RU", {});
    row("fil_PH", {});
    row("C", {});
    row("", {});
}

void tst_LinkManager::theSystemsLocaleIsMapped()
{
    QFETCH(QString, locale);
    QFETCH(QString, mapped);
    QFETCH(QString, language);
    const MessageCapture capture;
    const LinkManager links(programSources(locale));
    QCOMPARE(links.currentLanguage(), language);
    QVERIFY(logged(capture, u"[LinkManager] 系统语言: \"%1\" -> 映射为: \"%2\""_s.arg(locale, mapped)));
    QCOMPARE(logged(capture, u"[LinkManager] 不支持的语言，使用回退语言: \"en\""_s), mapped.isEmpty());
}

void tst_LinkManager::aMappedLanguageWithoutSupportFallsBack()
{
    const MessageCapture capture;
    QByteArray catalogue = smallCatalogue;
    catalogue.replace("\"fallback_language\": \"en\"", "\"fallback_language\": \"zh_TW\"");
    const LinkManager links(sources(u"it_IT"_s, catalogue));
    QCOMPARE(links.currentLanguage(), u"zh_TW"_s);
    QVERIFY(logged(capture, u"[LinkManager] 系统语言: \"it_IT\" -> 映射为: \"it\""_s));
    QVERIFY(logged(capture, u"[LinkManager] 不支持的语言，使用回退语言: \"zh_TW\""_s));
}

void tst_LinkManager::theChoiceIsNotStored()
{
    const MessageCapture capture;
    const LinkManager links(programSources(u"de_DE"_s));
    QCOMPARE(links.currentLanguage(), u"de"_s);
    QVERIFY(!stored(u"language"_s).isValid());
}

void tst_LinkManager::loadingTellsItsSteps()
{
    store(u"language"_s, u"de"_s);
    const MessageCapture capture;
    const LinkManager links(sources(u"fr_FR"_s));
    QCOMPARE(capture.texts(), (QStringList{
                                  u"[LinkManager] 元数据加载成功"_s,
                                  u"[LinkManager] 版本: \"2.1\""_s,
                                  u"[LinkManager] 更新日期: \"2026-02-03\""_s,
                                  u"[LinkManager] 使用用户设置的语言: \"de\""_s,
                                  u"[LinkManager] 初始化完成"_s,
                                  u"[LinkManager] 当前语言: \"de\""_s,
                                  u"[LinkManager] 支持的语言: QList(\"en\", \"de\", \"zh_TW\")"_s,
                              }));
    for (const MessageCapture::Message &message : capture.messages())
        QCOMPARE(message.type, QtDebugMsg);
}

void tst_LinkManager::addressesComeInTheCurrentLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("link");
    QTest::newRow("English") << u"en_US"_s << u"https://a.example/"_s;
    QTest::newRow("German") << u"de_CH"_s << u"https://a.example/de/"_s;
    QTest::newRow("Taiwan") << u"zh_TW"_s << u"https://a.example/zh/"_s;
    QTest::newRow("Hong Kong") << u"zh_HK"_s << u"https://a.example/zh/"_s;
    QTest::newRow("China") << u"zh_CN"_s << u"https://a.example/"_s;
}

void tst_LinkManager::addressesComeInTheCurrentLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, link);
    const MessageCapture capture;
    const LinkManager links(sources(locale));
    QCOMPARE(links.getLink(u"help"_s, u"all"_s), link);
    QVERIFY(logged(capture, u"[LinkManager] 获取链接: \"%1\""_s.arg(link)));
    QCOMPARE(links.getLinkWithFallback(u"help"_s, u"all"_s), link);
    QVERIFY(logged(capture, u"[LinkManager] ✓ 获取链接成功 [ \"%1\" ]"_s.arg(links.currentLanguage())));
}

void tst_LinkManager::aPageInEnglishOnlyIsEnglishInEveryLanguage()
{
    LinkManager links(sources(u"en_US"_s));
    for (const QString &language : {u"de"_s, u"zh_TW"_s}) {
        links.setLanguage(language);
        const MessageCapture capture;
        QCOMPARE(links.getLink(u"help"_s, u"english"_s), u"https://a.example/english"_s);
        QCOMPARE(capture.texts(),
                 (QStringList{u"[LinkManager] 语言 \"%1\" 不存在，使用回退语言: \"en\""_s.arg(language),
                              u"[LinkManager] 获取链接: \"https://a.example/english\""_s}));
        QCOMPARE(links.getLinkWithFallback(u"help"_s, u"english"_s), u"https://a.example/english"_s);
        QCOMPARE(capture.texts().mid(2),
                 (QStringList{u"[LinkManager] ⚠ 无法获取 \"%1\" 版本，降级到 \"en\""_s.arg(language),
                              u"[LinkManager] ✓ 使用回退语言 [ \"en\" ]"_s}));
    }
}

void tst_LinkManager::aPageWithoutTheFallbackLanguageIsMissing()
{
    const LinkManager links(sources(u"zh_TW"_s));
    const MessageCapture capture;
    QVERIFY(links.getLink(u"help"_s, u"german"_s).isEmpty());
    QCOMPARE(capture.texts(), (QStringList{u"[LinkManager] 语言 \"zh_TW\" 不存在，使用回退语言: \"en\""_s,
                                           u"[LinkManager] 无法找到链接: \"help\" \"german\""_s}));
    QVERIFY(links.getLinkWithFallback(u"help"_s, u"german"_s).isEmpty());
    QCOMPARE(capture.texts().mid(2), (QStringList{u"[LinkManager] ✗ 无法获取链接: \"help\" \"german\""_s,
                                                  u"[LinkManager] ✗ 请检查 links.json 配置文件！"_s}));
}

void tst_LinkManager::unknownCategoriesAndKeysAreEmpty()
{
    const LinkManager links(sources(u"en_US"_s));
    const MessageCapture capture;
    QVERIFY(links.getLink(u"nothing"_s, u"all"_s).isEmpty());
    QVERIFY(links.getLink(u"help"_s, u"nothing"_s).isEmpty());
    QVERIFY(links.getLink({}, {}).isEmpty());
    QCOMPARE(capture.texts(), (QStringList{u"[LinkManager] 类别不存在: \"nothing\""_s,
                                           u"[LinkManager] 键不存在: \"nothing\" in category: \"help\""_s,
                                           u"[LinkManager] 类别不存在: \"\""_s}));
    QVERIFY(links.getLinkWithFallback(u"nothing"_s, u"all"_s).isEmpty());
    QVERIFY(links.getLinkWithFallback(u"help"_s, u"nothing"_s).isEmpty());
    QCOMPARE(capture.texts().filter(u"✗ 请检查 links.json 配置文件！"_s).size(), 2);
}

void tst_LinkManager::valuesOfAnotherTypeAreMissing_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("link");
    QTest::newRow("blank address") << u"help"_s << u"blank"_s << u"https://a.example/blank"_s;
    QTest::newRow("addresses that are none") << u"help"_s << u"wrong"_s << QString();
    QTest::newRow("no language") << u"help"_s << u"none"_s << QString();
    QTest::newRow("text as key") << u"help"_s << u"text"_s << QString();
    QTest::newRow("list as category") << u"list"_s << u"0"_s << QString();
}

void tst_LinkManager::valuesOfAnotherTypeAreMissing()
{
    QFETCH(QString, category);
    QFETCH(QString, key);
    QFETCH(QString, link);
    const LinkManager links(sources(u"de_DE"_s));
    const MessageCapture capture;
    QCOMPARE(links.getLink(category, key), link);
    QVERIFY(!capture.texts().isEmpty());
    QCOMPARE(links.getLinkWithFallback(category, key), link);
}

void tst_LinkManager::theMetadataIsNoCategory()
{
    const LinkManager links(sources(u"en_US"_s));
    const MessageCapture capture;
    QVERIFY(links.getLink(u"metadata"_s, u"version"_s).isEmpty());
    QCOMPARE(capture.texts(), QStringList{u"[LinkManager] 类别不存在: \"metadata\""_s});
}

void tst_LinkManager::setLanguageStoresTheChoice()
{
    LinkManager links(sources(u"en_US"_s));
    const MessageCapture capture;
    links.setLanguage(u"de"_s);
    QCOMPARE(links.currentLanguage(), u"de"_s);
    QCOMPARE(stored(u"language"_s), QVariant(u"de"_s));
    QCOMPARE(links.getLink(u"help"_s, u"all"_s), u"https://a.example/de/"_s);
    QCOMPARE(capture.texts().first(), u"[LinkManager] 语言已切换为: \"de\""_s);
    QCOMPARE(LinkManager(sources(u"en_US"_s)).currentLanguage(), u"de"_s);
}

void tst_LinkManager::setLanguageRefusesOthers_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("unknown") << u"xx"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("of the interface only") << u"zh_CN"_s;
    QTest::newRow("other case") << u"EN"_s;
}

void tst_LinkManager::setLanguageRefusesOthers()
{
    QFETCH(QString, code);
    store(u"language"_s, u"de"_s);
    LinkManager links(sources(u"en_US"_s));
    const MessageCapture capture;
    links.setLanguage(code);
    QCOMPARE(links.currentLanguage(), u"de"_s);
    QCOMPARE(stored(u"language"_s), QVariant(u"de"_s));
    QCOMPARE(capture.texts(), QStringList{u"[LinkManager] 不支持的语言: \"%1\""_s.arg(code)});
}

void tst_LinkManager::aSettingThatCannotBeStoredStillApplies()
{
    LinkManager links(sources(u"en_US"_s));
    QVERIFY(QDir(m_dir->path()).mkdir(u"settings.ini"_s)); // a folder in the place of the file
    const MessageCapture capture;
    links.setLanguage(u"de"_s);
    QCOMPARE(links.currentLanguage(), u"de"_s);
    QCOMPARE(capture.texts().filter(u"could not be stored"_s).size(), 1);
}

void tst_LinkManager::openLinkOpensTheAddress()
{
    LinkManager links(sources(u"de_DE"_s));
    watch(links, true);
    const MessageCapture capture;
    links.openLink(u"help"_s, u"all"_s, nullptr);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(u"https://a.example/de/"_s)});
    QVERIFY(m_warnings.isEmpty());
    QCOMPARE(capture.texts(), (QStringList{u"[LinkManager] ✓ 获取链接成功 [ \"de\" ]"_s,
                                           u"[LinkManager] ✓ 成功打开链接: \"https://a.example/de/\""_s}));
}

void tst_LinkManager::openLinkShowsTheAddressWhenNothingOpensIt()
{
    LinkManager links(sources(u"de_DE"_s));
    watch(links, false);
    const MessageCapture capture;
    // The pointer is only passed on, never dereferenced.
    int owner = 0;
    QWidget *const parent = reinterpret_cast<QWidget *>(&owner);
    links.openLink(u"help"_s, u"all"_s, parent);
    QCOMPARE(m_opened.size(), 1);
    QCOMPARE(m_warnings.size(), 1);
    QCOMPARE(m_warnings.first().parent, parent);
    QCOMPARE(m_warnings.first().title, u"无法打开浏览器"_s);
    QCOMPARE(m_warnings.first().text,
             u"无法打开默认浏览器。\n\n请手动复制链接访问：\nhttps://a.example/de/"_s);
    QVERIFY(logged(capture, u"[LinkManager] ⚠ 无法打开浏览器: \"https://a.example/de/\""_s));
    QVERIFY(capture.texts().filter(u"成功打开链接"_s).isEmpty());
}

void tst_LinkManager::openLinkWarnsOfAMissingAddress()
{
    LinkManager links(sources(u"de_DE"_s));
    watch(links, true);
    const MessageCapture capture;
    links.openLink(u"help"_s, u"none"_s, nullptr);
    QVERIFY(m_opened.isEmpty());
    QCOMPARE(m_warnings, (QList<Warning>{{nullptr, u"配置错误"_s,
                                          u"无法加载页面链接。\n\n请联系技术支持或重新安装软件。"_s}}));
    QVERIFY(logged(capture, u"[LinkManager] ✗ 无法打开链接: \"help\" \"none\""_s));
}

void tst_LinkManager::withoutABrowserOpenLinkWarns()
{
    LinkManager links(sources(u"de_DE"_s));
    watch(links, true);
    links.setBrowser({});
    const MessageCapture capture;
    links.openLink(u"help"_s, u"all"_s);
    QCOMPARE(m_warnings.size(), 1);
    QCOMPARE(m_warnings.first().title, u"无法打开浏览器"_s);
}

void tst_LinkManager::withoutAWarningBoxOpenLinkOnlyLogs()
{
    const LinkManager links(sources(u"de_DE"_s));
    const MessageCapture capture;
    links.openLink(u"help"_s, u"all"_s);
    links.openLink(u"help"_s, u"none"_s);
    QCOMPARE(capture.texts().filter(u"⚠ 无法打开浏览器"_s).size(), 1);
    QCOMPARE(capture.texts().filter(u"✗ 无法打开链接"_s).size(), 1);
}

void tst_LinkManager::aMissingCatalogueLeavesEveryLookupEmpty()
{
    LinkSources none = programSources(u"de_DE"_s);
    none.catalogue = m_dir->filePath(u"missing.json"_s);
    const MessageCapture capture;
    LinkManager links(none);
    QVERIFY(capture.texts().first().startsWith(u"[LinkManager] 无法打开 links.json: \""_s));
    QCOMPARE(capture.texts().value(1), u"[LinkManager] 加载链接配置失败！"_s);
    QVERIFY(links.currentLanguage().isEmpty());
    QVERIFY(links.supportedLanguages().isEmpty());
    QVERIFY(links.getLink(u"website"_s, u"home"_s).isEmpty());
    links.setLanguage(u"en"_s);
    QVERIFY(links.currentLanguage().isEmpty());
    watch(links, true);
    links.openLink(u"website"_s, u"home"_s);
    QVERIFY(m_opened.isEmpty());
    QCOMPARE(m_warnings.size(), 1);
    QCOMPARE(m_warnings.first().title, u"配置错误"_s);
}

void tst_LinkManager::aBrokenCatalogueLeavesEveryLookupEmpty_data()
{
    QTest::addColumn<QByteArray>("catalogue");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("links");
    QTest::newRow("cut") << smallCatalogue.chopped(1);
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("garbage") << QByteArray(1 << 20, '\xfe');
}

void tst_LinkManager::aBrokenCatalogueLeavesEveryLookupEmpty()
{
    QFETCH(QByteArray, catalogue);
    const MessageCapture capture;
    const LinkManager links(sources(u"de_DE"_s, catalogue));
    QCOMPARE(capture.texts().mid(0, 2),
             (QStringList{u"[LinkManager] JSON 格式错误"_s, u"[LinkManager] 加载链接配置失败！"_s}));
    QVERIFY(links.currentLanguage().isEmpty());
    QVERIFY(links.getLink(u"help"_s, u"all"_s).isEmpty());
}

void tst_LinkManager::metadataOfAnotherShapeLeavesNoLanguage()
{
    const MessageCapture capture;
    LinkManager links(sources(u"de_DE"_s, "{\"metadata\": {\"supported_languages\": \"de\","
                                          " \"fallback_language\": [\"en\"]},"
                                          " \"help\": {\"all\": {\"de\": \"https://a.example/de/\"}}}"));
    QVERIFY(links.currentLanguage().isEmpty());
    QVERIFY(links.supportedLanguages().isEmpty());
    QVERIFY(links.getLink(u"help"_s, u"all"_s).isEmpty());
    QCOMPARE(capture.texts().filter(u"加载链接配置失败"_s).size(), 0);
}

static int runSuite(int argc, char *argv[])
{
    // The instance reads the program's own settings. They are never written here, and they are not the
    // user's.
    const QTemporaryDir home;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    const QCoreApplication application(argc, argv);
    tst_LinkManager test;
    return QTest::qExec(&test, argc, argv);
}
QUORVEX_SUITE_RUN(tst_LinkManager, runSuite)
#include "tst_linkmanager.moc"
