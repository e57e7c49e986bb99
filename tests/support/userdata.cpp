#include "support/userdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

void userdata::useProgramIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("Quorvex"));
    QCoreApplication::setOrganizationName(QStringLiteral("Veltrano"));
}

void userdata::hide()
{
#ifdef Q_OS_WIN
    QStandardPaths::setTestModeEnabled(true);
#endif
}

void userdata::moveTo(const QString &home)
{
#ifdef Q_OS_WIN
    Q_UNUSED(home)
    hide();
#else
    qputenv("XDG_DATA_HOME", QFile::encodeName(home));
#endif
}

QString userdata::folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

bool userdata::isOfTests()
{
#ifdef Q_OS_WIN
    return folder().contains(QLatin1String("/qttest/"));
#else
    return !qEnvironmentVariableIsEmpty("XDG_DATA_HOME") &&
           folder().startsWith(qEnvironmentVariable("XDG_DATA_HOME"));
#endif
}

void userdata::clear()
{
#ifdef Q_OS_WIN
    if (!isOfTests())
        qFatal("the data folder is that of a user");
    QFile::remove(folder()); // a test may have put a file in place of the folder
    QDir(folder()).removeRecursively();
#endif
}
