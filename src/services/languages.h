#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The languages of the program's texts and their catalogues, which are among the resources. Any thread.
namespace languages {

struct Language
{
    QString code;
    QString menuLabel; ///< flag and name, in the language itself; empty for one that the menu does not have
};

/// All languages in the order of lists and of the menu: those with a catalogue, and "zh_CN", which stands for
/// the source texts as far as these are Chinese. resources/translations/languages.txt names them.
const QList<Language> &all();

/// The codes of all(), in the same order.
QStringList codes();

/// The language for a system's locale as QLocale::name() gives it ("de_DE"), by its first two letters;
/// English where there is none. "zh_TW" is never chosen by itself.
QString forSystem(const QString &systemLocale);

/// Where that language's catalogue is among the resources, whether there is one or not.
QString catalogue(const QString &code);

/// The same for what a language without a catalogue needs: "zh_CN" has the texts there that are English in
/// the sources.
QString supplement(const QString &code);

} // namespace languages
