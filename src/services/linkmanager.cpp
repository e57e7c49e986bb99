#include "services/linkmanager.h"

#include "model/usersettings.h"
#include "services/languages.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

// A static library's resources must be registered explicitly. The macro does not work within a namespace.
static void addCatalogueToResources()
{
    Q_INIT_RESOURCE(links);
}

namespace {
const QString languageSetting = usersettings::Language.toString();
const QString metadataMember = u"metadata"_s;

// The catalogue's language for a locale; empty when there is none.
QString languageForLocale(const QString &locale)
{
    if (locale == u"zh_TW" || locale == u"zh_HK")
        return u"zh_TW"_s;
    // There are no pages in simplified Chinese, and the pages in traditional script are no substitute.
    if (locale == u"zh_CN")
        return u"en"_s;
    const QString language = locale.left(2).toLower();
    return languages::codes().contains(language) ? language : QString();
}
} // namespace

LinkSources LinkSources::ofProgram()
{
    addCatalogueToResources();
    return {u":/links/links.json"_s, QLocale::system().name(), usersettings::open};
}

LinkManager &LinkManager::instance()
{
    static LinkManager manager(LinkSources::ofProgram());
    return manager;
}

LinkManager::LinkManager(const LinkSources &sources)
    : m_sources(sources)
{
    if (!loadCatalogue(m_sources.catalogue))
        qDebug() << "[LinkManager] 加载链接配置失败！";
    m_currentLanguage = determineLanguage();
    qDebug() << "[LinkManager] 初始化完成";
    qDebug() << "[LinkManager] 当前语言:" << m_currentLanguage;
    qDebug() << "[LinkManager] 支持的语言:" << m_supportedLanguages;
}

bool LinkManager::loadCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "[LinkManager] 无法打开 links.json:" << file.errorString();
        return false;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject()) {
        qDebug() << "[LinkManager] JSON 格式错误";
        return false;
    }
    m_catalogue = document.object();
    // The other members are the categories.
    readMetadata(m_catalogue.take(metadataMember).toObject());
    return true;
}

void LinkManager::readMetadata(const QJsonObject &metadata)
{
    const QJsonArray languages = metadata.value(u"supported_languages").toArray();
    for (const auto &language : languages)
        m_supportedLanguages.append(language.toString());
    m_fallbackLanguage = metadata.value(u"fallback_language").toString();
    qDebug() << "[LinkManager] 元数据加载成功";
    qDebug() << "[LinkManager] 版本:" << metadata.value(u"version").toString();
    qDebug() << "[LinkManager] 更新日期:" << metadata.value(u"last_updated").toString();
}

QString LinkManager::determineLanguage() const
{
    QString chosen = m_sources.openSettings()->value(languageSetting).toString();
    if (m_supportedLanguages.contains(chosen)) {
        qDebug() << "[LinkManager] 使用用户设置的语言:" << chosen;
        return chosen;
    }
    QString language = languageForLocale(m_sources.systemLocale);
    qDebug() << "[LinkManager] 系统语言:" << m_sources.systemLocale << "-> 映射为:" << language;
    if (m_supportedLanguages.contains(language))
        return language;
    qDebug() << "[LinkManager] 不支持的语言，使用回退语言:" << m_fallbackLanguage;
    return m_fallbackLanguage;
}

// The addresses of a page by language; nothing when the catalogue does not have the page.
std::optional<QJsonObject> LinkManager::addresses(const QString &category, const QString &key) const
{
    if (!m_catalogue.contains(category)) {
        qDebug() << "[LinkManager] 类别不存在:" << category;
        return std::nullopt;
    }
    const QJsonObject keys = m_catalogue.value(category).toObject();
    if (!keys.contains(key)) {
        qDebug() << "[LinkManager] 键不存在:" << key << "in category:" << category;
        return std::nullopt;
    }
    return keys.value(key).toObject();
}

QString LinkManager::getLink(const QString &category, const QString &key) const
{
    const std::optional<QJsonObject> links = addresses(category, key);
    if (!links)
        return {};
    QString link = links->value(m_currentLanguage).toString();
    if (link.isEmpty()) {
        qDebug() << "[LinkManager] 语言" << m_currentLanguage
                 << "不存在，使用回退语言:" << m_fallbackLanguage;
        link = links->value(m_fallbackLanguage).toString();
    }
    if (link.isEmpty())
        qDebug() << "[LinkManager] 无法找到链接:" << category << key;
    else
        qDebug() << "[LinkManager] 获取链接:" << link;
    return link;
}

QString LinkManager::getLinkWithFallback(const QString &category, const QString &key) const
{
    const QJsonObject links = addresses(category, key).value_or(QJsonObject());
    QString link = links.value(m_currentLanguage).toString();
    if (!link.isEmpty()) {
        qDebug() << "[LinkManager] ✓ 获取链接成功 [" << m_currentLanguage << "]";
        return link;
    }
    link = links.value(m_fallbackLanguage).toString();
    if (!link.isEmpty()) {
        qDebug() << "[LinkManager] ⚠ 无法获取" << m_currentLanguage << "版本，降级到" << m_fallbackLanguage;
        qDebug() << "[LinkManager] ✓ 使用回退语言 [" << m_fallbackLanguage << "]";
        return link;
    }
    qDebug() << "[LinkManager] ✗ 无法获取链接:" << category << key;
    qDebug() << "[LinkManager] ✗ 请检查 links.json 配置文件！";
    return {};
}

void LinkManager::openLink(const QString &category, const QString &key, QWidget *parent) const
{
    const QString link = getLinkWithFallback(category, key);
    if (link.isEmpty()) {
        qDebug() << "[LinkManager] ✗ 无法打开链接:" << category << key;
        warn(parent, tr("配置错误"), tr("无法加载页面链接。\n\n请联系技术支持或重新安装软件。"));
        return;
    }
    if (!m_browser || !m_browser(QUrl(link))) {
        qDebug() << "[LinkManager] ⚠ 无法打开浏览器:" << link;
        warn(parent, tr("无法打开浏览器"), tr("无法打开默认浏览器。\n\n请手动复制链接访问：\n%1").arg(link));
        return;
    }
    qDebug() << "[LinkManager] ✓ 成功打开链接:" << link;
}

void LinkManager::warn(QWidget *parent, const QString &title, const QString &text) const
{
    if (m_warningBox)
        m_warningBox(parent, title, text);
}

void LinkManager::setLanguage(const QString &code)
{
    if (!m_supportedLanguages.contains(code)) {
        qDebug() << "[LinkManager] 不支持的语言:" << code;
        return;
    }
    m_currentLanguage = code;
    const std::unique_ptr<QSettings> settings = m_sources.openSettings();
    settings->setValue(languageSetting, code);
    settings->sync();
    if (settings->status() != QSettings::NoError)
        qDebug() << "[LinkManager] The language could not be stored in" << settings->fileName();
    qDebug() << "[LinkManager] 语言已切换为:" << code;
}
