#include "ui/startup/language.h"

#include "model/usersettings.h"
#include "services/applog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QTranslator>

using namespace Qt::StringLiterals;

// The resources of a static library are not found by themselves. The macro does not work within a namespace.
static void addCataloguesToResources()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

QString languageOfSystem(const QString &code)
{
    static const QStringList same{u"en"_s, u"fr"_s, u"de"_s, u"ja"_s, u"es"_s,
                                  u"ko"_s, u"nl"_s, u"pt"_s, u"it"_s};
    if (code == u"zh"_s)
        return u"zh_CN"_s;
    return same.contains(code) ? code : u"en"_s;
}

QString chooseLanguage(const QString &stored, const QString &systemLocale)
{
    qDebug() << "[Main] User language from settings:" << stored;
    if (!stored.isEmpty()) {
        qDebug() << "[Main] Using user language:" << stored;
        return stored;
    }
    const QString system = systemLocale.left(2);
    qDebug() << "[Main] System language:" << system;
    QString detected = languageOfSystem(system);
    qDebug() << "[Main] Auto-detected:" << detected;
    return detected;
}

QTranslator &translator()
{
    static QTranslator instance;
    return instance;
}

bool loadCatalogue(const QString &path)
{
    // Empty, but not null: null stands for "_." and ".qm", with which a stored "fr_CA" would end up at "fr".
    const QString none = u""_s;
    return translator().load(path, none, none, none);
}

void installLanguage(const QString &code)
{
    const QString path = u":/translations/quorvex_%1.qm"_s.arg(code);
    qDebug() << "[Main] Translation file:" << path;
    qDebug() << "[Main] File exists:" << QFile::exists(path);
    if (!loadCatalogue(path)) {
        qDebug() << "[Main] ✗ Failed to load translation file:" << path;
        qDebug() << "[Main] Falling back to English";
    } else if (!QCoreApplication::installTranslator(&translator())) {
        qDebug() << "[Main] ✗ Failed to install translator";
    } else {
        qDebug() << "[Main] ✓ Translation loaded successfully:" << code;
        AppLog::instance().info(u"Loaded translation: %1"_s.arg(code));
    }
}

} // namespace

QString initTranslation(const QSettings &store, const QString &systemLocale)
{
    addCataloguesToResources();
    qDebug() << "========== Translation Init ==========";
    qDebug() << "[Main] Settings path:" << store.fileName();
    QString code = chooseLanguage(usersettings::readString(store, usersettings::Language), systemLocale);
    installLanguage(code);
    qDebug() << "=======================================";
    return code;
}
