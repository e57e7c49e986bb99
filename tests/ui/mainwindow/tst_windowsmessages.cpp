#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/mainwindow/heldjob.h"
#include "windows/droppedfiles.h"

#include "jobs/jobcontroller.h"
#include "model/joboutcome.h"
#include "ui/files/fileselectpage.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QTest>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

LRESULT send(const MainWindow &window, UINT message, WPARAM first = 0, LPARAM second = 0)
{
    return ::SendMessageW(reinterpret_cast<HWND>(window.winId()), message, first, second);
}

// Mouse input comes through the message queue.
void post(const MainWindow &window, UINT message, WPARAM first = 0, LPARAM second = 0)
{
    ::PostMessageW(reinterpret_cast<HWND>(window.winId()), message, first, second);
}

// A position in the window, encoded as in a mouse message.
LPARAM onScreen(const MainWindow &window, const QPoint &place)
{
    RECT outline = {};
    ::GetWindowRect(reinterpret_cast<HWND>(window.winId()), &outline);
    const QPointF pixel = QPointF(place) * window.devicePixelRatioF();
    return MAKELPARAM(WORD(outline.left + qRound(pixel.x())), WORD(outline.top + qRound(pixel.y())));
}

} // namespace

// Messages of Windows to the window for which Qt has no event.
class tst_WindowsMessages : public QObject
{
    Q_OBJECT

private slots:
    void droppedFilesReachThePage();
    void droppedFilesReachNoOtherPage();
    void thePartsOfTheFrameAreWhereTheyAreSeen();
    void theMaximizeButtonIsPressedThroughTheFrame();
    void aPressThatLeavesTheMaximizeButtonIsNone();
    void theMaximizeButtonShowsTheMouse();
    void theWindowSnaps();
    void aMaximisedWindowLeavesTheTaskbar();
    void theEndOfTheSessionIsPutToTheUser();
    void theEndOfTheSessionEndsTheJobAllTheSame();
};

void tst_WindowsMessages::droppedFilesReachThePage()
{
    WindowFixture fixture;
    const QString file = QDir::toNativeSeparators(writeFile(fixture.homePath(u"one"_s), "1"));
    fixture.window->onFileWipeClicked();
    post(*fixture.window, WM_DROPFILES, reinterpret_cast<WPARAM>(droppedFiles({file})));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->findChild<FileSelectPage *>()->files(), QStringList{file},
                              60000);
}

void tst_WindowsMessages::droppedFilesReachNoOtherPage()
{
    WindowFixture fixture;
    const QString file = QDir::toNativeSeparators(writeFile(fixture.homePath(u"one"_s), "1"));
    send(*fixture.window, WM_DROPFILES, reinterpret_cast<WPARAM>(droppedFiles({file})));
    QCOMPARE(fixture.window->findChild<FileSelectPage *>()->files(), QStringList());
}

void tst_WindowsMessages::thePartsOfTheFrameAreWhereTheyAreSeen()
{
    const WindowFixture fixture;
    MainWindow &window = *fixture.window;
    const auto partAt = [&window](QPoint place) {
        return send(window, WM_NCHITTEST, 0, onScreen(window, place));
    };
    QWidget &maximize = *fixture.child<QWidget>("maximizeButton");
    QWidget &close = *fixture.child<QWidget>("closeButton");
    const auto middleOf = [&window](const QWidget &widget) {
        return widget.mapTo(&window, widget.rect().center());
    };
    QCOMPARE(partAt({0, 0}), LRESULT(HTTOPLEFT));
    QCOMPARE(partAt({window.width() - 1, window.height() - 1}), LRESULT(HTBOTTOMRIGHT));
    QCOMPARE(partAt({400, 30}), LRESULT(HTCAPTION));
    QCOMPARE(partAt({400, 200}), LRESULT(HTCLIENT));
    QCOMPARE(partAt(middleOf(maximize)), LRESULT(HTMAXBUTTON));
    QCOMPARE(partAt(middleOf(close)), LRESULT(HTCLIENT));
}

void tst_WindowsMessages::theMaximizeButtonIsPressedThroughTheFrame()
{
    const WindowFixture fixture;
    const QSize before = fixture.window->size();
    for (const bool maximized : {true, false}) {
        post(*fixture.window, WM_NCLBUTTONDOWN, HTMAXBUTTON);
        QCoreApplication::processEvents();
        QCOMPARE(fixture.window->isMaximized(), !maximized);
        post(*fixture.window, WM_NCLBUTTONUP, HTMAXBUTTON);
        QTRY_COMPARE_WITH_TIMEOUT(fixture.window->isMaximized(), maximized, 60000);
    }
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->size(), before, 60000);
}

void tst_WindowsMessages::aPressThatLeavesTheMaximizeButtonIsNone()
{
    const WindowFixture fixture;
    for (const UINT message : {WM_NCMOUSEMOVE, WM_NCLBUTTONDOWN})
        post(*fixture.window, message, HTMAXBUTTON);
    post(*fixture.window, WM_NCMOUSELEAVE);
    post(*fixture.window, WM_NCLBUTTONUP, HTMAXBUTTON);
    QCoreApplication::processEvents();
    QVERIFY(!fixture.window->isMaximized());
}

// Sends the message straight to the filter, because the system uses the real position of the mouse.
void tst_WindowsMessages::theMaximizeButtonShowsTheMouse()
{
    const WindowFixture fixture;
    const QWidget &button = *fixture.child<QWidget>("maximizeButton");
    MSG message = {};
    message.hwnd = reinterpret_cast<HWND>(fixture.window->winId());
    for (const bool isOver : {true, false}) {
        message.message = isOver ? WM_NCMOUSEMOVE : WM_NCMOUSELEAVE;
        message.wParam = isOver ? HTMAXBUTTON : 0;
        QVERIFY(!QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &message,
                                                                         nullptr));
        QCOMPARE(button.underMouse(), isOver);
    }
}

// The window has a frame of zero width.
void tst_WindowsMessages::theWindowSnaps()
{
    const WindowFixture fixture;
    auto *const handle = reinterpret_cast<HWND>(fixture.window->winId());
    QVERIFY((::GetWindowLongPtrW(handle, GWL_STYLE) & WS_THICKFRAME) != 0);
    RECT window = {};
    RECT content = {};
    QVERIFY(::GetWindowRect(handle, &window) && ::GetClientRect(handle, &content));
    QCOMPARE(content.right, window.right - window.left);
    QCOMPARE(content.bottom, window.bottom - window.top);
}

void tst_WindowsMessages::aMaximisedWindowLeavesTheTaskbar()
{
    const WindowFixture fixture;
    auto *const handle = reinterpret_cast<HWND>(fixture.window->winId());
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    QVERIFY(::GetMonitorInfoW(::MonitorFromWindow(handle, MONITOR_DEFAULTTONEAREST), &screen));
    MINMAXINFO limits = {};
    send(*fixture.window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    QCOMPARE(limits.ptMaxSize.y, screen.rcWork.bottom - screen.rcWork.top);
    QCOMPARE(limits.ptMinTrackSize.x, qRound(980 * fixture.window->devicePixelRatioF()));
    fixture.window->showMaximized();
    WINDOWPOS placed = {};
    placed.cx = 9000;
    placed.cy = 9000;
    send(*fixture.window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&placed));
    QCOMPARE(placed.cx, int(screen.rcWork.right - screen.rcWork.left));
    QCOMPARE(placed.cy, int(screen.rcWork.bottom - screen.rcWork.top));
}

void tst_WindowsMessages::theEndOfTheSessionIsPutToTheUser()
{
    HeldJob held;
    held.drives.machine.fakeSession.canDelayShutdown = true;
    // Without a job the end of the session is accepted.
    QCOMPARE(send(*held.fixture->window, WM_QUERYENDSESSION), LRESULT(1));
    send(*held.fixture->window, WM_ENDSESSION, FALSE);
    held.start();
    QCOMPARE(send(*held.fixture->window, WM_QUERYENDSESSION), LRESULT(0));
    // The user cancels the end of the session.
    send(*held.fixture->window, WM_ENDSESSION, FALSE);
    QCOMPARE(held.job().state(), JobController::State::Running);
    QCOMPARE(held.fixture->window->currentPage(), int(MainWindow::Progress));
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Done"_s)};
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Complete);
}

// The system announces the end of the session only once.
void tst_WindowsMessages::theEndOfTheSessionEndsTheJobAllTheSame()
{
    HeldJob held;
    held.drives.machine.fakeSession.canDelayShutdown = true;
    held.start();
    QCOMPARE(send(*held.fixture->window, WM_QUERYENDSESSION), LRESULT(0));
    held.letGo.release();
    send(*held.fixture->window, WM_ENDSESSION, TRUE);
    QCOMPARE(held.job().state(), JobController::State::Idle);
    QVERIFY(held.storedOutcome().has_value());
}

QUORVEX_SUITE(tst_WindowsMessages, QApplication)
#include "tst_windowsmessages.moc"
