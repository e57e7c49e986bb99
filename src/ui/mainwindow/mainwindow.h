#pragma once

#include "ui/prompts/prompts.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QPoint>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QListWidget)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
QT_FORWARD_DECLARE_CLASS(QVBoxLayout)
class DiskSelectPage;
class FileSelectPage;
class FrameOwner;
class HistoryPage;
class HomePage;
class JobController;
class MethodSelectPage;
class ProgressPage;
class RecycleBinFlow;
class SettingsPage;
class Sidebar;
class TitleBar;
class WipeEngine;
class WipeTask;
struct JobEnd;
struct RecycleBinInfo;
namespace platform {
class FileDrops;
class WindowFrame;
} // namespace platform

/// The program's one window: sidebar, title bar and the stack of pages. Turns the user's way through the
/// pages into a task, hands it to the controller of the job, keeps report and certificate at its end,
/// whichever way it comes, and tells of it. Opens the report database. Interface thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Indexes in the stack of pages.
    enum Page { Home = 0, DiskSelect, FileSelect, MethodSelect, Progress, History, Settings };

    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    int currentPage() const { return m_currentPage; }

    /// The program is asked to go and nobody is there to ask back: a job that runs is stopped, and the
    /// function is called when its end is kept.
    void leaveUnasked(std::function<void()> then);

public slots:
    void onMenuItemClicked(int index);
    void onNavigateToPage(int pageIndex);

    void onDiskWipeClicked();
    void onFreeSpaceWipeClicked();
    void onFileWipeClicked();
    void onRecycleBinWipeClicked();
    void onBackClicked();
    void onNextClicked();

    void onStartWipe();
    void onStopClicked();
    void onWipeCompleted(bool success);
    void onViewCertificate(const QString &certificateId);

    void onMinimizeClicked();
    void onMaximizeClicked();
    void onCloseClicked();
    void onAboutClicked();
    void onHelpClicked();
    void onSupportClicked();
    void onLanguageChanged(const QString &langCode);

    void onRecycleBinScanFinished();
    void onRecycleBinListScrolled();
    void loadMoreRecycleBinItems();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void createLayout();
    void createPages();
    void connectPages();
    void connectEngine();
    void connectTitleBar();
    void applyStyleSheet();
    void setCorners(bool square);
    void takeNativeWindow();
    void takeDrop(const QStringList &paths);

    void showPage(int index);
    void showDisks(int mode);
    void backFromMethods();
    void showHome();
    void takeDiskSelection();
    void setMenuEnabled(bool enabled);

    QMessageBox::StandardButton askAboutJob(const Prompts::Box &box);

    void keepRecords(JobEnd &end);
    void showEnd(const JobEnd &end);
    void viewCertificate(const JobEnd &end);
    void leaveCompletedJob(bool success);

    void offerFreeSpaceWipeOfEmptyBin(const RecycleBinInfo &found);
    void takeRecycleBin(const RecycleBinInfo &found);

    Sidebar *m_sidebar = nullptr;
    QListWidget *m_menu = nullptr;
    QStackedWidget *m_pages = nullptr;
    TitleBar *m_titleBar = nullptr;
    HomePage *m_homePage = nullptr;
    DiskSelectPage *m_diskPage = nullptr;
    FileSelectPage *m_filePage = nullptr;
    MethodSelectPage *m_methodPage = nullptr;
    ProgressPage *m_progressPage = nullptr;
    HistoryPage *m_historyPage = nullptr;
    SettingsPage *m_settingsPage = nullptr;
    RecycleBinFlow *m_bin = nullptr; ///< on the file page
    JobController *m_job = nullptr;
    WipeEngine *m_engine = nullptr; ///< the job's
    bool m_asksAboutJob = false;    ///< a box is open that only makes sense while the job runs
    int m_currentPage = Home;

    std::unique_ptr<platform::FileDrops> m_drops; ///< of the native window, as m_frame
    std::unique_ptr<FrameOwner> m_frameOwner;
    std::unique_ptr<platform::WindowFrame> m_frame;
    QVBoxLayout *m_outerLayout = nullptr;
    bool m_dragging = false;
    QPoint m_dragPosition; ///< of the cursor, from the window's top left corner
};
