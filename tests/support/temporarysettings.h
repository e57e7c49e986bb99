#pragma once

#include "model/usersettings.h"

#include <QSettings>
#include <QTemporaryDir>

// A settings store of the test's own in the place of the user's, empty at first.
class TemporarySettings
{
public:
    QString path() const { return m_folder.filePath(QStringLiteral("settings.ini")); }

    void set(QStringView key, const QVariant &value) const
    {
        usersettings::open()->setValue(key.toString(), value);
    }
    QVariant value(QStringView key) const { return usersettings::open()->value(key.toString()); }

private:
    QTemporaryDir m_folder;
    usersettings::ScopedStore m_scope{
        [file = path()] { return std::make_unique<QSettings>(file, QSettings::IniFormat); }};
};
