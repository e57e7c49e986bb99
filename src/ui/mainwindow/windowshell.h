#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QMainWindow)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
QT_FORWARD_DECLARE_CLASS(QVBoxLayout)
QT_FORWARD_DECLARE_CLASS(QWidget)
class Sidebar;
class TitleBar;

/// The parts of the main window around its pages: shadow, rounded container, sidebar and title bar. Interface
/// thread.
class WindowShell
{
public:
    /// Makes the parts and puts them into the window, which owns them and outlives this.
    explicit WindowShell(QMainWindow &window);

    Sidebar &sidebar() const { return *m_sidebar; }
    TitleBar &titleBar() const { return *m_titleBar; }
    QStackedWidget &pages() const { return *m_pages; } ///< empty at first

    /// Fits margins, corners and title bar to the state of the window.
    void setMaximized(bool maximized);

private:
    void setCorners(bool square);

    QWidget *m_container;
    QVBoxLayout *m_outerLayout;
    Sidebar *m_sidebar;
    TitleBar *m_titleBar;
    QStackedWidget *m_pages;
};
