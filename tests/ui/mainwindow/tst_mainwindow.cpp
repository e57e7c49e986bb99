#include "support/suite.h"
#include "ui/mainwindow/windowfixture.h"

#include "ui/home/featurecard.h"
#include "ui/titlebar/winbutton.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPoint>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

// The window itself: pages, menu, frame and message boxes.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void theWindowIsAsItShouldBe();
    void theMenuLeadsToItsPages();
    void aPageSelectsItsMenuRow_data();
    void aPageSelectsItsMenuRow();
    void indexesWithoutAPageChangeNothing();
    void eachCardLeadsToItsFlow_data();
    void eachCardLeadsToItsFlow();
    void backLeadsHome();
    void backFromTheMethodsLeadsToWhatWasChosen();
    void maximiseAndRestore();
    void cornersAreSquareWhenMaximised();
    void theMinimiseButtonMinimises();
    void theWindowIsDraggedByItsTop_data();
    void theWindowIsDraggedByItsTop();
    void aPressOnAButtonDoesNotDrag();
    void anIdleWindowClosesAtOnce();
    void theAboutBoxTellsTheVersion();
    void everyPageHasTheSheetOfTheApplication();
};

static WinButton *titleButton(const WindowFixture &fixture, WinButton::Kind kind)
{
    const QList<WinButton *> buttons = fixture.window->findChildren<WinButton *>();
    for (WinButton *candidate : buttons) {
        if (candidate->kind() == kind)
            return candidate;
    }
    return nullptr;
}

void tst_MainWindow::theWindowIsAsItShouldBe()
{
    WindowFixture fixture;
    const MainWindow &window = *fixture.window;
    QCOMPARE(window.size(), QSize(980, 660));
    QCOMPARE(window.minimumSize(), QSize(980, 660));
    QCOMPARE(window.windowTitle(), u"Quorvex - Data Secure Eraser"_s);
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(fixture.child<QWidget>("sidebar")->width(), 240);
    QCOMPARE(fixture.child<QWidget>("logoWidget")->height(), 80);
    QCOMPARE(fixture.child<QLabel>("logoIcon")->size(), QSize(45, 45));
    QVERIFY(!fixture.child<QLabel>("logoIcon")->pixmap().isNull());
    QCOMPARE(fixture.child<QLabel>("logoTitle")->text(), u"Quorvex"_s);
    QCOMPARE(fixture.child<QLabel>("logoVersion")->text(), u"v5.0"_s);
    const QListWidget *menu = fixture.child<QListWidget>("menuList");
    QCOMPARE(menu->count(), 3);
    QCOMPARE(menu->item(0)->text(), u"Data Wipe"_s);
    QCOMPARE(menu->item(1)->text(), u"History"_s);
    QCOMPARE(menu->item(2)->text(), u"Settings"_s);
    QCOMPARE(menu->currentRow(), 0);
    QCOMPARE(menu->sizeHintForRow(0), 50);
    QCOMPARE(fixture.child<QStackedWidget>("pageStack")->count(), 7);
    QCOMPARE(window.currentPage(), int(MainWindow::Home));
}

void tst_MainWindow::theMenuLeadsToItsPages()
{
    WindowFixture fixture;
    auto *menu = fixture.child<QListWidget>("menuList");
    for (const auto &[row, page] : {std::pair(1, MainWindow::History), std::pair(2, MainWindow::Settings),
                                    std::pair(0, MainWindow::Home)}) {
        QTest::mouseClick(menu->viewport(), Qt::LeftButton, {},
                          menu->visualItemRect(menu->item(row)).center());
        QCOMPARE(fixture.window->currentPage(), int(page));
    }
}

void tst_MainWindow::aPageSelectsItsMenuRow_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("row");
    for (int page = MainWindow::Home; page < MainWindow::History; ++page)
        QTest::addRow("page %d", page) << page << 0;
    QTest::newRow("history") << int(MainWindow::History) << 1;
    QTest::newRow("settings") << int(MainWindow::Settings) << 2;
}

void tst_MainWindow::aPageSelectsItsMenuRow()
{
    QFETCH(int, page);
    QFETCH(int, row);
    WindowFixture fixture;
    fixture.window->onNavigateToPage(page);
    QCOMPARE(fixture.window->currentPage(), page);
    QCOMPARE(fixture.child<QListWidget>("menuList")->currentRow(), row);
}

void tst_MainWindow::indexesWithoutAPageChangeNothing()
{
    WindowFixture fixture;
    fixture.window->onNavigateToPage(5);
    fixture.window->onNavigateToPage(7);
    fixture.window->onNavigateToPage(-1);
    fixture.window->onMenuItemClicked(3);
    QCOMPARE(fixture.window->currentPage(), 5);
    QCOMPARE(fixture.child<QListWidget>("menuList")->currentRow(), 1);
}

void tst_MainWindow::eachCardLeadsToItsFlow_data()
{
    QTest::addColumn<QString>("card");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("title");
    const auto row = [](const QString &card, MainWindow::Page page, const QString &title) {
        QTest::newRow(qPrintable(card)) << card << int(page) << title;
    };
    row(u"Disk Wipe"_s, MainWindow::DiskSelect, u"Wipe Disk and Partition"_s);
    row(u"Free Space Wipe"_s, MainWindow::DiskSelect, u"Wipe Free Space"_s);
    row(u"File Wipe"_s, MainWindow::FileSelect, u"Select Files to Shred"_s);
    row(u"Recycle Bin Wipe"_s, MainWindow::FileSelect, u"Recycle Bin Wipe"_s);
}

void tst_MainWindow::eachCardLeadsToItsFlow()
{
    QFETCH(QString, card);
    QFETCH(int, page);
    QFETCH(QString, title);
    WindowFixture fixture;
    const QList<FeatureCard *> cards = fixture.page()->findChildren<FeatureCard *>();
    for (FeatureCard *candidate : cards) {
        if (candidate->accessibleName() == card)
            QTest::mouseClick(candidate, Qt::LeftButton);
    }
    QCOMPARE(fixture.window->currentPage(), page);
    QCOMPARE(fixture.page()->findChild<QLabel *>(u"pageTitle"_s)->text(), title);
}

void tst_MainWindow::backLeadsHome()
{
    WindowFixture fixture;
    fixture.window->onDiskWipeClicked();
    QVERIFY(fixture.click(u"← Back"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Home));
    fixture.window->onFileWipeClicked();
    QVERIFY(fixture.click(u"← Back"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Home));
    fixture.window->onNavigateToPage(MainWindow::Progress);
    fixture.window->onBackClicked();
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Progress));
}

void tst_MainWindow::backFromTheMethodsLeadsToWhatWasChosen()
{
    WindowFixture fixture;
    fixture.window->onFileWipeClicked();
    fixture.window->onNextClicked();
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QVERIFY(fixture.click(u"← 返回"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::FileSelect));
    fixture.window->onDiskWipeClicked();
    fixture.window->onNextClicked();
    QVERIFY(fixture.click(u"← 返回"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::DiskSelect));
}

void tst_MainWindow::maximiseAndRestore()
{
    WindowFixture fixture;
    WinButton *button = titleButton(fixture, WinButton::Maximize);
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.window->isMaximized(), 60000);
    QCOMPARE(button->toolTip(), u"Restore"_s);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.window->isMaximized(), 60000);
    QCOMPARE(button->toolTip(), u"Maximize"_s);
    fixture.window->showMaximized(); // by the system, not by the button
    QTRY_COMPARE_WITH_TIMEOUT(button->toolTip(), u"Restore"_s, 60000);
}

void tst_MainWindow::cornersAreSquareWhenMaximised()
{
    WindowFixture fixture;
    const auto corners = [&fixture] {
        const QImage picture = fixture.window->grab().toImage();
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        int filled = 0;
        for (const QPoint &corner :
             {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
            filled += picture.pixelColor(corner).alpha() == 255 ? 1 : 0;
        return filled;
    };
    const QString before = fixture.child<QWidget>("mainContainer")->styleSheet();
    QCOMPARE(corners(), 0);
    fixture.window->showMaximized();
    QTRY_COMPARE(corners(), 4);
    fixture.window->showNormal();
    QTRY_COMPARE(corners(), 0);
    QCOMPARE(fixture.child<QWidget>("mainContainer")->styleSheet(), before);
}

void tst_MainWindow::theMinimiseButtonMinimises()
{
    WindowFixture fixture;
    QTest::mouseClick(titleButton(fixture, WinButton::Minimize), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.window->isMinimized(), 60000);
}

void tst_MainWindow::theWindowIsDraggedByItsTop_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("moves");
    QTest::newRow("just below the top edge") << 12 << true;
    QTest::newRow("79 pixels below the top") << 79 << true;
    QTest::newRow("80 pixels below the top") << 80 << false;
    QTest::newRow("in a page") << 300 << false;
}

// Presses where the window, or a widget that passes the press on, is under the cursor.
void tst_MainWindow::theWindowIsDraggedByItsTop()
{
    QFETCH(int, y);
    QFETCH(bool, moves);
#ifdef Q_OS_WIN
    if (moves)
        QSKIP("SKIPPED: Windows moves the window itself, along with a real cursor only");
#endif
    WindowFixture fixture;
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    fixture.window->move(100, 100);
    const QPoint before = fixture.window->pos();
    const QPoint press(500, y);
    const auto send = [&](QEvent::Type type, const QPoint &position, Qt::MouseButton button,
                          Qt::MouseButtons buttons) {
        QMouseEvent event(type, position, before + position, button, buttons, Qt::NoModifier);
        QApplication::sendEvent(fixture.window.get(), &event);
    };
    send(QEvent::MouseButtonPress, press, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, press + QPoint(30, 20), Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, press + QPoint(30, 20), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(fixture.window->pos() - before, moves ? QPoint(30, 20) : QPoint());
    send(QEvent::MouseMove, press + QPoint(60, 60), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(fixture.window->pos() - before, moves ? QPoint(30, 20) : QPoint()); // released
}

void tst_MainWindow::aPressOnAButtonDoesNotDrag()
{
    WindowFixture fixture;
    QVERIFY(QTest::qWaitForWindowExposed(fixture.window.get()));
    const QPoint before = fixture.window->pos();
    auto *button = fixture.window->findChild<WinButton *>();
    QVERIFY(button);
    const QPoint press = button->mapTo(fixture.window.get(), button->rect().center());
    QMouseEvent down(QEvent::MouseButtonPress, press, button->mapToGlobal(button->rect().center()),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(fixture.window.get(), &down);
    QMouseEvent move(QEvent::MouseMove, press + QPoint(30, 20), before + press + QPoint(30, 20), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(fixture.window.get(), &move);
    QCOMPARE(fixture.window->pos(), before);
}

void tst_MainWindow::anIdleWindowClosesAtOnce()
{
    WindowFixture fixture;
    QTest::mouseClick(titleButton(fixture, WinButton::Close), Qt::LeftButton);
    QVERIFY(!fixture.window->isVisible());
    QCOMPARE(fixture.prompts.boxes.size(), 0);
}

void tst_MainWindow::theAboutBoxTellsTheVersion()
{
    WindowFixture fixture;
    fixture.window->onAboutClicked();
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    const Prompts::Box &box = fixture.prompts.boxes.constFirst();
    QCOMPARE(box.title, u"About Quorvex"_s);
    QVERIFY(box.text.startsWith(u"<h3>Quorvex - Data Secure Eraser</h3><p>Version 5.0</p>"_s));
    QVERIFY(box.styleSheet.contains(u"#333333"_s));
}

void tst_MainWindow::everyPageHasTheSheetOfTheApplication()
{
    WindowFixture fixture;
    QVERIFY(fixture.window->styleSheet().contains(u"#primaryBtn"_s));
    QVERIFY(fixture.window->styleSheet().contains(u"#menuList::item:selected"_s));
}

QUORVEX_SUITE(tst_MainWindow, QApplication)
#include "tst_mainwindow.moc"
