#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The languages of the program's texts and their catalogues among the resources. Any thread.
namespace languages {

struct Language
{
    QString code;
    QString menuLabel; ///< flag and name in the language itself; empty when the menu has no entry for it
};

/// All languages in the order of resources/translations/languages.txt, which is that of lists and of the
/// menu. "zh_CN" has no catalogue: it is the language of the Chinese source texts.
const QList<Language> &all();

/// The codes of all(), in the same order.
QStringList codes();

/// The language for a system locale in the form of QLocale::name() ("de_DE"), by its first two letters;
/// English when there is none. "zh_TW" is never chosen automatically.
QString forSystem(const QString &systemLocale);

/// The resource path of that language's catalogue, whether it exists or not.
QString catalogue(const QString &code);

/// The resource path of the supplement of a language without a catalogue: for "zh_CN" it has the texts that
/// are English in the sources.
QString supplement(const QString &code);

} // namespace languages
