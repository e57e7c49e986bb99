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
    platform::failWithoutBoxes();
    platform::holdStopSignals();
    platform::liftOpenFileLimit();
    qInstallMessageHandler(printDiagnostics);
    platform::outliveSizeLimits();
    // GLib's event loop ends the process when memory runs short; the other one lets it be told.
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
        // What ran has been stopped on the way here. Nothing that needs memory.
        static_cast<void>(std::fputs("out of memory\n", stderr));
    }
    return cli::SurroundingsFailed;
}
