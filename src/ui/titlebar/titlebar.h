#pragma once

#include <QString>
#include <QWidget>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QActionGroup)
QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QMenu)
class WinButton;

/// The caption of the frameless main window: name, menu, and the buttons of a system's caption. Choosing a
/// language stores it and restarts the program, also while a job runs. Interface thread.
class TitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit TitleBar(QWidget *parent = nullptr);

    /// The window calls this whenever its state has changed.
    void setMaximized(bool maximized);

    WinButton *maximizeButton() const { return m_maximizeButton; }

    /// Replaces restartProgram(), which is called after a new language was chosen.
    void setRestart(std::function<void()> restart) { m_restart = std::move(restart); }

signals:
    void minimizeClicked();
    void maximizeClicked();
    void closeClicked();
    void aboutClicked();
    void helpClicked();
    void supportClicked();
    /// The language is stored already. The restart follows.
    void languageChanged(const QString &langCode);

private slots:
    void onMaximizeClicked();
    void showMenu();

private:
    void addName(QBoxLayout *layout);
    void addButtons(QBoxLayout *layout);
    void createMenu();
    void addLanguages();
    void onLanguageTriggered(const QAction *action);

    QString m_currentLanguage;
    std::function<void()> m_restart;
    QMenu *m_menu = nullptr;
    QActionGroup *m_languageGroup = nullptr;
    WinButton *m_menuButton = nullptr;
    WinButton *m_minimizeButton = nullptr;
    WinButton *m_maximizeButton = nullptr;
    WinButton *m_closeButton = nullptr;
};
