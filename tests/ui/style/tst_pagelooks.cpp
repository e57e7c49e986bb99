#include "support/suite.h"
#include "support/temporarysettings.h"
#include "ui/style/programsheet.h"
#include "ui/style/stylerules.h"

#include "ui/dialogs/confirmdialog.h"
#include "ui/disks/diskselectpage.h"
#include "ui/files/fileselectpage.h"
#include "ui/history/historypage.h"
#include "ui/home/featurecard.h"
#include "ui/home/homepage.h"
#include "ui/mainwindow/sidebar.h"
#include "ui/methods/methodcard.h"
#include "ui/methods/methodselectpage.h"
#include "ui/progress/progresspage.h"
#include "ui/settings/settingspage.h"
#include "ui/style/uiresources.h"
#include "ui/titlebar/titlebar.h"

#include <QApplication>
#include <QBoxLayout>
#include <QColor>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

using Maker = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Maker)

// The look of pages and their parts where no reference picture covers it.
class tst_PageLooks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }

    void aPartHasItsStyle_data();
    void aPartHasItsStyle();
    void rulesTellWhatIsMissing();
    void aLayoutHasItsMargins_data();
    void aLayoutHasItsMargins();
    void eachCardHasItsIcon_data();
    void eachCardHasItsIcon();

private:
    TemporarySettings m_settings;
};

namespace {

template <typename Page>
Maker page()
{
    return [] { return new Page; };
}

// The part with that name, or the page itself.
QWidget *partOf(QWidget &page, const QString &name)
{
    return name.isEmpty() ? &page : page.findChild<QWidget *>(name);
}

} // namespace

void tst_PageLooks::aPartHasItsStyle_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("declarations");
    const auto row = [](const char *tag, const Maker &maker, const QString &name, const QString &selector,
                        const QString &declarations) {
        QTest::addRow("%s: %s %s", tag, qPrintable(name), qPrintable(selector))
            << maker << name << selector << declarations;
    };

    const Maker disks = page<DiskSelectPage>();
    row("disks", disks, u"diskTree"_s, u"#diskTree"_s,
        u"background-color: #ffffff; border: 1px solid #e2e8f0; border-radius: 12px; outline: none"_s);
    row("disks", disks, u"diskTree"_s, u"#diskTree::item"_s,
        u"padding: 12px 8px; border-bottom: 1px solid #f1f5f9"_s);
    row("disks", disks, u"diskTree"_s, u"#diskTree::item:hover"_s, u"background-color: #f8fafc"_s);
    row("disks", disks, u"diskTree"_s, u"#diskTree::item:selected"_s,
        u"background-color: #eff6ff; color: #1e40af"_s);
    row("disks", disks, u"diskTree"_s, u"#diskTree QHeaderView::section"_s,
        u"background-color: #f8fafc; border: none; border-bottom: 2px solid #e2e8f0; padding: 12px 8px;"
        "font-weight: 600; color: #64748b; font-size: 13px"_s);
    row("disks", disks, u"diskTree"_s, u"#diskTree::branch:has-children:closed"_s,
        u"image: url(:/icons/arrow-right.svg)"_s);
    row("disks", disks, u"diskTree"_s, u"#diskTree::branch:has-children:open"_s,
        u"image: url(:/icons/arrow-down.svg)"_s);

    const Maker files = page<FileSelectPage>();
    for (const auto &[tag, either] : {std::pair("disks", disks), std::pair("files", files)}) {
        row(tag, either, u"secondaryBtn"_s, u"#secondaryBtn"_s,
            u"border-radius: 8px; font-size: 14px; font-weight: 500"_s);
        row(tag, either, u"secondaryBtn"_s, u"#secondaryBtn[navigation=\"true\"]"_s,
            u"background-color: #ffffff; border: 1px solid #e2e8f0; color: #475569"_s);
        row(tag, either, u"secondaryBtn"_s, u"#secondaryBtn[navigation=\"true\"]:hover"_s,
            u"background-color: #f8fafc; border-color: #cbd5e1"_s);
        row(tag, either, u"primaryBtn"_s, u"#primaryBtn"_s,
            u"border-radius: 8px; color: #ffffff; font-size: 14px; font-weight: bold"_s);
        row(tag, either, u"primaryBtn"_s, u"#primaryBtn[navigation=\"true\"]"_s,
            u"background-color: #3b82f6; border: none"_s);
        row(tag, either, u"primaryBtn"_s, u"#primaryBtn[navigation=\"true\"]:hover"_s,
            u"background-color: #2563eb"_s);
        row(tag, either, u"primaryBtn"_s, u"#primaryBtn[navigation=\"true\"]:disabled"_s,
            u"background-color: #94a3b8"_s);
    }
    for (const QString &name : {u"addFilesBtn"_s, u"addFolderBtn"_s}) {
        row("files", files, name, u"QPushButton"_s,
            u"background-color: white; border: 1px solid #e2e8f0; border-radius: 6px; padding: 6px 12px;"
            "color: #475569; font-size: 12px"_s);
        row("files", files, name, u"QPushButton:hover"_s, u"background-color: #f1f5f9"_s);
    }
    for (const QString &name : {u"removeBtn"_s, u"clearAllBtn"_s}) {
        row("files", files, name, u'#' + name, u"border: 1px solid #fecaca; color: #ef4444"_s);
        row("files", files, name, u'#' + name + u":hover"_s, u"background-color: #fef2f2"_s);
        row("files", files, name, u'#' + name + u":disabled"_s, u"border-color: #e2e8f0; color: #9ca3af"_s);
    }
    row("files", files, u"dropZone"_s, u"#dropZone"_s,
        u"background-color: #ffffff; border: 2px dashed #cbd5e1; border-radius: 12px"_s);
    row("files", files, u"dropZone"_s, u"#dropZone[dragOver=\"true\"]"_s,
        u"border-color: #3b82f6; background-color: #eff6ff"_s);
    row("files", files, u"plusBtn"_s, u"#plusBtn"_s,
        u"background-color: #3b82f6; border-radius: 14px; color: #ffffff; font-size: 32px;"
        "font-weight: bold"_s);
    row("files", files, u"plusBtn"_s, u"#plusBtn:hover"_s, u"background-color: #2563eb"_s);
    row("files", files, u"plusBtn"_s, u"#plusBtn:pressed"_s, u"background-color: #1d4ed8"_s);
    row("files", files, u"dropHint"_s, u"#dropHint"_s, u"font-size: 14px; color: #64748b"_s);
    row("files", files, u"loadingLabel"_s, u"#loadingLabel"_s, u"font-size: 15px; color: #3b82f6"_s);
    row("files", files, u"loadingProgress"_s, u"#loadingProgress"_s,
        u"background-color: #e5e7eb; border-radius: 3px"_s);
    row("files", files, u"loadingProgress"_s, u"#loadingProgress::chunk"_s,
        u"background-color: #3b82f6; border-radius: 3px"_s);
    row("files", files, u"fileList"_s, u"#fileList"_s,
        u"background-color: #ffffff; border: 1px solid #e2e8f0; border-radius: 12px"_s);
    row("files", files, u"fileList"_s, u"#fileList::item"_s,
        u"padding: 10px 12px; border-bottom: 1px solid #f1f5f9"_s);
    row("files", files, u"fileList"_s, u"#fileList::item:selected"_s,
        u"background-color: #eff6ff; color: #1e40af"_s);

    const Maker settings = page<SettingsPage>();
    const Maker group = [] {
        auto *const settingsPage = new SettingsPage;
        settingsPage->findChild<QGroupBox *>()->setObjectName(u"firstGroup"_s);
        settingsPage->findChildren<QGroupBox *>().constLast()->setObjectName(u"secondGroup"_s);
        return settingsPage;
    };
    row("settings", group, u"secondGroup"_s, u"QGroupBox"_s,
        u"font-weight: bold; font-size: 14px; color: #1e293b; border: 1px solid #e2e8f0;"
        "border-radius: 8px; margin-top: 12px; padding-top: 8px; background-color: #ffffff"_s);
    row("settings", group, u"secondGroup"_s, u"QGroupBox::title"_s,
        u"left: 15px; padding: 0 8px; background-color: #ffffff"_s);
    row("settings", settings, u"exportPathEdit"_s, u"#exportPathEdit"_s,
        u"background-color: #ffffff; border: 1px solid #e2e8f0; border-radius: 6px; padding: 6px 12px;"
        "font-size: 13px"_s);
    for (const QString &state : {u"#exportPathEdit:hover"_s, u"#exportPathEdit:focus"_s})
        row("settings", settings, u"exportPathEdit"_s, state, u"border-color: #3b82f6"_s);
    row("settings", settings, u"browseBtn"_s, u"#browseBtn"_s,
        u"background-color: #f1f5f9; border: 1px solid #e2e8f0; border-radius: 6px"_s);
    row("settings", settings, u"browseBtn"_s, u"#browseBtn:hover"_s, u"background-color: #e2e8f0"_s);
    row("settings", settings, u"resetBtn"_s, u"#resetBtn"_s,
        u"background-color: #ffffff; border: 1px solid #e2e8f0; border-radius: 6px; padding: 8px 20px;"
        "font-size: 13px; color: #64748b"_s);
    row("settings", settings, u"resetBtn"_s, u"#resetBtn:hover"_s,
        u"background-color: #f8fafc; border-color: #cbd5e1"_s);
    for (const QString &name : {u"verifyCheck"_s, u"reportCheck"_s, u"autoExportCheck"_s}) {
        row("settings", settings, name, u"QCheckBox"_s, u"spacing: 8px; font-size: 13px"_s);
        row("settings", settings, name, u"QCheckBox::indicator"_s,
            u"width: 16px; height: 16px; border-radius: 4px"_s);
        row("settings", settings, name, u"#settingsContent QCheckBox::indicator"_s,
            u"border: 2px solid #cbd5e1; background-color: #ffffff"_s);
        row("settings", settings, name, u"#settingsContent QCheckBox::indicator:hover"_s,
            u"border-color: #3b82f6"_s);
        row("settings", settings, name, u"#settingsContent QCheckBox::indicator:checked"_s,
            u"background-color: #3b82f6; border-color: #3b82f6"_s);
        row("settings", settings, name, u"#settingsContent QCheckBox::indicator:checked:hover"_s,
            u"background-color: #2563eb"_s);
    }

    const Maker methods = page<MethodSelectPage>();
    row("methods", methods, u"navBar"_s, u"#navBar"_s,
        u"background-color: #ffffff; border-radius: 10px; border: 1px solid #e2e8f0"_s);
    row("methods", methods, u"methodScroll"_s, u"QScrollArea"_s, u"background: transparent"_s);
    row("methods", methods, u"methodList"_s, QString(), u"background: transparent"_s);
    const QStringList colours{u"#22c55e"_s, u"#84cc16"_s, u"#eab308"_s, u"#f97316"_s, u"#ef4444"_s};
    for (int level = 0; level <= 6; ++level) {
        const Maker card = [level] {
            WipeMethod method;
            method.level = level;
            return new MethodCard(method);
        };
        row(qPrintable(u"level %1"_s.arg(level)), card, u"methodLevel"_s, QString(),
            u"background-color: %1; color: white; border-radius: 13px; font-weight: bold; font-size: 12px;"
            "padding: 0 12px"_s.arg(colours.value(level - 1, u"#6b7280"_s)));
    }

    const Maker sidebar = page<Sidebar>();
    row("sidebar", sidebar, QString(), u"#sidebar"_s,
        u"background-color: #1e293b; border-top-left-radius: 12px; border-bottom-left-radius: 12px"_s);
    row("sidebar", sidebar, u"logoIcon"_s, QString(), u"background: transparent; border: none"_s);
    const Maker title = page<TitleBar>();
    for (const QString &name : {u"applicationMenu"_s, u"languageMenu"_s}) {
        row("title bar", title, name, u'#' + name,
            u"background-color: #ffffff; border: 1px solid #e2e8f0; border-radius: 8px; padding: 8px 4px;"
            "min-width: 180px"_s);
        row("title bar", title, name, u'#' + name + u"::item"_s,
            u"padding: 10px 16px; border-radius: 6px; margin: 2px 4px; color: #334155"_s);
        row("title bar", title, name, u'#' + name + u"::item:selected"_s,
            u"background-color: #f1f5f9; color: #1e293b"_s);
        row("title bar", title, name, u"QMenu::separator"_s,
            u"height: 1px; background-color: #e2e8f0; margin: 6px 8px"_s);
    }
}

void tst_PageLooks::aPartHasItsStyle()
{
    QFETCH(const Maker, maker);
    QFETCH(const QString, name);
    QFETCH(const QString, selector);
    QFETCH(const QString, declarations);
    const std::unique_ptr<QWidget> shown(maker());
    const QWidget *const part = partOf(*shown, name);
    QVERIFY(part);
    const QString own = part->styleSheet();
    const StyleRules rules(own.isEmpty() ? programSheet() : own);
    QCOMPARE(rules.missing(selector, declarations), QStringList());
}

void tst_PageLooks::rulesTellWhatIsMissing()
{
    const StyleRules rules(u"/* B {\nz: 3; } */ A, B:hover { x: 1px  solid;y:2 }\n/* */A {z: 3;}"_s);
    QCOMPARE(rules.missing(u"A"_s, u"z:3; y: 2; x: 1px solid"_s), QStringList());
    QCOMPARE(rules.missing(u"B:hover"_s, u"z: 3"_s), QStringList{u"z: 3"_s});
    QCOMPARE(rules.missing(u"B"_s, u"y: 2"_s), QStringList{u"y: 2"_s});
    QCOMPARE(rules.missing(u"A"_s, u"x: 1px"_s), QStringList{u"x: 1px"_s});
    QCOMPARE(StyleRules(u"x: 1"_s).missing(QString(), u"x: 1"_s), QStringList());
    QCOMPARE(StyleRules(QString()).missing(QString(), u"x: 1"_s), QStringList{u"x: 1"_s});
}

void tst_PageLooks::aLayoutHasItsMargins_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<int>("spacing"); // negative: not given
    const auto row = [](const char *tag, const Maker &maker, const QString &name, const QMargins &margins,
                        int spacing = -1) { QTest::newRow(tag) << maker << name << margins << spacing; };
    const QMargins common(40, 30, 40, 30);
    row("disks", page<DiskSelectPage>(), {}, common);
    row("files", page<FileSelectPage>(), {}, common);
    row("tools of the files", page<FileSelectPage>(), u"toolRow"_s, {});
    row("methods", page<MethodSelectPage>(), {}, common);
    row("list of methods", page<MethodSelectPage>(), u"methodList"_s, {0, 0, 10, 0});
    row("buttons of the methods", page<MethodSelectPage>(), u"navBar"_s, {20, 15, 20, 15});
    row("settings", page<SettingsPage>(), {}, common);
    row("content of the settings", page<SettingsPage>(), u"settingsContent"_s, {0, 0, 10, 0});
    row("progress", page<ProgressPage>(), {}, {60, 50, 60, 50});
    row("progress panel", page<ProgressPage>(), u"progressWidget"_s, {30, 25, 30, 25});
    row("history", page<HistoryPage>(), {}, {30, 25, 30, 25});
    row("filter of the history", page<HistoryPage>(), u"filterWidget"_s, {15, 12, 15, 12});
    row("home", page<HomePage>(), {}, {30, 30, 30, 30});
    row("sidebar", page<Sidebar>(), {}, {}, 0);
    row("logo", page<Sidebar>(), u"logoWidget"_s, {20, 15, 20, 15}, 12);
    row("title bar", page<TitleBar>(), {}, {16, 0, 0, 0});
    row("confirmation", page<ConfirmDialog>(), {}, {30, 30, 30, 30});
    row("method card", [] { return new MethodCard(WipeMethod()); }, {}, {20, 12, 20, 12});

    // Rows without their own widget are found by one of their buttons.
    row("buttons of the settings", page<SettingsPage>(), u"resetBtn"_s, {0, 10, 0, 0});
    row("buttons of the history", page<HistoryPage>(), u"deleteBtn"_s, {0, 5, 0, 0});
}

// The layout of that widget, or the innermost layout that contains it.
static const QLayout *layoutOf(const QWidget &widget, QLayout *outer)
{
    if (widget.layout())
        return widget.layout();
    for (int i = 0; outer && i < outer->count(); ++i) {
        QLayoutItem *const item = outer->itemAt(i);
        if (item->widget() == &widget)
            return outer;
        if (const QLayout *const inner = item->layout() ? layoutOf(widget, item->layout()) : nullptr)
            return inner;
    }
    return nullptr;
}

void tst_PageLooks::aLayoutHasItsMargins()
{
    QFETCH(const Maker, maker);
    QFETCH(const QString, name);
    QFETCH(const QMargins, margins);
    QFETCH(const int, spacing);
    const std::unique_ptr<QWidget> shown(maker());
    const QWidget *const part = partOf(*shown, name);
    QVERIFY(part);
    const QLayout *const layout = layoutOf(*part, shown->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), margins);
    if (spacing >= 0)
        QCOMPARE(layout->spacing(), spacing);
}

void tst_PageLooks::eachCardHasItsIcon_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("icon");
    QTest::newRow("disk") << 0 << u"icon_disk_wipe.svg"_s;
    QTest::newRow("free space") << 1 << u"icon_freespace_wipe.svg"_s;
    QTest::newRow("files") << 2 << u"icon_file_wipe.svg"_s;
    QTest::newRow("recycle bin") << 3 << u"icon_recycle_wipe.svg"_s;
}

void tst_PageLooks::eachCardHasItsIcon()
{
    QFETCH(const int, index);
    QFETCH(const QString, icon);
    HomePage home;
    const auto pictureOn = [](const FeatureCard &card) {
        return card.findChild<QLabel *>(u"cardIcon"_s)->pixmap().toImage();
    };
    const FeatureCard expected(u":/icons/"_s + icon, {}, {}, index);
    const FeatureCard *const card = home.findChildren<FeatureCard *>().at(index);
    QVERIFY(!pictureOn(*card).isNull());
    QCOMPARE(pictureOn(*card), pictureOn(expected));
    // The picture is on no other card.
    for (const FeatureCard *other : home.findChildren<FeatureCard *>()) {
        if (other != card)
            QVERIFY(pictureOn(*other) != pictureOn(expected));
    }
}

QUORVEX_SUITE(tst_PageLooks, QApplication)
#include "tst_pagelooks.moc"
