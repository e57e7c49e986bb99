#include "support/suite.h"
#include "ui/titlebar/titlebar.h"

#include "services/languages.h"
#include "services/linkmanager.h"
#include "support/scriptedprompts.h"
#include "support/temporarysettings.h"
#include "ui/style/programsheet.h"
#include "ui/style/uiresources.h"
#include "ui/titlebar/winbutton.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QColor>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(void (TitleBar::*)())

namespace {

// A window with a title bar that only counts restarts.
struct Fixture
{
    Fixture()
    {
        bar.setRestart([this] { ++restarts; });
        window.setStyleSheet(programSheet());
        window.resize(700, 400);
        bar.resize(700, 40);
    }

    QMenu *menu() const { return bar.findChild<QMenu *>(u"applicationMenu"_s); }
    QMenu *languageMenu() const { return bar.findChild<QMenu *>(u"languageMenu"_s); }
    WinButton *button(WinButton::Kind kind) const
    {
        for (WinButton *const candidate : bar.findChildren<WinButton *>()) {
            if (candidate->kind() == kind)
                return candidate;
        }
        return nullptr;
    }
    QAction *language(const QString &code) const
    {
        for (QAction *const action : languageMenu()->actions()) {
            if (action->data().toString() == code)
                return action;
        }
        return nullptr;
    }
    QStringList checkedLanguages() const
    {
        QStringList codes;
        for (const QAction *action : languageMenu()->actions()) {
            if (action->isChecked())
                codes.append(action->data().toString());
        }
        return codes;
    }

    QWidget window;
    TitleBar bar{&window};
    int restarts = 0;
};

// The message box of a language change: the state when it opens, and its parent window.
class WatchingPrompts : public ScriptedPrompts
{
public:
    std::function<void(QWidget *)> shown;

    QMessageBox::StandardButton show(QWidget *parent, const Box &box) override
    {
        shown(parent);
        return ScriptedPrompts::show(parent, box);
    }
};

} // namespace

class tst_TitleBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void init();
    void cleanup();
    void hasItsMeasures();
    void showsLogoAndName();
    void buttonsCarryTheirNames();
    void buttonsEmit_data();
    void buttonsEmit();
    void maximizedChangesToolTipAndSign();
    void menuHasItsEntries();
    void menuEntriesEmit_data();
    void menuEntriesEmit();
    void menuButtonOpensTheMenuBelowItself();
    void languagesAreListedInOrder();
    void noLanguageIsCheckedWithoutASetting();
    void storedLanguageIsChecked();
    void unlistedLanguageChecksNone();
    void choosingALanguageStoresTellsAndRestarts();
    void choosingHappensInOrder();
    void choosingEnglishWithoutASettingRestartsToo();
    void choosingTheCheckedLanguageDoesNothing();

private:
    std::unique_ptr<TemporarySettings> m_settings;
    std::unique_ptr<ScriptedPrompts> m_prompts;
};

void tst_TitleBar::init()
{
    m_settings = std::make_unique<TemporarySettings>();
    m_prompts = std::make_unique<ScriptedPrompts>();
}

void tst_TitleBar::cleanup()
{
    m_prompts.reset();
    m_settings.reset();
}

void tst_TitleBar::hasItsMeasures()
{
    const Fixture it;
    QCOMPARE(it.bar.objectName(), u"titleBar"_s);
    QCOMPARE(it.bar.minimumHeight(), 40);
    QCOMPARE(it.bar.maximumHeight(), 40);
    QCOMPARE(it.bar.styleSheet(), u"#titleBar {  background-color: #1e293b;}"_s);
    QCOMPARE(it.bar.layout()->contentsMargins(), QMargins(16, 0, 0, 0));
    Fixture shown;
    QCOMPARE(shown.bar.grab().toImage().pixelColor(350, 20), QColor(u"#1e293b"_s));
}

void tst_TitleBar::showsLogoAndName()
{
    const Fixture it;
    const QList<QLabel *> labels = it.bar.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels.at(0)->minimumSize(), QSize(24, 24));
    QCOMPARE(labels.at(0)->maximumSize(), QSize(24, 24));
    QCOMPARE(labels.at(0)->pixmap().deviceIndependentSize(), QSizeF(24, 24));
    QCOMPARE(labels.at(1)->text(), u"Quorvex"_s);
    QCOMPARE(labels.at(1)->styleSheet(),
             u"color: #f1f5f9;font-size: 13px;font-weight: bold;background: transparent;"_s);
}

void tst_TitleBar::buttonsCarryTheirNames()
{
    const Fixture it;
    const QList<WinButton *> buttons = it.bar.findChildren<WinButton *>();
    QCOMPARE(buttons.size(), 4);
    QStringList toolTips;
    QStringList names;
    for (const WinButton *button : buttons) {
        toolTips.append(button->toolTip());
        names.append(button->accessibleName());
    }
    QCOMPARE(toolTips, QStringList({u"Menu"_s, u"Minimize"_s, u"Maximize"_s, u"Close"_s}));
    QCOMPARE(names, toolTips);
}

void tst_TitleBar::buttonsEmit_data()
{
    QTest::addColumn<WinButton::Kind>("kind");
    QTest::addColumn<void (TitleBar::*)()>("signal");
    QTest::newRow("minimize") << WinButton::Minimize << &TitleBar::minimizeClicked;
    QTest::newRow("maximize") << WinButton::Maximize << &TitleBar::maximizeClicked;
    QTest::newRow("close") << WinButton::Close << &TitleBar::closeClicked;
}

void tst_TitleBar::buttonsEmit()
{
    using Signal = void (TitleBar::*)();
    QFETCH(const WinButton::Kind, kind);
    QFETCH(const Signal, signal);
    Fixture it;
    const QSignalSpy wanted(&it.bar, signal);
    int all = 0;
    for (const Signal each :
         {&TitleBar::minimizeClicked, &TitleBar::maximizeClicked, &TitleBar::closeClicked})
        connect(&it.bar, each, this, [&all] { ++all; });
    it.window.show();
    QTest::mouseClick(it.button(kind), Qt::LeftButton);
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(all, 1);
}

void tst_TitleBar::maximizedChangesToolTipAndSign()
{
    Fixture it;
    WinButton *const button = it.button(WinButton::Maximize);
    const QImage normal = button->grab().toImage();
    it.bar.setMaximized(true);
    QCOMPARE(button->toolTip(), u"Restore"_s);
    QCOMPARE(button->accessibleName(), u"Restore"_s);
    QVERIFY(button->grab().toImage() != normal);
    it.bar.setMaximized(false);
    QCOMPARE(button->toolTip(), u"Maximize"_s);
    QCOMPARE(button->grab().toImage(), normal);
}

void tst_TitleBar::menuHasItsEntries()
{
    const Fixture it;
    QStringList entries;
    for (const QAction *action : it.menu()->actions())
        entries.append(action->isSeparator() ? u"-"_s : action->text());
    QCOMPARE(entries, QStringList({u"About"_s, u"-"_s, u"Language"_s, u"-"_s, u"Help"_s, u"Support"_s}));
    QCOMPARE(it.menu()->actions().at(2)->menu(), it.languageMenu());
}

void tst_TitleBar::menuEntriesEmit_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<void (TitleBar::*)()>("signal");
    QTest::newRow("about") << 0 << &TitleBar::aboutClicked;
    QTest::newRow("help") << 4 << &TitleBar::helpClicked;
    QTest::newRow("support") << 5 << &TitleBar::supportClicked;
}

void tst_TitleBar::menuEntriesEmit()
{
    using Signal = void (TitleBar::*)();
    QFETCH(const int, entry);
    QFETCH(const Signal, signal);
    const Fixture it;
    const QSignalSpy wanted(&it.bar, signal);
    int all = 0;
    for (const Signal each : {&TitleBar::aboutClicked, &TitleBar::helpClicked, &TitleBar::supportClicked})
        connect(&it.bar, each, this, [&all] { ++all; });
    it.menu()->actions().at(entry)->trigger();
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(all, 1);
}

void tst_TitleBar::menuButtonOpensTheMenuBelowItself()
{
    Fixture it;
    it.window.move(0, 0);
    it.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&it.window));
    WinButton *const button = it.button(WinButton::Menu);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(it.menu()->isVisible());
    QVERIFY(it.menu()->y() >= button->mapToGlobal(QPoint(0, button->height())).y());
    // The screen edge may move the menu to the left, but it must still touch the button.
    QVERIFY(it.menu()->geometry().right() >= button->mapToGlobal(QPoint(0, 0)).x());
    QVERIFY(it.menu()->width() >= 180);
    // The entries span the whole width.
    QVERIFY(it.menu()->actionGeometry(it.menu()->actions().constFirst()).width() >= 180);
    it.menu()->close();
}

void tst_TitleBar::languagesAreListedInOrder()
{
    const Fixture it;
    QStringList entries;
    for (const QAction *action : it.languageMenu()->actions()) {
        QVERIFY(action->isCheckable());
        QVERIFY(action->actionGroup() != nullptr && action->actionGroup()->isExclusive());
        entries.append(action->data().toString() + u'=' + action->text());
    }
    QStringList expected;
    for (const languages::Language &language : languages::all()) {
        if (!language.menuLabel.isEmpty())
            expected.append(language.code + u'=' + language.menuLabel);
    }
    QCOMPARE(entries, expected);
}

void tst_TitleBar::noLanguageIsCheckedWithoutASetting()
{
    const Fixture it;
    QCOMPARE(it.checkedLanguages(), QStringList());
}

void tst_TitleBar::storedLanguageIsChecked()
{
    m_settings->set(usersettings::Language, u"de"_s);
    const Fixture it;
    QCOMPARE(it.checkedLanguages(), QStringList({u"de"_s}));
}

void tst_TitleBar::unlistedLanguageChecksNone()
{
    m_settings->set(usersettings::Language, u"zh_TW"_s);
    const Fixture it;
    QCOMPARE(it.checkedLanguages(), QStringList());
}

void tst_TitleBar::choosingALanguageStoresTellsAndRestarts()
{
    m_settings->set(usersettings::Language, u"de"_s);
    const Fixture it;
    const QSignalSpy changed(&it.bar, &TitleBar::languageChanged);
    it.language(u"ko"_s)->trigger();
    QCOMPARE(m_settings->value(usersettings::Language).toString(), u"ko"_s);
    QCOMPARE(LinkManager::instance().currentLanguage(), u"ko"_s);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toString(), u"ko"_s);
    QCOMPARE(m_prompts->boxes.size(), 1);
    const Prompts::Box box = m_prompts->boxes.constFirst();
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.title, u"Language Changed"_s);
    QCOMPARE(box.text, u"Language has been changed.\n\nThe application will restart now."_s);
    QCOMPARE(it.restarts, 1);
}

void tst_TitleBar::choosingHappensInOrder()
{
    m_settings->set(usersettings::Language, u"de"_s);
    LinkManager::instance().setLanguage(u"de"_s);
    WatchingPrompts prompts;
    Fixture it;
    QStringList order;
    connect(&it.bar, &TitleBar::languageChanged, this, [&](const QString &code) {
        order.append(u"changed %1, stored %2, links %3"_s.arg(
            code, m_settings->value(usersettings::Language).toString(),
            LinkManager::instance().currentLanguage()));
    });
    prompts.shown = [&](QWidget *parent) {
        order.append(parent == &it.window ? u"box over the window"_s : u"box elsewhere"_s);
        order.append(u"restarts %1"_s.arg(it.restarts));
    };
    it.language(u"ja"_s)->trigger();
    order.append(u"restarts %1"_s.arg(it.restarts));
    QCOMPARE(order, QStringList({u"changed ja, stored ja, links ja"_s, u"box over the window"_s,
                                 u"restarts 0"_s, u"restarts 1"_s}));
}

void tst_TitleBar::choosingEnglishWithoutASettingRestartsToo()
{
    const Fixture it;
    it.language(u"en"_s)->trigger();
    QCOMPARE(m_settings->value(usersettings::Language).toString(), u"en"_s);
    QCOMPARE(m_prompts->boxes.size(), 1);
    QCOMPARE(it.restarts, 1);
}

void tst_TitleBar::choosingTheCheckedLanguageDoesNothing()
{
    m_settings->set(usersettings::Language, u"fr"_s);
    const Fixture it;
    const QSignalSpy changed(&it.bar, &TitleBar::languageChanged);
    it.language(u"fr"_s)->trigger();
    QCOMPARE(changed.count(), 0);
    QVERIFY(m_prompts->boxes.isEmpty());
    QCOMPARE(it.restarts, 0);
    QCOMPARE(it.checkedLanguages(), QStringList({u"fr"_s}));
}

QUORVEX_SUITE(tst_TitleBar, QApplication)
#include "tst_titlebar.moc"
