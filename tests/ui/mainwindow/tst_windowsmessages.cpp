#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/mainwindow/heldjob.h"
#include "windows/droppedfiles.h"

#include "jobs/jobcontroller.h"
#include "model/joboutcome.h"
#include "ui/files/fileselectpage.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

LRESULT send(const MainWindow &window, UINT message, WPARAM first = 0, LPARAM second = 0)
{
    return ::SendMessageW(reinterpret_cast<HWND>(window.winId()), message, first, second);
}

} // namespace

// What Windows sends to the window and nothing else stands for.
class tst_WindowsMessages : public QObject
{
    Q_OBJECT

private slots:
    void droppedFilesReachThePage();
    void droppedFilesReachNoOtherPage();
    void theEndOfTheSessionIsPutToTheUser();
    void theEndOfTheSessionEndsTheJobAllTheSame();
};

void tst_WindowsMessages::droppedFilesReachThePage()
{
    WindowFixture fixture;
    const QString file = QDir::toNativeSeparators(writeFile(fixture.homePath(u"one"_s), "1"));
    fixture.window->onFileWipeClicked();
    send(*fixture.window, WM_DROPFILES, reinterpret_cast<WPARAM>(droppedFiles({file})));
    QCOMPARE(fixture.window->findChild<FileSelectPage *>()->files(), QStringList{file});
}

void tst_WindowsMessages::droppedFilesReachNoOtherPage()
{
    WindowFixture fixture;
    const QString file = QDir::toNativeSeparators(writeFile(fixture.homePath(u"one"_s), "1"));
    send(*fixture.window, WM_DROPFILES, reinterpret_cast<WPARAM>(droppedFiles({file})));
    QCOMPARE(fixture.window->findChild<FileSelectPage *>()->files(), QStringList());
}

void tst_WindowsMessages::theEndOfTheSessionIsPutToTheUser()
{
    HeldJob held;
    held.drives.machine.fakeSession.canDelayShutdown = true;
    // Nothing speaks against it without a job.
    QCOMPARE(send(*held.fixture->window, WM_QUERYENDSESSION), LRESULT(1));
    send(*held.fixture->window, WM_ENDSESSION, FALSE);
    held.start();
    QCOMPARE(send(*held.fixture->window, WM_QUERYENDSESSION), LRESULT(0));
    // The user lets the job go on.
    send(*held.fixture->window, WM_ENDSESSION, FALSE);
    QCOMPARE(held.job().state(), JobController::State::Running);
    QCOMPARE(held.fixture->window->currentPage(), int(MainWindow::Progress));
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Done"_s)};
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Complete);
}

// The system tells a program once that it goes.
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
