#include "ui/titlebar/programrestart.h"

#include <QCoreApplication>
#include <QDebug>
#include <QProcess>

void restartProgram(const ProgramStarter &start)
{
    const QString program = QCoreApplication::applicationFilePath();
    if (!start(program, QCoreApplication::arguments().mid(1)))
        qWarning() << "[TitleBar] The program could not be started again:" << program;
    // quit() would first ask every window to close, and a running job would object.
    QCoreApplication::exit(0);
}

void restartProgram()
{
    restartProgram([](const QString &program, const QStringList &arguments) {
        return QProcess::startDetached(program, arguments);
    });
}
