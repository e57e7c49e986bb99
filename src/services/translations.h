#pragma once

#include <QString>
#include <QStringList>

/// The languages of the program's texts and their catalogues, which are among the resources. Any thread.
namespace translations {

/// The codes of all languages: those with a catalogue, and "zh_CN", which stands for the source texts as far
/// as these are Chinese.
QStringList codes();

/// The language for a system's locale as QLocale::name() gives it ("de_DE"), by its first two letters;
/// English where there is none. "zh_TW" is never chosen by itself.
QString forSystem(const QString &systemLocale);

/// Where that language's catalogue is among the resources, whether there is one or not.
QString catalogue(const QString &code);

/// The same for what a language without a catalogue needs: "zh_CN" has the texts there that are English in
/// the sources.
QString supplement(const QString &code);

} // namespace translations
