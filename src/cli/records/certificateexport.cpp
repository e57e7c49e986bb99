#include "cli/records/certificateexport.h"

#include "certificate/certificaterenderer.h"
#include "platform/process.h"

#include <QGuiApplication>

namespace cli {

namespace {

// Warnings of the graphics system do not concern a program without windows.
void dropWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg || type == QtCriticalMsg) {
        // If standard error fails too, there is no way left to report it.
        [[maybe_unused]] const auto status =
            platform::writeText(platform::StandardStream::Error, message.toUtf8() + '\n');
    }
}

} // namespace

bool canExportCertificates()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    // No display is used, even if there is one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler handler = qInstallMessageHandler(dropWarnings);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(handler);
    return application;
}

bool exportCertificate(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                       const QString &path)
{
    return CertificateRenderer().exportToPdf(report, path, outcome);
}

} // namespace cli
