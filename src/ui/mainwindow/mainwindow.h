#pragma once

#include <QMainWindow>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QListWidget)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
class DiskSelectPage;
class FileSelectPage;
class FrameGrips;
class HistoryPage;
class HomePage;
class JobController;
class JobFlow;
class MethodSelectPage;
class NativeFrame;
class ProgressPage;
class RecycleBinFlow;
class SettingsPage;
class TaskChoice;
class TitleBar;
class WindowShell;
struct RecycleBinInfo;

/// The program's one window: sidebar, title bar and the stack of pages. Leads the user through the pages up
/// to the job and back from it. Opens the report database. Interface thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Indexes in the stack of pages.
    enum Page { Home = 0, DiskSelect, FileSelect, MethodSelect, Progress, History, Settings };

    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    int currentPage() const { return m_currentPage; }

    /// Stops a job that runs, without a question, and calls the function when the records of its end are
    /// kept.
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
    void createPages();
    void createJobFlow();
    void connectPages();
    void connectTitleBar();
    void connectSession();
    void takeDrop(const QStringList &paths);

    void showPage(int index);
    void showDisks(int mode);
    void backFromMethods();
    void showHome();
    void setMenuEnabled(bool enabled);

    void offerFreeSpaceWipeOfEmptyBin(const RecycleBinInfo &found);

    std::unique_ptr<WindowShell> m_shell;
    QListWidget *m_menu = nullptr; ///< owned by the shell, as are stack and title bar
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
    std::unique_ptr<TaskChoice> m_choice;
    JobController *m_job = nullptr;
    JobFlow *m_flow = nullptr;
    int m_currentPage = Home;

    std::unique_ptr<FrameGrips> m_grips;
    std::unique_ptr<NativeFrame> m_nativeFrame;
};
