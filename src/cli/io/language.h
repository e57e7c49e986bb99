#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QTranslator>

#include <memory>

namespace cli {

// The language with that code, in force until destruction. An empty code changes nothing: the texts then are
// those of the sources, in English and Chinese.
class Language
{
public:
    static Outcome<std::unique_ptr<Language>> install(const QString &code);
    ~Language();
    Language(const Language &) = delete;
    Language &operator=(const Language &) = delete;

private:
    Language() = default;

    QTranslator m_translator;
};

} // namespace cli
