#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QSettings)

/// Chooses the language of the interface: the stored one as it is, else the system's if it has a catalogue,
/// else English. "zh_CN" means the source texts. Loads and installs the catalogue of the language; without a
/// catalogue the source texts stay. The debug output names the result.
///
/// Returns the chosen code, also without a catalogue, and stores nothing. `systemLocale` is a name as of
/// QLocale::name() ("de_DE"). To be called once in a process, with an application object.
QString initTranslation(const QSettings &store, const QString &systemLocale);
