#include "model/displaytime.h"

#include <QDateTime>

QString displayTime(const QDateTime &moment)
{
    return moment.toString(u"yyyy-MM-dd HH:mm:ss");
}
