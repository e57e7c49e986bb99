#include "cli/language.h"

#include "cli/commandline.h"
#include "cli/translate.h"
#include "model/displaytext.h"

#include <QFile>

// The resources of a static library are not found by themselves. The macro does not work within a namespace.
static void addCataloguesToResources()
{
    Q_INIT_RESOURCE(translations);
}

namespace cli {

using namespace Qt::StringLiterals;

namespace {

QStringList languageCodes()
{
    return {u"en"_s, u"fr"_s, u"de"_s, u"ja"_s,    u"es"_s,   u"ko"_s,
            u"nl"_s, u"pt"_s, u"it"_s, u"zh_TW"_s, u"zh_CN"_s};
}

} // namespace

Outcome<std::unique_ptr<Language>> Language::install(const QString &code)
{
    std::unique_ptr<Language> language(new Language);
    if (code.isEmpty())
        return language;
    if (!languageCodes().contains(code)) {
        return wrongCommandLine(Cli::tr("unknown language '%1', known are: %2")
                                    .arg(displayText(code), languageCodes().join(u' ')),
                                {});
    }
    addCataloguesToResources();
    const QString catalogue = u":/translations/quorvex_%1.qm"_s.arg(code);
    if (!QFile::exists(catalogue))
        return language;
    if (!language->m_translator.load(catalogue))
        return Refusal{SurroundingsFailed,
                       Cli::tr("the catalogue of the language %1 cannot be read").arg(code)};
    QCoreApplication::installTranslator(&language->m_translator);
    return language;
}

Language::~Language()
{
    QCoreApplication::removeTranslator(&m_translator);
}

} // namespace cli
