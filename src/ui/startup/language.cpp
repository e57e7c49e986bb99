#include "ui/startup/language.h"

#include "model/usersettings.h"
#include "services/applog.h"
#include "services/languages.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QSettings>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

QString chooseLanguage(const QString &stored, const QString &systemLocale)
{
    qDebug() << "[Main] User language from settings:" << stored;
    if (!stored.isEmpty()) {
        qDebug() << "[Main] Using user language:" << stored;
        return stored;
    }
    qDebug() << "[Main] System language:" << systemLocale.left(2);
    QString detected = languages::forSystem(systemLocale);
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
    // Empty strings, as null strings mean "_." and ".qm", by which a stored "fr_CA" would load "fr".
    const QString none = u""_s;
    return translator().load(path, none, none, none);
}

void installLanguage(const QString &code)
{
    const QString path = languages::catalogue(code);
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

// These complete the program's own catalogue. A missing one is no error, as its texts are in the sources
// then.
void installBeside(QTranslator &beside, const QString &path)
{
    if (QCoreApplication::instance() && QFile::exists(path) && beside.load(path))
        QCoreApplication::installTranslator(&beside);
}

} // namespace

QString initTranslation(const QSettings &store, const QString &systemLocale)
{
    qDebug() << "========== Translation Init ==========";
    qDebug() << "[Main] Settings path:" << store.fileName();
    QString code = chooseLanguage(usersettings::readString(store, usersettings::Language), systemLocale);
    installLanguage(code);
    qDebug() << "=======================================";
    Q_INIT_RESOURCE(qttexts);
    static QTranslator supplement;
    installBeside(supplement, languages::supplement(code));
    static QTranslator textsOfQt;
    installBeside(textsOfQt, u":/qttexts/qt_%1.qm"_s.arg(code));
    return code;
}
