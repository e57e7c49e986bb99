#include "model/version.h"

using namespace Qt::StringLiterals;

QString programVersion()
{
    return QStringLiteral(QUORVEX_VERSION);
}

QString programTitle()
{
    return u"Quorvex "_s + programVersion();
}
