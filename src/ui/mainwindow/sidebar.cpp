#include "ui/mainwindow/sidebar.h"

#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPixmap>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 240;
constexpr int LogoHeight = 80;
constexpr int LogoSize = 45;
constexpr int RowHeight = 50;

QIcon menuIcon(const QString &name)
{
    QIcon icon(u":/icons/icon_menu_%1.svg"_s.arg(name));
    icon.addFile(u":/icons/icon_menu_%1_active.svg"_s.arg(name), {}, QIcon::Selected);
    return icon;
}

} // namespace

Sidebar::Sidebar(QWidget *parent)
    : QWidget(parent)
    , m_menu(new QListWidget)
{
    setObjectName("sidebar"_L1);
    setAttribute(Qt::WA_StyledBackground);
    setFixedWidth(Width);
    setStyleSheet(u"#sidebar {  background-color: #1e293b;  border-top-left-radius: 12px;  "
                  "border-bottom-left-radius: 12px;}"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(makeLogo());
    fillMenu();
    layout->addWidget(m_menu, 1);
}

QWidget *Sidebar::makeLogo()
{
    auto *area = new QWidget;
    area->setObjectName("logoWidget"_L1);
    area->setAttribute(Qt::WA_StyledBackground);
    area->setFixedHeight(LogoHeight);

    auto *icon = new QLabel;
    icon->setObjectName("logoIcon"_L1);
    icon->setFixedSize(LogoSize, LogoSize);
    icon->setStyleSheet(u"background: transparent;border: none;"_s);
    QPixmap logo = QPixmap(u":/icons/logo.png"_s)
                       .scaled(QSize(LogoSize, LogoSize) * devicePixelRatioF(), Qt::KeepAspectRatio,
                               Qt::SmoothTransformation);
    logo.setDevicePixelRatio(devicePixelRatioF());
    icon->setPixmap(logo);

    auto *title = new QLabel(tr("Quorvex"));
    title->setObjectName("logoTitle"_L1);
    auto *version = new QLabel(u"v5.0"_s);
    version->setObjectName("logoVersion"_L1);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(title);
    texts->addWidget(version);
    texts->addStretch();

    auto *layout = new QHBoxLayout(area);
    layout->setContentsMargins(20, 15, 20, 15);
    layout->setSpacing(12);
    layout->addWidget(icon);
    layout->addLayout(texts, 1);
    return area;
}

void Sidebar::fillMenu()
{
    m_menu->setObjectName("menuList"_L1);
    m_menu->setAccessibleName(tr("Menu"));
    m_menu->setIconSize({20, 20});
    m_menu->setFocusPolicy(Qt::StrongFocus);
    m_menu->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const auto add = [this](const QString &text, const QString &icon) {
        auto *item = new QListWidgetItem(menuIcon(icon), text, m_menu);
        item->setSizeHint({0, RowHeight});
    };
    add(tr("Data Wipe"), u"wipe"_s);
    add(tr("History"), u"history"_s);
    add(tr("Settings"), u"settings"_s);
    m_menu->setCurrentRow(DataWipe);
}
