#pragma once

#include "cli/outcome.h"

#include <QString>
#include <QTranslator>

#include <memory>

namespace cli {

/// Installs the language with that code until destruction. An empty code leaves the source texts, which are
/// English and Chinese.
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
