#include "ui/mainwindow/mainwindow.h"

#include "engine/wipeengine.h"
#include "jobs/jobcontroller.h"
#include "platform/filedrops.h"
#include "platform/windowframe.h"
#include "services/reportdatabase.h"
#include "ui/disks/diskselectpage.h"
#include "ui/files/fileselectpage.h"
#include "ui/history/historypage.h"
#include "ui/home/homepage.h"
#include "ui/mainwindow/frameowner.h"
#include "ui/mainwindow/recyclebinflow.h"
#include "ui/mainwindow/shadowcanvas.h"
#include "ui/mainwindow/sidebar.h"
#include "ui/methods/methodselectpage.h"
#include "ui/progress/progresspage.h"
#include "ui/settings/settingspage.h"
#include "ui/style/palette.h"
#include "ui/titlebar/programrestart.h"
#include "ui/titlebar/titlebar.h"
#include "ui/titlebar/winbutton.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QListWidget>
#include <QSessionManager>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// On top of the application's sheet, so that the sidebar has its looks whatever that says.
const QString sidebarRules =
    u"#sidebar { background-color: #1e293b; border-bottom-left-radius: 12px; }"
    "#logoWidget { background: transparent; border-bottom: 1px solid #334155; }"
    "#logoTitle { color: #f8fafc; font-size: 16px; font-weight: bold; }"
    "#logoVersion { color: #64748b; font-size: 11px; }"
    "#menuList { background: transparent; border: none; outline: none; padding: 10px;"
    " font-size: 14px; }"
    "#menuList::item { color: #94a3b8; padding: 12px 16px; border-radius: 8px;"
    " margin: 2px 0; }"
    "#menuList::item:hover { background-color: rgba(255, 255, 255, 0.05);"
    " color: #f1f5f9; }"
    "#menuList::item:selected { background-color: rgba(59, 130, 246, 0.2);"
    " color: #60a5fa; }"
    "#pageStack, #contentWidget { background-color: #F0F5FE; }"
    "#pageStack { border-bottom-right-radius: 12px; }"_s;

int menuRowOf(int page)
{
    if (page < MainWindow::History)
        return Sidebar::DataWipe;
    return page == MainWindow::History ? Sidebar::History : Sidebar::Settings;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_job(new JobController(this))
    , m_engine(&m_job->engine())
{
    // With the system menu, which is how a window without a frame is moved by keyboard.
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_Hover);
    setWindowTitle(tr("Quorvex - Data Secure Eraser"));
    setMinimumSize(980, 660);
    resize(980, 660);

    // Another program may hold it; then it is opened when there is something to store.
    if (!ReportDatabase::instance().initialize({}, 250ms))
        qWarning() << "[MainWindow] Report database:" << ReportDatabase::instance().lastError();
    // First, or every widget would be given its looks twice.
    applyStyleSheet();
    createLayout();
    createPages();
    connectPages();
    connectEngine();
    connectTitleBar();
}

MainWindow::~MainWindow()
{
    // Its end is kept with the help of the window.
    delete m_job;
}

void MainWindow::createLayout()
{
    auto *container = new QWidget;
    container->setObjectName("mainContainer"_L1);
    container->setAttribute(Qt::WA_StyledBackground);
    container->setStyleSheet(u"#mainContainer {  background-color: #f8fafc;  border-radius: 12px;}"_s);
    auto *outer = new ShadowCanvas(
        {.cornerRadius = 12, .blurRadius = 20, .offset = 5, .colour = palette::WindowShadow}, container);
    setCentralWidget(outer);
    m_outerLayout = new QVBoxLayout(outer);
    m_outerLayout->setContentsMargins(10, 10, 10, 10);
    m_outerLayout->addWidget(container);

    auto *row = new QHBoxLayout(container);
    row->setContentsMargins({});
    row->setSpacing(0);
    m_sidebar = new Sidebar;
    m_menu = m_sidebar->menu();
    row->addWidget(m_sidebar);

    auto *right = new QWidget;
    right->setObjectName("rightWidget"_L1);
    auto *column = new QVBoxLayout(right);
    column->setContentsMargins({});
    column->setSpacing(0);
    m_titleBar = new TitleBar;
    m_titleBar->setStyleSheet(u"#titleBar {  background-color: #1e293b;  border-top-right-radius: 12px;}"_s);
    column->addWidget(m_titleBar);
    m_frameOwner = std::make_unique<FrameOwner>(*this, *m_titleBar->maximizeButton());
    m_pages = new QStackedWidget;
    m_pages->setObjectName("pageStack"_L1);
    column->addWidget(m_pages, 1);
    row->addWidget(right, 1);
}

void MainWindow::createPages()
{
    m_homePage = new HomePage(this);
    m_diskPage = new DiskSelectPage(this);
    m_filePage = new FileSelectPage(this);
    m_methodPage = new MethodSelectPage(this);
    m_progressPage = new ProgressPage(this);
    m_historyPage = new HistoryPage(this);
    m_settingsPage = new SettingsPage(this);
    for (QWidget *page : std::initializer_list<QWidget *>{m_homePage, m_diskPage, m_filePage, m_methodPage,
                                                          m_progressPage, m_historyPage, m_settingsPage})
        m_pages->addWidget(page);
    m_bin = new RecycleBinFlow(*m_filePage, this);
}

void MainWindow::connectPages()
{
    connect(m_menu, &QListWidget::currentRowChanged, this, &MainWindow::onMenuItemClicked);

    connect(m_homePage, &HomePage::diskWipeClicked, this, &MainWindow::onDiskWipeClicked);
    connect(m_homePage, &HomePage::freeSpaceWipeClicked, this, &MainWindow::onFreeSpaceWipeClicked);
    connect(m_homePage, &HomePage::fileWipeClicked, this, &MainWindow::onFileWipeClicked);
    connect(m_homePage, &HomePage::recycleBinWipeClicked, this, &MainWindow::onRecycleBinWipeClicked);

    connect(m_diskPage, &DiskSelectPage::backClicked, this, &MainWindow::onBackClicked);
    connect(m_diskPage, &DiskSelectPage::nextClicked, this, &MainWindow::onNextClicked);
    connect(m_filePage, &FileSelectPage::backClicked, this, &MainWindow::onBackClicked);
    connect(m_filePage, &FileSelectPage::nextClicked, this, &MainWindow::onNextClicked);
    connect(m_methodPage, &MethodSelectPage::backClicked, this, &MainWindow::onBackClicked);
    connect(m_methodPage, &MethodSelectPage::startClicked, this, &MainWindow::onStartWipe);

    connect(m_bin, &RecycleBinFlow::scanned, this, &MainWindow::onRecycleBinScanFinished);
    connect(m_progressPage, &ProgressPage::stopClicked, this, &MainWindow::onStopClicked);
    connect(m_progressPage, &ProgressPage::backToHome, this, &MainWindow::showHome);
    connect(m_historyPage, &HistoryPage::viewCertificate, this, &MainWindow::onViewCertificate);
}

void MainWindow::connectEngine()
{
    // The engine counts whole percents, the page takes a double: a conversion that a plain connection
    // refuses.
    connect(m_engine, &WipeEngine::progressChanged, m_progressPage,
            [page = m_progressPage](int percent) { page->setProgress(percent); });
    connect(m_engine, &WipeEngine::passChanged, m_progressPage, &ProgressPage::setPass);
    connect(m_engine, &WipeEngine::speedUpdated, m_progressPage, &ProgressPage::setSpeed);
    connect(m_engine, &WipeEngine::logMessage, m_progressPage, &ProgressPage::addLog);
    m_job->setKeep([this](JobEnd &end) { keepRecords(end); });
    connect(m_job, &JobController::ended, this, &MainWindow::showEnd);
    connect(qApp, &QCoreApplication::aboutToQuit, m_job, &JobController::finish);
    // The system is about to end the session and does not wait for long, unless it can ask the user first.
    connect(
        qApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager &manager) {
            if (m_job->delaysShutdown()) {
                manager.cancel();
                return;
            }
            m_job->finish();
            showHome();
        },
        Qt::DirectConnection);
    // The errors of a running job are lines of its log already; a job that is refused has no other line.
    connect(m_engine, &WipeEngine::errorOccurred, m_progressPage, [this](const QString &error) {
        if (!m_engine->isRunning())
            m_progressPage->addLog(error.toHtmlEscaped(), 2);
    });
}

void MainWindow::connectTitleBar()
{
    connect(m_titleBar, &TitleBar::minimizeClicked, this, &MainWindow::onMinimizeClicked);
    connect(m_titleBar, &TitleBar::maximizeClicked, this, &MainWindow::onMaximizeClicked);
    connect(m_titleBar, &TitleBar::closeClicked, this, &MainWindow::onCloseClicked);
    connect(m_titleBar, &TitleBar::aboutClicked, this, &MainWindow::onAboutClicked);
    connect(m_titleBar, &TitleBar::helpClicked, this, &MainWindow::onHelpClicked);
    connect(m_titleBar, &TitleBar::supportClicked, this, &MainWindow::onSupportClicked);
    connect(m_titleBar, &TitleBar::languageChanged, this, &MainWindow::onLanguageChanged);
    m_titleBar->setRestart(
        [this] { m_job->leave(JobController::State::Restarting, [] { restartProgram(); }); });
}

void MainWindow::applyStyleSheet()
{
    QFile sheet(u":/styles/style.qss"_s);
    const QString rules = sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
    setStyleSheet(rules + sidebarRules);
}

void MainWindow::showPage(int index)
{
    m_currentPage = index;
    m_pages->setCurrentIndex(index);
    // Choosing a row shows the first page behind it, which is not always the one meant.
    const QSignalBlocker blocker(m_menu);
    m_menu->setCurrentRow(menuRowOf(index));
}

void MainWindow::showHome()
{
    showPage(Home);
}

void MainWindow::onMenuItemClicked(int index)
{
    switch (index) {
    case Sidebar::DataWipe:
        showPage(Home);
        break;
    case Sidebar::History:
        showPage(History);
        break;
    case Sidebar::Settings:
        showPage(Settings);
        break;
    default:
        break;
    }
}

void MainWindow::onNavigateToPage(int pageIndex)
{
    if (pageIndex >= Home && pageIndex <= Settings)
        showPage(pageIndex);
}

void MainWindow::setMenuEnabled(bool enabled)
{
    m_menu->setEnabled(enabled);
    m_menu->setStyleSheet(enabled ? QString() : u"QListWidget { opacity: 0.5; }"_s);
}
