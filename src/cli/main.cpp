#include "cli/certificateexport.h"
#include "cli/processio.h"
#include "cli/runcli.h"
#include "model/displaytext.h"
#include "platform/process.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

using namespace Qt::StringLiterals;

// Engine and services trace every step; between the lines for the user that would hide what matters.
void printDiagnostics(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    static const bool isDebugging = qEnvironmentVariable("QUORVEX_DEBUG") == u"1"_s;
    if (isDebugging || (type != QtDebugMsg && type != QtInfoMsg)) {
        // Where even standard error is gone nobody can be told.
        [[maybe_unused]] const auto status =
            platform::writeText(platform::StandardStream::Error, displayText(message).toUtf8() + '\n');
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(printDiagnostics);
    platform::outliveSizeLimits();
    platform::provideComputerName();
    const QStringList arguments = platform::decodedArguments(argc, argv);
    const std::unique_ptr<QCoreApplication> application = cli::makeApplication(argc, argv);
    QCoreApplication::setOrganizationName(u"Veltrano"_s);
    QCoreApplication::setApplicationName(u"Quorvex"_s);
    QCoreApplication::setApplicationVersion(u"5.0"_s);

    cli::ProcessIo io;
    return cli::runCli(arguments.mid(1), io, QLocale::system().name());
}
