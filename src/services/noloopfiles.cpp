#include "services/loopfiles.h"

QString LoopFiles::problem(const QStringList & /*paths*/, const QString & /*sys*/)
{
    return {};
}
