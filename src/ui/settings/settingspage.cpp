#include "ui/settings/settingspage.h"

#include "model/usersettings.h"
#include "ui/prompts/prompts.h"
#include "ui/style/buttons.h"
#include "ui/style/pagestyle.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr bool VerifiesByDefault = true;
constexpr bool ReportsByDefault = true;
constexpr bool ExportsByDefault = false;

QCheckBox *createCheckBox(const QString &text, const QString &name)
{
    auto *box = new QCheckBox(text);
    box->setObjectName(name);
    return box;
}

QVBoxLayout *createGroup(QGroupBox &group)
{
    auto *layout = new QVBoxLayout(&group);
    layout->setContentsMargins(20, 25, 20, 20);
    layout->setSpacing(12);
    return layout;
}

} // namespace

SettingsPage::SettingsPage(QWidget *parent)
    : QWidget(parent)
    , m_verify(createCheckBox(tr("擦除后验证数据"), u"verifyCheck"_s))
    , m_report(createCheckBox(tr("自动生成擦除证书"), u"reportCheck"_s))
    , m_path(new QLineEdit)
    , m_browse(buttons::make(tr("浏览..."), {.name = u"browseBtn"_s, .width = 80}))
    , m_autoExport(createCheckBox(tr("擦除完成后自动导出PDF证书"), u"autoExportCheck"_s))
{
    auto *title = new QLabel(tr("设置"));
    title->setObjectName(u"pageTitle"_s);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(pagestyle::Margins);
    layout->addWidget(title);
    layout->addWidget(createGroups(), 1);
    layout->addLayout(createButtons());
    load();
}

QWidget *SettingsPage::createGroups()
{
    auto *content = new QWidget;
    content->setObjectName(u"settingsContent"_s);
    // The rule has the name so that the boxes inside keep their own background.
    content->setStyleSheet(u"#settingsContent { background: transparent; }"_s);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 10, 0);
    layout->setSpacing(16);
    layout->addWidget(createWipeGroup());
    layout->addWidget(createExportGroup());
    layout->addStretch();

    auto *scroll = new QScrollArea;
    scroll->setObjectName(u"settingsScroll"_s);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setStyleSheet(u"QScrollArea { background: transparent; }"_s);
    scroll->setWidgetResizable(true);
    scroll->setWidget(content);
    return scroll;
}

QWidget *SettingsPage::createWipeGroup()
{
    auto *group = new QGroupBox(tr("擦除设置"));
    QVBoxLayout *layout = createGroup(*group);
    layout->addWidget(m_verify);
    layout->addWidget(m_report);
    return group;
}

QWidget *SettingsPage::createExportGroup()
{
    auto *label = new QLabel(tr("导出路径:"));
    label->setObjectName(u"exportPathLabel"_s);
    label->setBuddy(m_path);
    m_path->setObjectName(u"exportPathEdit"_s);
    m_path->setPlaceholderText(tr("选择默认导出路径..."));
    m_browse->setToolTip(tr("选择导出目录"));
    connect(m_browse, &QPushButton::clicked, this, &SettingsPage::onBrowseExportPath);

    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_path, 1);
    row->addWidget(m_browse);

    auto *group = new QGroupBox(tr("证书导出"));
    QVBoxLayout *layout = createGroup(*group);
    layout->addLayout(row);
    layout->addWidget(m_autoExport);
    return group;
}

QBoxLayout *SettingsPage::createButtons()
{
    QPushButton *reset = buttons::make(tr("恢复默认"), {.name = u"resetBtn"_s});
    QPushButton *save = buttons::make(tr("保存设置"), {.name = u"primaryBtn"_s});
    connect(reset, &QPushButton::clicked, this, &SettingsPage::onReset);
    connect(save, &QPushButton::clicked, this, &SettingsPage::onSave);

    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 10, 0, 0);
    buttons->addStretch();
    buttons->addWidget(reset);
    buttons->addWidget(save);
    return buttons;
}

void SettingsPage::load()
{
    const auto store = usersettings::open();
    m_verify->setChecked(usersettings::readBool(*store, usersettings::VerifyAfterWipe, VerifiesByDefault));
    m_report->setChecked(usersettings::readBool(*store, usersettings::GenerateReport, ReportsByDefault));
    m_path->setText(usersettings::readString(*store, usersettings::ExportPath));
    m_autoExport->setChecked(usersettings::readBool(*store, usersettings::AutoExport, ExportsByDefault));
}

void SettingsPage::onBrowseExportPath()
{
    const QString folder = Prompts::current().folder(this, tr("选择导出目录"), m_path->text());
    if (!folder.isEmpty())
        m_path->setText(folder);
}

void SettingsPage::onReset()
{
    m_verify->setChecked(VerifiesByDefault);
    m_report->setChecked(ReportsByDefault);
    m_path->clear();
    m_autoExport->setChecked(ExportsByDefault);
}

void SettingsPage::onSave()
{
    const auto store = usersettings::open();
    store->setValue(usersettings::VerifyAfterWipe.toString(), m_verify->isChecked());
    store->setValue(usersettings::GenerateReport.toString(), m_report->isChecked());
    store->setValue(usersettings::ExportPath.toString(), m_path->text());
    store->setValue(usersettings::AutoExport.toString(), m_autoExport->isChecked());
    // The settings are on the disk before the box says that they are saved.
    store->sync();
    if (store->status() != QSettings::NoError) {
        Prompts::current().warning(this, tr("保存失败"), tr("无法保存设置"));
        return;
    }
    Prompts::current().information(this, tr("保存成功"), tr("设置已保存"));
}
