#include "cli/io/language.h"

#include "cli/commandline.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "services/languages.h"

#include <QFile>

namespace cli {

using namespace Qt::StringLiterals;

Outcome<std::unique_ptr<Language>> Language::install(const QString &code)
{
    std::unique_ptr<Language> language(new Language);
    if (code.isEmpty())
        return language;
    if (!languages::codes().contains(code)) {
        return wrongCommandLine(Cli::tr("unknown language '%1', known are: %2")
                                    .arg(displayText(code), languages::codes().join(u' ')),
                                {});
    }
    QString catalogue = languages::catalogue(code);
    if (!QFile::exists(catalogue))
        catalogue = languages::supplement(code);
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
