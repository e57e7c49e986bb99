#include "services/languages.h"

#include "services/languagelist.h"

using namespace Qt::StringLiterals;

// A static library's resources must be registered explicitly. The macro does not work within a namespace.
static void addCataloguesToResources()
{
    Q_INIT_RESOURCE(translations);
    Q_INIT_RESOURCE(supplement);
}

namespace languages {

const QList<Language> &all()
{
    static const QList<Language> languages = [] {
        QList<Language> list;
        for (const Listed &language : List)
            list.append({QString::fromUtf16(language.code), QString::fromUtf16(language.menuLabel)});
        return list;
    }();
    return languages;
}

QStringList codes()
{
    QStringList codes;
    for (const Language &language : all())
        codes.append(language.code);
    return codes;
}

QString forSystem(const QString &systemLocale)
{
    const QString code = systemLocale.left(2);
    if (code == u"zh"_s)
        return u"zh_CN"_s;
    return codes().contains(code) ? code : u"en"_s;
}

QString catalogue(const QString &code)
{
    addCataloguesToResources();
    return u":/translations/quorvex_%1.qm"_s.arg(code);
}

QString supplement(const QString &code)
{
    addCataloguesToResources();
    return u":/supplement/quorvex_%1.qm"_s.arg(code);
}

} // namespace languages
