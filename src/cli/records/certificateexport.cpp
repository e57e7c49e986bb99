#include "cli/records/certificateexport.h"

#include "certificate/certificaterenderer.h"
#include "platform/process.h"

#include <QGuiApplication>

namespace cli {

namespace {

// What a graphics system finds missing around it is of no interest to a program without windows.
void dropWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg || type == QtCriticalMsg) {
        // Where even standard error is gone nobody can be told.
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
    // Whatever display there is, and also when there is none.
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
