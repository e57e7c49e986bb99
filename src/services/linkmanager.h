#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QUrl)
QT_FORWARD_DECLARE_CLASS(QWidget)

/// The inputs of a LinkManager.
struct LinkSources
{
    QString catalogue;    ///< path of the JSON catalogue
    QString systemLocale; ///< name as in "de_DE"
    /// Opens the store with the user's language, once for each use.
    std::function<std::unique_ptr<QSettings>()> openSettings;

    /// The built-in catalogue, the system's locale and the settings of the program.
    static LinkSources ofProgram();
};

/// The addresses of the maker's web pages, by category ("support") and key ("help"), in the user's language.
/// An address that is missing in that language is taken from the catalogue's fallback language; an unknown
/// one is empty. Without a readable catalogue every address is empty. Interface thread.
class LinkManager
{
    Q_DECLARE_TR_FUNCTIONS(LinkManager)

public:
    /// Opens an address; false when no program opens it.
    using Browser = std::function<bool(const QUrl &address)>;
    /// Shows a warning over the parent, which may be null.
    using WarningBox = std::function<void(QWidget *parent, const QString &title, const QString &text)>;

    explicit LinkManager(const LinkSources &sources);
    LinkManager(const LinkManager &) = delete;
    LinkManager &operator=(const LinkManager &) = delete;

    /// The instance of the program.
    static LinkManager &instance();

    QString getLink(const QString &category, const QString &key) const;
    /// The same address; traces its origin to the debug output in more detail.
    QString getLinkWithFallback(const QString &category, const QString &key) const;

    /// Opens the page or shows a warning.
    void openLink(const QString &category, const QString &key, QWidget *parent = nullptr) const;

    /// The functions that openLink() uses. Programs without windows set neither: then nothing opens, and
    /// warnings only go to the debug output.
    void setBrowser(Browser browser) { m_browser = std::move(browser); }
    void setWarningBox(WarningBox warningBox) { m_warningBox = std::move(warningBox); }

    /// Uses and stores the language; a language that the catalogue does not support changes nothing.
    void setLanguage(const QString &code);
    QString currentLanguage() const { return m_currentLanguage; }
    QStringList supportedLanguages() const { return m_supportedLanguages; }

private:
    bool loadCatalogue(const QString &path);
    void readMetadata(const QJsonObject &metadata);
    QString determineLanguage() const;
    std::optional<QJsonObject> addresses(const QString &category, const QString &key) const;
    void warn(QWidget *parent, const QString &title, const QString &text) const;

    LinkSources m_sources;
    Browser m_browser;
    WarningBox m_warningBox;
    QJsonObject m_catalogue;
    QStringList m_supportedLanguages;
    QString m_fallbackLanguage;
    QString m_currentLanguage;
};
