#include "cli/exitcode.h"
#include "cli/io/processio.h"
#include "cli/records/certificateexport.h"
#include "cli/runcli.h"
#include "model/displaytext.h"
#include "model/version.h"
#include "platform/process.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdio>
#include <new>

namespace {

using namespace Qt::StringLiterals;

// Hides the traces of engine and services, which would bury the lines for the user.
void printDiagnostics(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    static const bool isDebugging = qEnvironmentVariable("QUORVEX_DEBUG") == u"1"_s;
    if (isDebugging || (type != QtDebugMsg && type != QtInfoMsg)) {
        // If standard error fails too, there is no way left to report it.
        [[maybe_unused]] const auto status =
            platform::writeText(platform::StandardStream::Error, displayText(message).toUtf8() + '\n');
    }
}

} // namespace

int main(int argc, char *argv[])
{
    platform::failWithoutBoxes();
    platform::holdStopSignals();
    platform::liftOpenFileLimit();
    qInstallMessageHandler(printDiagnostics);
    platform::outliveSizeLimits();
    // GLib's event loop aborts the process when memory runs short; Qt's own loop throws, and the failure can
    // be reported.
    qputenv("QT_NO_GLIB", "1");
    platform::provideComputerName();
    const QStringList arguments = platform::decodedArguments(argc, argv);
    const std::unique_ptr<QCoreApplication> application = cli::makeApplication(argc, argv);
    QCoreApplication::setOrganizationName(u"Veltrano"_s);
    QCoreApplication::setApplicationName(u"Quorvex"_s);
    QCoreApplication::setApplicationVersion(programVersion());

    cli::ProcessIo io;
    try {
        return cli::runCli(arguments.mid(1), io, QLocale::system().name());
    } catch (const std::bad_alloc &) {
        // The job was stopped while the stack unwound. This output must not allocate memory.
        static_cast<void>(std::fputs("out of memory\n", stderr));
    }
    return cli::SurroundingsFailed;
}
