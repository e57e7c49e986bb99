#include "ui/startup/startup.h"

#include "model/usersettings.h"
#include "model/version.h"
#include "platform/appearance.h"
#include "platform/process.h"
#include "services/applog.h"
#include "services/linkmanager.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/prompts/prompts.h"
#include "ui/startup/language.h"
#include "ui/style/lightpalette.h"
#include "ui/style/uiresources.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFont>
#include <QIcon>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

void nameApplication()
{
    QApplication::setApplicationName(u"Quorvex"_s);
    QApplication::setApplicationVersion(programVersion());
    QApplication::setOrganizationName(u"Veltrano"_s);
    QApplication::setOrganizationDomain(QStringLiteral(QUORVEX_WEB_DOMAIN));
}

void openLog()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    // Without the folder there is no log file.
    QDir().mkpath(folder);
    AppLog &log = AppLog::instance();
    log.setLogFile(folder + u"/quorvex.log"_s);
    log.info(u"Application started"_s);
    log.info(u"Version: %1"_s.arg(QApplication::applicationVersion()));
}

void prepareLinks(const QString &language)
{
    LinkManager &links = LinkManager::instance();
    links.setBrowser([](const QUrl &address) { return QDesktopServices::openUrl(address); });
    links.setWarningBox([](QWidget *parent, const QString &title, const QString &text) {
        Prompts::current().warning(parent, title, text);
    });
    links.setLanguage(language);
}

QFont interfaceFont()
{
    QFont font(u"Segoe UI"_s, 10, QFont::Normal, false);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

} // namespace

int runDesktopProgram(int &argc, char **argv)
{
    platform::failWithoutBoxes();
    // Standard error has no reader after its terminal was closed or the program that started this one has
    // ended.
    platform::outliveReaders();
    platform::liftOpenFileLimit();
    platform::outliveSizeLimits();
    platform::provideComputerName();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    platform::keepLightFrames();
    // The system's style would draw its own colours under our texts. Fusion draws in our palette only.
    if (platform::hasHighContrast())
        QApplication::setStyle(u"Fusion"_s);
    QApplication application(argc, argv);
    QApplication::setPalette(lightPalette());
    nameApplication();
    openLog();
    const std::unique_ptr<QSettings> settings = usersettings::open();
    const QString language = initTranslation(*settings, QLocale::system().name());
    prepareLinks(language);
    QApplication::setFont(interfaceFont());
    addUiResources();
    QApplication::setWindowIcon(QIcon(u":/icons/icon.ico"_s));

    auto window = std::make_unique<MainWindow>();
    window->show();
    AppLog::instance().info(u"Main window displayed"_s);
    // At the end of the session or of the terminal there is no question. The record of a running job is kept.
    const platform::StopHandler stopping([&window] { window->leaveUnasked([] { QApplication::exit(0); }); });
    const int code = QApplication::exec();
    window.reset();
    AppLog::instance().info(u"Application exiting"_s);
    return code;
}
