#include "ui/mainwindow/windowshell.h"

#include "ui/mainwindow/frameparts.h"
#include "ui/mainwindow/shadowcanvas.h"
#include "ui/mainwindow/sidebar.h"
#include "ui/style/palette.h"
#include "ui/titlebar/titlebar.h"

#include <QMainWindow>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;
using frameparts::ShadowMargin;

WindowShell::WindowShell(QMainWindow &window)
    : m_container(new QWidget)
    , m_sidebar(new Sidebar)
    , m_titleBar(new TitleBar)
    , m_pages(new QStackedWidget)
{
    m_container->setObjectName("mainContainer"_L1);
    m_container->setAttribute(Qt::WA_StyledBackground);
    m_container->setStyleSheet(u"#mainContainer {  background-color: #f8fafc;  border-radius: 12px;}"_s);
    auto *outer = new ShadowCanvas(
        {.cornerRadius = 12, .blurRadius = 20, .offset = 5, .colour = palette::WindowShadow}, m_container);
    window.setCentralWidget(outer);
    m_outerLayout = new QVBoxLayout(outer);
    m_outerLayout->setContentsMargins(ShadowMargin, ShadowMargin, ShadowMargin, ShadowMargin);
    m_outerLayout->addWidget(m_container);

    auto *row = new QHBoxLayout(m_container);
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(m_sidebar);

    auto *right = new QWidget;
    right->setObjectName("rightWidget"_L1);
    auto *column = new QVBoxLayout(right);
    column->setContentsMargins({});
    column->setSpacing(0);
    m_titleBar->setStyleSheet(u"#titleBar {  background-color: #1e293b;  border-top-right-radius: 12px;}"_s);
    column->addWidget(m_titleBar);
    m_pages->setObjectName("pageStack"_L1);
    column->addWidget(m_pages, 1);
    row->addWidget(right, 1);
}

void WindowShell::setMaximized(bool maximized)
{
    const int margin = maximized ? 0 : ShadowMargin;
    m_outerLayout->setContentsMargins(margin, margin, margin, margin);
    m_titleBar->setMaximized(maximized);
    setCorners(maximized);
}

// Behind rounded corners at the edges of the screen there would be nothing.
void WindowShell::setCorners(bool square)
{
    for (QWidget *widget : std::initializer_list<QWidget *>{m_container, m_sidebar, m_titleBar, m_pages}) {
        const QString rule = u"#%1 { border-radius: 0px; }"_s.arg(widget->objectName());
        const QString before = widget->styleSheet();
        QString sheet = before;
        sheet.remove(rule);
        if (square)
            sheet += rule;
        // Setting the same sheet again would polish everything in the widget.
        if (sheet != before)
            widget->setStyleSheet(sheet);
    }
}
