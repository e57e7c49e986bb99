#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QSettings)

/// Chooses the language of the interface: the stored one as it stands, else the system's as far as there is a
/// catalogue for it, else English; "zh_CN" stands for the source texts. Then loads and installs its
/// catalogue; without one the source texts stay. What came about goes to the debug output.
///
/// The code that was chosen, whether it has a catalogue or not; nothing is stored. `systemLocale` as
/// QLocale::name() gives it ("de_DE"). Once in a process, with an application object.
QString initTranslation(const QSettings &store, const QString &systemLocale);
