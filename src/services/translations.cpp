#include "services/translations.h"

using namespace Qt::StringLiterals;

// The resources of a static library are not found by themselves. The macro does not work within a namespace.
static void addCataloguesToResources()
{
    Q_INIT_RESOURCE(translations);
    Q_INIT_RESOURCE(supplement);
}

namespace translations {

QStringList codes()
{
    return {u"en"_s, u"fr"_s, u"de"_s, u"ja"_s,    u"es"_s,   u"ko"_s,
            u"nl"_s, u"pt"_s, u"it"_s, u"zh_TW"_s, u"zh_CN"_s};
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

} // namespace translations
