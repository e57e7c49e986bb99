#include "ui/startup/language.h"

#include "services/applog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
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

QTranslator &translator()
{
    static QTranslator instance;
    return instance;
}

} // namespace

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

bool installLanguage(const QString &code)
{
    addCataloguesToResources();
    const QString path = u":/translations/quorvex_%1.qm"_s.arg(code);
    qDebug() << "[Main] Translation file:" << path;
    qDebug() << "[Main] File exists:" << QFile::exists(path);
    if (!translator().load(path)) {
        qDebug() << "[Main] ✗ Failed to load translation file:" << path;
        qDebug() << "[Main] Falling back to English";
        return false;
    }
    if (!QCoreApplication::installTranslator(&translator())) {
        qDebug() << "[Main] ✗ Failed to install translator";
        return false;
    }
    qDebug() << "[Main] ✓ Translation loaded successfully:" << code;
    AppLog::instance().info(u"Loaded translation: %1"_s.arg(code));
    return true;
}
