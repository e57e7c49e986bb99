#include "ui/mainwindow/mainwindow.h"

#include "jobs/jobcontroller.h"
#include "model/wipetask.h"
#include "services/linkmanager.h"
#include "services/reportdatabase.h"
#include "ui/certificate/certificatedialog.h"
#include "ui/disks/diskselectpage.h"
#include "ui/files/fileselectpage.h"
#include "ui/history/historypage.h"
#include "ui/history/storedreport.h"
#include "ui/home/homepage.h"
#include "ui/mainwindow/aboutbox.h"
#include "ui/mainwindow/framegrips.h"
#include "ui/mainwindow/jobflow.h"
#include "ui/mainwindow/nativeframe.h"
#include "ui/mainwindow/recyclebinflow.h"
#include "ui/mainwindow/sidebar.h"
#include "ui/mainwindow/taskchoice.h"
#include "ui/mainwindow/waitnotice.h"
#include "ui/mainwindow/windowsheet.h"
#include "ui/mainwindow/windowshell.h"
#include "ui/methods/methodselectpage.h"
#include "ui/progress/progresspage.h"
#include "ui/prompts/prompts.h"
#include "ui/settings/settingspage.h"
#include "ui/titlebar/programrestart.h"
#include "ui/titlebar/titlebar.h"
#include "ui/titlebar/winbutton.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QHoverEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSessionManager>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <chrono>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

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
{
    // A window without a frame is moved by keyboard through the system menu.
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_Hover);
    setWindowTitle(tr("Quorvex - Data Secure Eraser"));
    setMinimumSize(980, 660);
    resize(980, 660);

    // The database is opened later, for the first report to store, while another program holds it.
    if (!ReportDatabase::instance().initialize({}, 250ms))
        qWarning() << "[MainWindow] Report database:" << ReportDatabase::instance().lastError();
    // Set first, or every widget would be polished twice.
    setStyleSheet(windowSheet());
    m_shell = std::make_unique<WindowShell>(*this);
    m_menu = m_shell->sidebar().menu();
    m_pages = &m_shell->pages();
    m_titleBar = &m_shell->titleBar();
    m_grips = std::make_unique<FrameGrips>(*this);
    m_nativeFrame = std::make_unique<NativeFrame>(*this, *m_titleBar->maximizeButton(),
                                                  [this](const QStringList &paths) { takeDrop(paths); });
    createPages();
    createJobFlow();
    connectPages();
    connectTitleBar();
    connectSession();
}

MainWindow::~MainWindow()
{
    // The pages are needed to keep the records of a last job.
    delete m_job;
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
    m_choice = std::make_unique<TaskChoice>(*m_job, *m_diskPage, *m_filePage, *m_bin);
}

void MainWindow::createJobFlow()
{
    m_flow = new JobFlow({*m_job, *m_progressPage, *m_historyPage, *m_bin, *this}, this);
    connect(m_flow, &JobFlow::started, this, [this] {
        setMenuEnabled(false);
        showPage(Progress);
    });
    connect(m_flow, &JobFlow::refused, this, [this] {
        setMenuEnabled(true);
        showPage(MethodSelect);
    });
    connect(m_flow, &JobFlow::stopped, this, [this] {
        setMenuEnabled(true);
        showHome();
    });
    connect(m_flow, &JobFlow::ended, this, [this] { setMenuEnabled(true); });
    connect(m_flow, &JobFlow::certificateWanted, this, &MainWindow::onViewCertificate);
    connect(m_flow, &JobFlow::left, this, &MainWindow::showHome);
    connect(m_flow, &JobFlow::freeSpaceWanted, this, &MainWindow::onFreeSpaceWipeClicked);
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

void MainWindow::connectSession()
{
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
}

void MainWindow::showPage(int index)
{
    m_currentPage = index;
    m_pages->setCurrentIndex(index);
    // A change of the row would show the first page of that row instead.
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

void MainWindow::onDiskWipeClicked()
{
    m_choice->begin(DiskWipe);
    showDisks(DiskSelectPage::WipeDisk);
}

void MainWindow::onFreeSpaceWipeClicked()
{
    m_choice->begin(FreeSpaceWipe);
    showDisks(DiskSelectPage::WipeFreeSpace);
}

// A sleeping drive takes seconds to answer.
void MainWindow::showDisks(int mode)
{
    const WaitNotice notice(*m_pages, tr("Reading drives..."));
    m_diskPage->setMode(mode);
    m_diskPage->refresh();
    showPage(DiskSelect);
}

void MainWindow::onFileWipeClicked()
{
    m_choice->begin(FileWipe);
    m_filePage->clearFiles();
    showPage(FileSelect);
}

void MainWindow::onRecycleBinWipeClicked()
{
    m_bin->begin();
    showPage(FileSelect);
    m_bin->scan();
}

void MainWindow::onRecycleBinScanFinished()
{
    m_filePage->hideLoading();
    // The user has left the page during the scan.
    if (m_currentPage != FileSelect || !m_bin->isActive())
        return;
    const RecycleBinInfo found = m_bin->result();
    if (found.fileCount < 1 && found.unrecorded.isEmpty())
        offerFreeSpaceWipeOfEmptyBin(found);
    else
        m_choice->takeRecycleBin(found);
}

void MainWindow::offerFreeSpaceWipeOfEmptyBin(const RecycleBinInfo &found)
{
    m_bin->leave();
    showHome();
    const QString question = tr("The Recycle Bin is already empty.\n\n"
                                "However, previously deleted files may still be recoverable.\n"
                                "Would you like to wipe free space to ensure they cannot be recovered?");
    const QStringList texts = QStringList{question} + RecycleBinFlow::besideItems(found);
    if (Prompts::current().confirms(this, QMessageBox::Question, tr("Recycle Bin is Empty"),
                                    texts.join(QStringLiteral("\n\n"))))
        onFreeSpaceWipeClicked();
}

void MainWindow::loadMoreRecycleBinItems()
{
    m_bin->showMore();
}

void MainWindow::onRecycleBinListScrolled()
{
    m_bin->onScrolled();
}

void MainWindow::onBackClicked()
{
    switch (m_currentPage) {
    case DiskSelect:
    case FileSelect:
        m_bin->leave();
        showHome();
        break;
    case MethodSelect:
        backFromMethods();
        break;
    case Progress:
        break;
    default:
        showHome();
        break;
    }
}

void MainWindow::backFromMethods()
{
    if (m_job->task() && m_job->task()->operationType() == FileWipe) {
        showPage(FileSelect);
        return;
    }
    // Showing the page reads the drives again.
    const WaitNotice notice(*m_pages, tr("Reading drives..."));
    showPage(DiskSelect);
}

void MainWindow::onNextClicked()
{
    switch (m_currentPage) {
    case DiskSelect:
        m_choice->takeDisk();
        showPage(MethodSelect);
        break;
    case FileSelect:
        m_choice->takeFiles();
        showPage(MethodSelect);
        break;
    case MethodSelect:
        onStartWipe();
        break;
    default:
        break;
    }
}

void MainWindow::onStartWipe()
{
    m_flow->start(m_methodPage->selectedMethod());
}

void MainWindow::onStopClicked()
{
    m_flow->stop();
}

void MainWindow::onWipeCompleted(bool success)
{
    if (!m_job->task()) {
        setMenuEnabled(true);
        qWarning() << "m_currentTask is null";
        showHome();
        return;
    }
    m_job->complete(success);
}

void MainWindow::onViewCertificate(const QString &certificateId)
{
    if (const std::optional<WipeReport> report = storedReport(certificateId, this))
        CertificateDialog(*report, this, ReportDatabase::instance().outcome(certificateId)).exec();
}

bool MainWindow::event(QEvent *event)
{
    if (event->type() == QEvent::HoverMove)
        m_grips->hover(static_cast<QHoverEvent *>(event)->position().toPoint());
    // The native window is made when the window is first shown, and may be made anew.
    if (event->type() == QEvent::WinIdChange)
        m_nativeFrame->attach();
    return QMainWindow::event(event);
}

// The pages handle drops on their widgets; these come to the window as a whole.
void MainWindow::takeDrop(const QStringList &paths)
{
    if (m_currentPage == FileSelect && !QApplication::activeModalWidget())
        m_filePage->addDropped(paths);
}

void MainWindow::onMinimizeClicked()
{
    showMinimized();
}

void MainWindow::onMaximizeClicked()
{
    const bool maximize = !isMaximized();
    if (maximize)
        showMaximized();
    else
        showNormal();
    m_titleBar->setMaximized(maximize);
}

void MainWindow::onCloseClicked()
{
    close();
}

// The system maximises and restores windows too, by a drag to the edge of the screen or from the keyboard.
void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange)
        m_shell->setMaximized(isMaximized());
    QMainWindow::changeEvent(event);
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    if (m_grips->press(*event))
        event->accept();
    else
        QMainWindow::mousePressEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_grips->drag(*event))
        event->accept();
    else
        QMainWindow::mouseMoveEvent(event);
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    m_grips->release();
    QMainWindow::mouseReleaseEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_flow->mayClose()) {
        event->ignore();
        return;
    }
    m_job->leave(JobController::State::Closing);
    event->accept();
}

void MainWindow::leaveUnasked(std::function<void()> then)
{
    m_job->leave(JobController::State::Closing, std::move(then));
}

void MainWindow::onAboutClicked()
{
    AboutBox::show(*this);
}

void MainWindow::onHelpClicked()
{
    LinkManager::instance().openLink(u"support"_s, u"help"_s, this);
}

void MainWindow::onSupportClicked()
{
    LinkManager::instance().openLink(u"support"_s, u"contact"_s, this);
}

void MainWindow::onLanguageChanged(const QString &langCode)
{
    qDebug() << "[MainWindow] Language changed to:" << langCode;
}
