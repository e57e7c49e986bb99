#pragma once

#include <QString>

/// The code of the interface language: the stored one as it stands, else the system's as far as there is a
/// catalogue for it, else English. "zh_CN" stands for the source texts. Traces to the debug output how it
/// came about. `systemLocale` as QLocale::name() gives it ("de_DE").
QString chooseLanguage(const QString &stored, const QString &systemLocale);

/// Loads and installs the language's catalogue, once in a process. False when there is none, which leaves the
/// source texts. Needs an application object.
bool installLanguage(const QString &code);
