#pragma once

#include "model/usersettings.h"

#include <QSettings>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

#include <memory>

// A settings store of the test that replaces the user's; empty at first.
class TemporarySettings
{
public:
    QString path() const { return m_folder.filePath(QStringLiteral("settings.ini")); }

    void set(QStringView key, const QVariant &value) const;
    QVariant value(QStringView key) const;

private:
    QTemporaryDir m_folder;
    usersettings::ScopedStore m_scope{
        [file = path()] { return std::make_unique<QSettings>(file, QSettings::IniFormat); }};
};
