#include "support/suite.h"
#include "support/userdata.h"
#include "ui/mainwindow/heldjob.h"

#include "engine/wipeengine.h"
#include "jobs/jobcontroller.h"
#include "model/joboutcome.h"
#include "services/reportdatabase.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <array>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Makes the database file impossible to open by putting a folder in its place.
void spoilDatabase()
{
    ReportDatabase::instance().close();
    QVERIFY(QFile::remove(userdata::folder() + u"/quorvex.db"_s));
    QVERIFY(QDir(userdata::folder()).mkdir(u"quorvex.db"_s));
}

// Ends a running job.
using End = void (*)(HeldJob &);

} // namespace

// Every way in which a job can end, checked by its record and by the window.
class tst_JobEnds : public QObject
{
    Q_OBJECT

private slots:
    void aJobThatIsStoppedIsRecordedOnce();
    void aWindowThatIsClosedLeavesTheRecordAndNoDialog();
    void aWindowThatIsClosedWhileAJobStopsIsNotAsked();
    void theEndOfTheSessionLeavesTheRecord();
    void theSystemIsKeptAwakeDuringTheJob_data();
    void theSystemIsKeptAwakeDuringTheJob();
    void theSystemIsKeptAwakeNoLongerThanTheJob();
    void aJobThatIsRefusedKeepsNothingAwake();
    void aJobRunsOnWhenTheSystemCannotBeKeptAwake();
    void theWindowDoesNotGoBeforeTheRecord();
    void aRestartWaitsForTheRecord();
    void aRestartWithoutAJobIsAtOnce();
    void whoeverClosesARestartingWindowStillRestarts();
    void theProgramLivesUntilTheEndIsKept();
    void aNewJobWaitsForTheOneThatIsStopping();
    void anEndThatIsOnItsWayIsKept();
    void aQuestionAboutAJobIsTakenBackAtItsEnd_data();
    void aQuestionAboutAJobIsTakenBackAtItsEnd();
    void aDatabaseThatFailsIsToldInTheDialog();
    void aDatabaseThatFailsDoesNotKeepAClosedWindow();
    void aDatabaseThatFailedAtStartIsOpenedForTheReport();
};

void tst_JobEnds::aJobThatIsStoppedIsRecordedOnce()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::Ok};
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Close"_s)};
    held.fixture->window->onStopClicked();
    QCOMPARE(held.job().state(), JobController::State::Stopping);
    QCOMPARE(held.fixture->window->currentPage(), int(MainWindow::Home));
    QCOMPARE(held.fixture->reports().size(), 0);
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.job().state(), JobController::State::Idle, 60000);
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Cancelled);
}

void tst_JobEnds::aWindowThatIsClosedLeavesTheRecordAndNoDialog()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::Yes};
    QVERIFY(held.fixture->window->close());
    QCOMPARE(held.job().state(), JobController::State::Closing);
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.job().state(), JobController::State::Idle, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Cancelled);
    QCoreApplication::processEvents();
    QCOMPARE(held.fixture->dialogs.titles, QStringList{u"Confirm Erase"_s});
    QVERIFY(!held.fixture->window->isVisible());
}

void tst_JobEnds::aWindowThatIsClosedWhileAJobStopsIsNotAsked()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::Ok};
    held.fixture->window->onStopClicked();
    QVERIFY(held.fixture->window->close());
    QCOMPARE(held.fixture->prompts.boxes.size(), 1);
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.storedOutcome(), JobOutcome::Cancelled, 60000);
    QCOMPARE(held.fixture->dialogs.titles, QStringList{u"Confirm Erase"_s});
}

void tst_JobEnds::theEndOfTheSessionLeavesTheRecord()
{
    HeldJob held;
    held.start();
    held.letGo.release();
    // A session manager can only be made by the system, and the window calls none of its functions.
    alignas(void *) std::array<char, 64> manager{};
    emit qApp->commitDataRequest(reinterpret_cast<QSessionManager &>(manager));
    QVERIFY(held.storedOutcome().has_value());
    QCOMPARE(held.job().state(), JobController::State::Idle);
    QCOMPARE(held.fixture->window->currentPage(), int(MainWindow::Home));
    QCOMPARE(held.fixture->dialogs.titles, QStringList{u"Confirm Erase"_s});
}

void tst_JobEnds::theSystemIsKeptAwakeDuringTheJob_data()
{
    QTest::addColumn<End>("end");
    QTest::newRow("stopped") << End([](HeldJob &held) {
        held.fixture->prompts.buttons = {QMessageBox::Ok};
        held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Close"_s)};
        held.fixture->window->onStopClicked();
    });
    QTest::newRow("failed") << End(
        [](HeldJob &held) { held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Close"_s)}; });
    QTest::newRow("window closed") << End([](HeldJob &held) {
        held.fixture->prompts.buttons = {QMessageBox::Yes};
        held.fixture->window->close();
    });
    QTest::newRow("restarted") << End(
        [](HeldJob &held) { held.job().leave(JobController::State::Restarting, [] {}); });
}

void tst_JobEnds::theSystemIsKeptAwakeDuringTheJob()
{
    QFETCH(const End, end);
    HeldJob held;
    const FakeSession &session = held.drives.machine.fakeSession;
    QCOMPARE(session.awakeRequests.size(), 0);
    if (qstrcmp(QTest::currentDataTag(), "failed") == 0) {
        held.memory.drive(0).medium.resize(DriveMachine::Size / 2);
        held.memory.drive(0).endError = platform::IoDevice;
    }
    held.start();
    QCOMPARE(session.awakeRequests.size(), 1);
    QCOMPARE(session.awakeRequests.constFirst().reason, u"An erasure is running."_s);
    QCOMPARE(session.awakeRequests.constFirst().window, quintptr(held.fixture->window->winId()));
    QCOMPARE(session.awakeHolds, 1);
    end(held);
    // The worker is still in its transfer.
    QCOMPARE(session.awakeHolds, 1);
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.job().state(), JobController::State::Idle, 60000);
    QCOMPARE(session.awakeHolds, 0);
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(session.awakeRequests.size(), 1);
}

// The result may stay on the screen for hours.
void tst_JobEnds::theSystemIsKeptAwakeNoLongerThanTheJob()
{
    HeldJob held;
    const FakeSession &session = held.drives.machine.fakeSession;
    held.start();
    int whileShown = -1;
    held.fixture->dialogs.answers = {[&](QDialog &dialog) {
        whileShown = session.awakeHolds;
        dialog.accept();
    }};
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Complete);
    QCOMPARE(whileShown, 0);
}

void tst_JobEnds::aJobThatIsRefusedKeepsNothingAwake()
{
    const HeldJob held;
    const FakeSession &session = held.drives.machine.fakeSession;
    held.job().newTask(DiskWipe); // without a disk
    QVERIFY(held.job().start());
    QCOMPARE(session.awakeRequests.size(), 1);
    QCOMPARE(session.awakeHolds, 0);
}

void tst_JobEnds::aJobRunsOnWhenTheSystemCannotBeKeptAwake()
{
    HeldJob held;
    held.drives.machine.fakeSession.awakeError = platform::AccessDenied;
    QStringList warnings;
    connect(&held.engine(), &WipeEngine::logMessage, held.fixture->window.get(),
            [&warnings](const QString &message, int level) {
                if (level == 1 && message.startsWith(u"The system"_s))
                    warnings.append(message);
            });
    held.start();
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Done"_s)};
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Complete);
    QCOMPARE(warnings, QStringList{u"The system could not be kept from sleeping during this job, error 5"_s});
}

void tst_JobEnds::theWindowDoesNotGoBeforeTheRecord()
{
    HeldJob held;
    held.start();
    held.letGo.release();
    held.fixture->window.reset();
    QCOMPARE(held.fixture->reports().size(), 1);
}

void tst_JobEnds::aRestartWaitsForTheRecord()
{
    HeldJob held;
    held.start();
    int stored = -1;
    held.job().leave(JobController::State::Restarting, [&] { stored = held.fixture->reports().size(); });
    QCOMPARE(held.job().state(), JobController::State::Restarting);
    QCOMPARE(stored, -1);
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(stored, 1, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Cancelled);
    QCOMPARE(held.fixture->dialogs.titles, QStringList{u"Confirm Erase"_s});
}

void tst_JobEnds::aRestartWithoutAJobIsAtOnce()
{
    const HeldJob held;
    bool isCalled = false;
    held.job().leave(JobController::State::Restarting, [&isCalled] { isCalled = true; });
    QVERIFY(isCalled);
    QCOMPARE(held.job().state(), JobController::State::Idle);
}

void tst_JobEnds::whoeverClosesARestartingWindowStillRestarts()
{
    HeldJob held;
    held.start();
    bool isCalled = false;
    held.job().leave(JobController::State::Restarting, [&isCalled] { isCalled = true; });
    QVERIFY(held.fixture->window->close());
    QCOMPARE(held.fixture->prompts.boxes.size(), 0);
    held.letGo.release();
    QTRY_VERIFY_WITH_TIMEOUT(isCalled, 60000);
}

// The event loop ends with the last window, while the worker is still in its transfer.
void tst_JobEnds::theProgramLivesUntilTheEndIsKept()
{
    HeldJob held;
    held.start();
    std::jthread transfer;
    QTimer::singleShot(0, held.fixture->window.get(), [&held, &transfer] {
        held.fixture->prompts.buttons = {QMessageBox::Yes};
        held.fixture->window->close();
        transfer = std::jthread([&held] {
            QTest::qSleep(300);
            held.letGo.release();
        });
    });
    qsizetype stored = -1;
    connect(qApp, &QCoreApplication::aboutToQuit, held.fixture->window.get(),
            [&held, &stored] { stored = held.fixture->reports().size(); });
    QTimer::singleShot(60s, held.fixture->window.get(), [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(stored, 1);
}

void tst_JobEnds::aNewJobWaitsForTheOneThatIsStopping()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::Ok};
    held.fixture->window->onStopClicked();
    held.fixture->window->onDiskWipeClicked();
    choose(*held.fixture, diskRow(*held.fixture, 1));
    QVERIFY(held.fixture->click(u"Start"_s));
    QCOMPARE(held.fixture->prompts.boxes.size(), 2);
    QCOMPARE(held.fixture->prompts.boxes.constLast().text, u"The previous job is still ending."_s);
    QCOMPARE(held.fixture->window->currentPage(), int(MainWindow::MethodSelect));
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Close"_s)};
    held.letGo.release();
    // The record belongs to the stopped job, although the window has another task by now.
    QTRY_COMPARE_WITH_TIMEOUT(held.storedOutcome(), JobOutcome::Cancelled, 60000);
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.memory.drive(1).medium, MemoryDrive(1, DriveMachine::Size).medium);
}

// The worker's thread has ended, and its last signal is still queued for this thread.
void tst_JobEnds::anEndThatIsOnItsWayIsKept()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::Ok};
    held.fixture->window->onStopClicked();
    held.letGo.release();
    QVERIFY(held.engine().findChild<QThread *>()->wait(60000));
    held.fixture->window->onDiskWipeClicked();
    held.fixture->window->onFileWipeClicked();
    QCOMPARE(held.job().state(), JobController::State::Stopping);
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Close"_s)};
    QCoreApplication::processEvents();
    QCOMPARE(held.job().state(), JobController::State::Idle);
    QCOMPARE(held.storedOutcome(), JobOutcome::Cancelled);
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
}

void tst_JobEnds::aQuestionAboutAJobIsTakenBackAtItsEnd_data()
{
    QTest::addColumn<bool>("closes");
    QTest::newRow("Confirm Stop") << false;
    QTest::newRow("Confirm Exit") << true;
}

void tst_JobEnds::aQuestionAboutAJobIsTakenBackAtItsEnd()
{
    QFETCH(const bool, closes);
    HeldJob held;
    held.start();
    ScriptedPrompts &prompts = held.fixture->prompts;
    prompts.buttons = {closes ? QMessageBox::Yes : QMessageBox::Ok};
    held.fixture->dialogs.answers = {WindowFixture::pressButton(u"Done"_s)};
    prompts.whileShown = [&held] {
        held.letGo.release();
        QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    };
    if (closes)
        QVERIFY(!held.fixture->window->close());
    else
        held.fixture->window->onStopClicked();
    QVERIFY(prompts.isWithdrawn);
    QCOMPARE(prompts.boxes.size(), 1);
    QVERIFY(held.fixture->window->isVisible());
    QCOMPARE(held.storedOutcome(), JobOutcome::Complete);
    QCOMPARE(held.fixture->dialogs.titles.constLast(), u"Erasing Complete"_s);
}

void tst_JobEnds::aDatabaseThatFailsIsToldInTheDialog()
{
    HeldJob held;
    held.start();
    spoilDatabase();
    QString told;
    held.fixture->dialogs.answers = {[&told](QDialog &dialog) {
        const auto *const label = dialog.findChild<QLabel *>(u"notStoredLabel"_s);
        told = label ? label->text() : u"(no line)"_s;
        dialog.accept();
    }};
    held.letGo.release();
    QTRY_VERIFY_WITH_TIMEOUT(!told.isEmpty(), 60000);
    QVERIFY2(told.startsWith(u"The report is not stored. The report database cannot be opened. ("_s),
             qPrintable(told));
    QCOMPARE(held.fixture->prompts.boxes.size(), 0);
}

void tst_JobEnds::aDatabaseThatFailsDoesNotKeepAClosedWindow()
{
    HeldJob held;
    held.start();
    spoilDatabase();
    held.fixture->prompts.buttons = {QMessageBox::Yes};
    QVERIFY(held.fixture->window->close());
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.job().state(), JobController::State::Idle, 60000);
    QCOMPARE(held.fixture->prompts.boxes.size(), 1);
    QCOMPARE(held.fixture->dialogs.titles, QStringList{u"Confirm Erase"_s});
}

void tst_JobEnds::aDatabaseThatFailedAtStartIsOpenedForTheReport()
{
    HeldJob held;
    held.start();
    ReportDatabase::instance().close();
    held.fixture->dialogs.answers = {[](QDialog &dialog) {
        QVERIFY(!dialog.findChild<QLabel *>(u"notStoredLabel"_s));
        dialog.accept();
    }};
    held.letGo.release();
    QTRY_COMPARE_WITH_TIMEOUT(held.fixture->dialogs.answers.size(), 0, 60000);
    QCOMPARE(held.storedOutcome(), JobOutcome::Complete);
}

QUORVEX_SUITE(tst_JobEnds, QApplication)
#include "tst_jobends.moc"
