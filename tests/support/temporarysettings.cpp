#include "support/temporarysettings.h"

void TemporarySettings::set(QStringView key, const QVariant &value) const
{
    usersettings::open()->setValue(key.toString(), value);
}

QVariant TemporarySettings::value(QStringView key) const
{
    return usersettings::open()->value(key.toString());
}
