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

/// Where a LinkManager reads from.
struct LinkSources
{
    QString catalogue;    ///< path of the JSON catalogue
    QString systemLocale; ///< name as in "de_DE"
    /// The store with the user's language, opened anew for each use.
    std::function<std::unique_ptr<QSettings>()> openSettings;

    /// The catalogue built in, the system's locale and the settings of the program.
    static LinkSources ofProgram();
};

/// The addresses of the maker's web pages, by category ("support") and key ("help"), in the user's language.
/// What is missing in that language is taken from the catalogue's fallback language; what is not there at all
/// is empty text. Without a readable catalogue every address is empty. Interface thread.
class LinkManager
{
    Q_DECLARE_TR_FUNCTIONS(LinkManager)

public:
    /// Opens an address; false when there is nothing to open it with.
    using Browser = std::function<bool(const QUrl &address)>;
    /// Shows a warning over the parent, which may be null.
    using WarningBox = std::function<void(QWidget *parent, const QString &title, const QString &text)>;

    explicit LinkManager(const LinkSources &sources);
    LinkManager(const LinkManager &) = delete;
    LinkManager &operator=(const LinkManager &) = delete;

    /// The program's own.
    static LinkManager &instance();

    QString getLink(const QString &category, const QString &key) const;
    /// The same address, with more about its origin on the debug output.
    QString getLinkWithFallback(const QString &category, const QString &key) const;

    /// Opens the page, or warns that it cannot.
    void openLink(const QString &category, const QString &key, QWidget *parent = nullptr) const;

    /// What openLink() opens and warns with. Until they are set nothing opens and warnings only go to the
    /// debug output: programs without windows have neither.
    void setBrowser(Browser browser) { m_browser = std::move(browser); }
    void setWarningBox(WarningBox warningBox) { m_warningBox = std::move(warningBox); }

    /// Uses and remembers the language; one that the catalogue does not support changes nothing.
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
