#include "ui/prompts/filefilter.h"

QString filterForThisSystem(QString filter)
{
    return filter.replace(QLatin1String("*.*"), QLatin1String("*"));
}
