#include "ui/titlebar/titlebar.h"

#include "model/usersettings.h"
#include "services/languages.h"
#include "services/linkmanager.h"
#include "ui/prompts/prompts.h"
#include "ui/titlebar/programrestart.h"
#include "ui/titlebar/winbutton.h"

#include <QActionGroup>
#include <QDebug>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr int BarHeight = 40;
constexpr QSize LogoSize(24, 24);

void dress(QMenu &menu, const QString &name)
{
    menu.setObjectName(name);
    // Nothing is drawn outside the rounded corners.
    menu.setWindowFlags(menu.windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    menu.setAttribute(Qt::WA_TranslucentBackground);
}

} // namespace

TitleBar::TitleBar(QWidget *parent)
    : QWidget(parent)
    , m_currentLanguage(usersettings::readString(*usersettings::open(), usersettings::Language))
    , m_restart([] { restartProgram(); })
{
    setObjectName(u"titleBar"_s);
    setFixedHeight(BarHeight);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(u"#titleBar {  background-color: #1e293b;}"_s);
    createMenu();
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 0, 0);
    layout->setSpacing(0);
    addName(layout);
    layout->addStretch();
    addButtons(layout);
    setMaximized(false);
}

void TitleBar::addName(QBoxLayout *layout)
{
    auto *const logo = new QLabel;
    logo->setObjectName(u"titleLogo"_s);
    logo->setFixedSize(LogoSize);
    logo->setPixmap(QIcon(u":/icons/logo.png"_s).pixmap(LogoSize, devicePixelRatio()));
    layout->addWidget(logo);
    layout->addSpacing(10);

    auto *const title = new QLabel(tr("Quorvex"));
    title->setObjectName(u"titleLabel"_s);
    title->setStyleSheet(u"color: #f1f5f9;font-size: 13px;font-weight: bold;background: transparent;"_s);
    layout->addWidget(title);
}

void TitleBar::addButtons(QBoxLayout *layout)
{
    const auto add = [layout](WinButton::Kind kind, const QString &name, const QString &toolTip) {
        auto *const button = new WinButton(kind);
        button->setObjectName(name);
        button->setToolTip(toolTip);
        button->setAccessibleName(toolTip);
        layout->addWidget(button);
        return button;
    };
    m_menuButton = add(WinButton::Menu, u"menuButton"_s, tr("Menu"));
    m_minimizeButton = add(WinButton::Minimize, u"minimizeButton"_s, tr("Minimize"));
    m_maximizeButton = add(WinButton::Maximize, u"maximizeButton"_s, tr("Maximize"));
    m_closeButton = add(WinButton::Close, u"closeButton"_s, tr("Close"));
    connect(m_menuButton, &QPushButton::clicked, this, &TitleBar::showMenu);
    connect(m_minimizeButton, &QPushButton::clicked, this, &TitleBar::minimizeClicked);
    connect(m_maximizeButton, &QPushButton::clicked, this, &TitleBar::onMaximizeClicked);
    connect(m_closeButton, &QPushButton::clicked, this, &TitleBar::closeClicked);
}

void TitleBar::createMenu()
{
    m_menu = new QMenu(this);
    dress(*m_menu, u"applicationMenu"_s);
    connect(m_menu->addAction(tr("About")), &QAction::triggered, this, &TitleBar::aboutClicked);
    m_menu->addSeparator();
    addLanguages();
    m_menu->addSeparator();
    connect(m_menu->addAction(tr("Help")), &QAction::triggered, this, &TitleBar::helpClicked);
    connect(m_menu->addAction(tr("Support")), &QAction::triggered, this, &TitleBar::supportClicked);
}

void TitleBar::addLanguages()
{
    QMenu *const menu = m_menu->addMenu(tr("Language"));
    dress(*menu, u"languageMenu"_s);
    m_languageGroup = new QActionGroup(this);
    m_languageGroup->setExclusive(true);
    for (const languages::Language &language : languages::all()) {
        if (language.menuLabel.isEmpty())
            continue;
        QAction *const action = menu->addAction(language.menuLabel);
        action->setCheckable(true);
        action->setData(language.code);
        action->setChecked(language.code == m_currentLanguage);
        m_languageGroup->addAction(action);
    }
    connect(m_languageGroup, &QActionGroup::triggered, this, &TitleBar::onLanguageTriggered);
}

void TitleBar::setMaximized(bool maximized)
{
    const QString hint = maximized ? tr("Restore") : tr("Maximize");
    m_maximizeButton->setMaximized(maximized);
    m_maximizeButton->setToolTip(hint);
    m_maximizeButton->setAccessibleName(hint);
}

void TitleBar::onMaximizeClicked()
{
    emit maximizeClicked();
}

void TitleBar::showMenu()
{
    m_menu->popup(m_menuButton->mapToGlobal(QPoint(0, m_menuButton->height())));
}

void TitleBar::onLanguageTriggered(const QAction *action)
{
    const QString code = action->data().toString();
    if (code == m_currentLanguage)
        return;
    const std::unique_ptr<QSettings> settings = usersettings::open();
    settings->setValue(usersettings::Language.toString(), code);
    settings->sync();
    if (settings->status() != QSettings::NoError)
        qWarning() << "[TitleBar] The language could not be stored in" << settings->fileName();

    LinkManager::instance().setLanguage(code);
    emit languageChanged(code);
    Prompts::current().information(window(), tr("Language Changed"),
                                   tr("Language has been changed.\n\nThe application will restart now."));
    m_restart();
}
