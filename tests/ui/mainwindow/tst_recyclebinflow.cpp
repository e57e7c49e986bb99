#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/mainwindow/drivewindow.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/mainwindow/windowfixture.h"

#include "platform/forwarding.h"
#include "services/reportdatabase.h"
#include "support/fakedevices.h"
#include "support/infofiles.h"
#include "ui/files/fileselectpage.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFutureWatcher>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QUrl>

#include <cmath>
#include <limits>
#include <memory>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

// The Recycle Bin in the main window, on a Trash of the test.
class tst_RecycleBinFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void theBinIsShownInPieces();
    void theListGoesOnWhileAllRowsFit();
    void theListGoesOnWhenTheWindowGrows();
    void impossibleSizesAndOldPathsAreToldAsSuch();
    void theQuestionNamesTheContentOfTheBin();
    void theShownBinIsErasedAndFreeSpaceOffered();
    void anEmptyBinLeadsHomeAndOffersFreeSpace_data();
    void anEmptyBinLeadsHomeAndOffersFreeSpace();
    void backDuringTheScanDropsItsResult();
    void backAfterTheScanRestoresThePage();
    void anotherFlowLeavesTheBin();
    void aFileJobAfterTheBinHasItsPageBack();
    void namesOfErasedFoldersLeaveTheRecords();
    void aNameThatIsNoUnicodeIsErasedToo();
    void dropsOnTheShownBinAreIgnored();
    void backFromTheMethodsKeepsTheBin();
    void whatVanishesAfterTheScanStopsTheJob();
    void aBinThatIsNotLookedIntoIsTold();
    void dataWithoutARecordIsErasedToo();
    void theBinOfAnotherAccountIsToldAsSuch();

private:
    // Both concern the Trash in the home folder of the fixture.
    static void addTrash(const WindowFixture &fixture, int count);
    static QString trash(const WindowFixture &fixture, const QString &name = {});
};

void tst_RecycleBinFlow::initTestCase()
{
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: the bins of Windows lie on its drives, of which a test sees none");
#endif
}

QString tst_RecycleBinFlow::trash(const WindowFixture &fixture, const QString &name)
{
    return fixture.homePath(u"data/Trash/"_s) + name;
}

void tst_RecycleBinFlow::addTrash(const WindowFixture &fixture, int count)
{
    QVERIFY(QDir().mkpath(trash(fixture, u"info"_s)));
    for (int i = 0; i < count; ++i) {
        const QString name = u"file%1.txt"_s.arg(i, 3, 10, QChar(u'0'));
        writeFile(trash(fixture, u"files/"_s + name), "deleted");
        writeFile(trash(fixture, u"info/"_s + name + u".trashinfo"_s),
                  "[Trash Info]\nPath=/tmp/" + name.toUtf8() + "\n");
    }
}

void tst_RecycleBinFlow::theBinIsShownInPieces()
{
    WindowFixture fixture;
    addTrash(fixture, 45);
    fixture.window->onRecycleBinWipeClicked();
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QCOMPARE(page->stack()->currentIndex(), int(FileSelectPage::DropZoneView));
    QTRY_COMPARE_WITH_TIMEOUT(page->stack()->currentIndex(), int(FileSelectPage::ListView), 60000);
    QCOMPARE(page->list()->count(), 20);
    QCOMPARE(page->statsLabel()->text(), u"Found 45 items, total 315 B"_s);
    QVERIFY(page->nextButton()->isEnabled());
    QVERIFY(!fixture.button(u"📄 Add Files"_s)->isVisible());
    QVERIFY(page->list()->item(0)->text().startsWith(u"📄  file"_s));
    QVERIFY(page->list()->item(0)->text().endsWith(u".txt  (7 B)"_s));
    QVERIFY(page->list()->item(0)->toolTip().startsWith(u"/tmp/file"_s));
    QVERIFY(page->list()->item(0)->data(Qt::UserRole).toString().contains(u"/Trash/files/file"_s));

    QScrollBar *bar = page->list()->verticalScrollBar();
    QTRY_VERIFY_WITH_TIMEOUT(bar->maximum() > 0, 60000);
    bar->setValue(int(0.8 * bar->maximum()) - 1);
    QCOMPARE(page->list()->count(), 20);
    bar->setValue(int(std::ceil(0.8 * bar->maximum())));
    QCOMPARE(page->list()->count(), 40);
    QTRY_VERIFY_WITH_TIMEOUT(bar->value() < bar->maximum(), 60000);
    bar->setValue(bar->maximum());
    QCOMPARE(page->list()->count(), 45);
}

void tst_RecycleBinFlow::theListGoesOnWhileAllRowsFit()
{
    WindowFixture fixture;
    fixture.window->resize(980, 2600);
    addTrash(fixture, 90);
    fixture.window->onRecycleBinWipeClicked();
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QTRY_VERIFY(page->list()->verticalScrollBar()->maximum() > 0);
    QCOMPARE(page->list()->count() % 20, 0);
    QVERIFY2(page->list()->count() < 90, qPrintable(QString::number(page->list()->count())));
    QCOMPARE(page->list()->item(0)->data(Qt::AccessibleTextRole).toString().left(4), u"file"_s);
}

void tst_RecycleBinFlow::theListGoesOnWhenTheWindowGrows()
{
    WindowFixture fixture;
    addTrash(fixture, 45);
    fixture.window->onRecycleBinWipeClicked();
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QTRY_VERIFY(page->list()->verticalScrollBar()->maximum() > 0);
    QCOMPARE(page->list()->count(), 20);
    fixture.window->resize(980, 4000);
    QTRY_COMPARE(page->list()->count(), 45);
}

void tst_RecycleBinFlow::impossibleSizesAndOldPathsAreToldAsSuch()
{
    const QTemporaryDir drive;
    DriveWindow drives;
    drives.memory.addVolume(drive.path(), 0, 0, DriveMachine::Size);
    drives.machine.fakeSession.user = u"S-1-5-21-1"_s;
    const QString bin = drive.path() + u"/$Recycle.Bin/S-1-5-21-1/"_s;
    constexpr quint64 Largest = std::numeric_limits<quint64>::max();
    writeFile(bin + u"$I1.txt"_s, infoVersion2(u"C:\\huge.txt"_s, Largest));
    writeFile(bin + u"$R1.txt"_s, "a");
    writeFile(bin + u"$I2.txt"_s, infoVersion1(u"C:\\old\\letter.txt"_s, 3));
    writeFile(bin + u"$R2.txt"_s, "abc");
    WindowFixture fixture(std::move(drives.owned));
    fixture.window->onRecycleBinWipeClicked();
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QTRY_COMPARE(page->list()->count(), 2);
    const QListWidgetItem *huge = page->list()->item(0);
    const QListWidgetItem *old = page->list()->item(1);
    if (huge->text().contains(u"letter"_s))
        std::swap(huge, old);
    QCOMPARE(huge->text(), u"📄  huge.txt  (16384.00 PB, an impossible size)"_s);
    QVERIFY2(huge->toolTip().contains(u"18446744073709551615 bytes"_s), qPrintable(huge->toolTip()));
    QCOMPARE(old->text(), u"📄  letter.txt  (3 B)"_s);
    QCOMPARE(old->toolTip(), u"C:\\old\\letter.txt"_s);
    QCOMPARE(page->statsLabel()->text(),
             u"Found 2 items, total 16384.00 PB\nImpossible sizes in the sum: 1"_s);
}

void tst_RecycleBinFlow::theQuestionNamesTheContentOfTheBin()
{
    WindowFixture fixture;
    addTrash(fixture, 22);
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY(fixture.button(u"Next →"_s)->isEnabled());
    QVERIFY(fixture.click(u"Next →"_s));
    QStringList target;
    fixture.dialogs.answers = {[&target](QDialog &dialog) {
        if (const auto *text = dialog.findChild<QTextEdit *>(u"dialogTarget"_s))
            target = text->toPlainText().split(u'\n');
        dialog.reject();
    }};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY(fixture.dialogs.answers.isEmpty());
    QCOMPARE(target.size(), 22);
    QCOMPARE(target.at(0), u"Found 22 items, total 154 B"_s);
    QVERIFY2(target.at(1).startsWith(u"📄  file"_s), qPrintable(target.at(1)));
    QCOMPARE(target.at(21), u"and 2 more"_s);
}

void tst_RecycleBinFlow::theShownBinIsErasedAndFreeSpaceOffered()
{
    WindowFixture fixture;
    addTrash(fixture, 3);
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.dialogs.answers = {WindowFixture::typeErase, WindowFixture::pressButton(u"Done"_s)};
    fixture.prompts.buttons = {QMessageBox::Yes};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->currentPage(), int(MainWindow::DiskSelect), 60000);
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"Wipe Free Space?"_s);
    QVERIFY(QDir(trash(fixture, u"files"_s)).isEmpty());
    QVERIFY(QDir(trash(fixture, u"info"_s)).isEmpty());
    QCOMPARE(fixture.reports().size(), 1);
}

void tst_RecycleBinFlow::anEmptyBinLeadsHomeAndOffersFreeSpace_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("page");
    QTest::newRow("no") << int(QMessageBox::No) << int(MainWindow::Home);
    QTest::newRow("yes") << int(QMessageBox::Yes) << int(MainWindow::DiskSelect);
}

void tst_RecycleBinFlow::anEmptyBinLeadsHomeAndOffersFreeSpace()
{
    QFETCH(int, answer);
    QFETCH(int, page);
    WindowFixture fixture;
    fixture.prompts.buttons = {static_cast<QMessageBox::StandardButton>(answer)};
    fixture.window->onRecycleBinWipeClicked();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.prompts.boxes.size(), 1, 60000);
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"Recycle Bin is Empty"_s);
    QCOMPARE(fixture.window->currentPage(), page);
}

void tst_RecycleBinFlow::backDuringTheScanDropsItsResult()
{
    WindowFixture fixture;
    addTrash(fixture, 5);
    fixture.window->onRecycleBinWipeClicked();
    QVERIFY(fixture.click(u"← Back"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Home));
    auto *watcher = fixture.window->findChild<QFutureWatcherBase *>();
    QVERIFY(watcher);
    QTRY_VERIFY_WITH_TIMEOUT(watcher->isFinished(), 60000);
    QTest::qWait(50);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Home));
    QCOMPARE(fixture.prompts.boxes.size(), 0);
    fixture.window->onFileWipeClicked();
    QCOMPARE(fixture.window->findChild<FileSelectPage *>()->list()->count(), 0);
    QVERIFY(fixture.button(u"📄 Add Files"_s)->isVisible());
}

void tst_RecycleBinFlow::backAfterTheScanRestoresThePage()
{
    WindowFixture fixture;
    addTrash(fixture, 5);
    fixture.window->onRecycleBinWipeClicked();
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QTRY_COMPARE_WITH_TIMEOUT(page->list()->count(), 5, 60000);
    QVERIFY(fixture.click(u"← Back"_s));
    fixture.window->onFileWipeClicked();
    QCOMPARE(page->list()->count(), 0);
    QVERIFY(!page->nextButton()->isEnabled());
    QVERIFY(fixture.button(u"📄 Add Files"_s)->isVisible());
    QCOMPARE(page->findChild<QLabel *>(u"pageTitle"_s)->text(), u"Select Files to Shred"_s);
}

// From a page of the bin without a back button, the menu leads to the home page.
void tst_RecycleBinFlow::anotherFlowLeavesTheBin()
{
    WindowFixture fixture;
    addTrash(fixture, 3);
    const QString chosen = fixture.homePath(u"chosen.txt"_s);
    writeFile(chosen, "chosen");
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    fixture.window->onMenuItemClicked(0);
    fixture.window->onFileWipeClicked();
    fixture.prompts.filesToOpenAnswers = {{chosen}};
    QVERIFY(fixture.click(u"📄 Add Files"_s));
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.runJob();
    QVERIFY(!QFile::exists(chosen));
    QCOMPARE(QDir(trash(fixture, u"files"_s)).entryList(QDir::Files).size(), 3);
    QCOMPARE(fixture.prompts.boxes.size(), 0); // the bin is not offered
}

void tst_RecycleBinFlow::aFileJobAfterTheBinHasItsPageBack()
{
    WindowFixture fixture;
    addTrash(fixture, 3);
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.prompts.buttons = {QMessageBox::No};
    fixture.runJob();
    fixture.window->onFileWipeClicked();
    QVERIFY(fixture.button(u"📄 Add Files"_s)->isVisible());
    QCOMPARE(fixture.page()->findChild<QLabel *>(u"pageTitle"_s)->text(), u"Select Files to Shred"_s);
}

void tst_RecycleBinFlow::namesOfErasedFoldersLeaveTheRecords()
{
    WindowFixture fixture;
    QVERIFY(QDir().mkpath(trash(fixture, u"info"_s)));
    writeFile(trash(fixture, u"files/project/plan.txt"_s), "plan");
    writeFile(trash(fixture, u"info/project.trashinfo"_s), "[Trash Info]\nPath=/tmp/project\n");
    writeFile(trash(fixture, u"directorysizes"_s), "4 1700000000 project\n");
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.prompts.buttons = {QMessageBox::No};
    fixture.runJob();
    QVERIFY(!contentOf(trash(fixture, u"directorysizes"_s)).contains("project"));
}

void tst_RecycleBinFlow::aNameThatIsNoUnicodeIsErasedToo()
{
#ifdef Q_OS_UNIX
    WindowFixture fixture;
    addTrash(fixture, 1);
    const QByteArray name("caf\xe9.txt");
    for (const QByteArray &path : {QFile::encodeName(trash(fixture, u"files/"_s)) + name,
                                   QFile::encodeName(trash(fixture, u"info/"_s)) + name + ".trashinfo"}) {
        const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        QVERIFY(file != -1);
        const QByteArray content = "[Trash Info]\nPath=/tmp/cafe.txt\n";
        QCOMPARE(::write(file, content.constData(), static_cast<std::size_t>(content.size())),
                 content.size());
        ::close(file);
    }
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.prompts.buttons = {QMessageBox::No};
    fixture.runJob();
    QVERIFY(QDir(trash(fixture, u"files"_s)).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
    QVERIFY(QDir(trash(fixture, u"info"_s)).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
    QCOMPARE(fixture.reports().constFirst().status, WipeStatus::Completed);
#else
    QSKIP("SKIPPED: names are Unicode on Windows");
#endif
}

// Dropped files would be listed but not erased with the others.
void tst_RecycleBinFlow::dropsOnTheShownBinAreIgnored()
{
    WindowFixture fixture;
    addTrash(fixture, 3);
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(fixture.homePath(u"data"_s))});
    // A widget receives a drop only after the drag.
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(page->list()->viewport(), &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(page->list()->viewport(), &drop);
    QVERIFY(!enter.isAccepted());
    QVERIFY(!drop.isAccepted());
    QCOMPARE(page->list()->count(), 3);
    QVERIFY(page->files().isEmpty());
}

void tst_RecycleBinFlow::backFromTheMethodsKeepsTheBin()
{
    WindowFixture fixture;
    addTrash(fixture, 5);
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    QVERIFY(fixture.click(u"Next →"_s));
    QVERIFY(fixture.click(u"← 返回"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::FileSelect));
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QCOMPARE(page->list()->count(), 5);
    QVERIFY(page->nextButton()->isEnabled());
}

void tst_RecycleBinFlow::whatVanishesAfterTheScanStopsTheJob()
{
    WindowFixture fixture;
    addTrash(fixture, 2);
    fixture.window->onRecycleBinWipeClicked();
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QTRY_COMPARE_WITH_TIMEOUT(page->list()->count(), 2, 60000);
    QVERIFY(QFile::remove(trash(fixture, u"files/file000.txt"_s)));
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.dialogs.answers = {WindowFixture::typeErase};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QVERIFY(fixture.prompts.boxes.constFirst().text.contains(u"file000.txt"_s));
    QVERIFY(QFile::exists(trash(fixture, u"files/file001.txt"_s)));
}

void tst_RecycleBinFlow::aBinThatIsNotLookedIntoIsTold()
{
    WindowFixture fixture;
    addTrash(fixture, 1);
    const QString info = trash(fixture, u"info"_s);
    QVERIFY(QDir().rename(info, fixture.homePath(u"elsewhere"_s)));
    QVERIFY(QFile::link(fixture.homePath(u"elsewhere"_s), info));
    const QString told = u"Not looked into: "_s + info;
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QCOMPARE(page->statsLabel()->text(), u"Found 1 items, total 7 B\n"_s + told);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.dialogs.answers = {WindowFixture::typeErase, WindowFixture::pressButton(u"Done"_s)};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.reports().isEmpty(), 60000);
    const auto outcome = ReportDatabase::instance().outcome(fixture.reports().constFirst().certificateId);
    QVERIFY(outcome);
    QCOMPARE(outcome->outcome(), JobOutcome::Partial);
    QCOMPARE(outcome->shortfalls(), (QList<Shortfall>{{ShortfallKind::BinNotEntered, info}}));

    // Only the link is left, so calling the bin empty would be incomplete.
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.prompts.boxes.isEmpty() &&
                                 fixture.prompts.boxes.constLast().title == u"Recycle Bin is Empty"_s,
                             60000);
    QVERIFY(fixture.prompts.boxes.constLast().text.endsWith(u"\n\n"_s + told));
}

void tst_RecycleBinFlow::dataWithoutARecordIsErasedToo()
{
    const QTemporaryDir stick;
    FakeDevices devices;
    devices.mount(FakeVolume::onDrives(stick.path(), {0}));
    FakeSession session;
    session.user = u"1000"_s;
    const std::unique_ptr<platform::Platform> native = platform::createPlatform({});
    WindowFixture fixture(
        std::make_unique<platform::ForwardingPlatform>(native->files(), native->folders(), devices, session));
    const QString data = stick.filePath(u"$Recycle.Bin/1000/$RABCDEF.txt"_s);
    writeFile(data, "deleted");
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QCOMPARE(page->list()->count(), 0);
    QCOMPARE(page->statsLabel()->text(), u"Found 0 items, total 0 B\nErased too, without a record: 1"_s);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.runJob();
    QVERIFY(!QFile::exists(data));
}

void tst_RecycleBinFlow::theBinOfAnotherAccountIsToldAsSuch()
{
    FakeDevices devices;
    FakeSession session;
    const std::unique_ptr<platform::Platform> native = platform::createPlatform({});
    session.user = native->session().userId();
    session.otherAccount = u"root"_s;
    WindowFixture fixture(
        std::make_unique<platform::ForwardingPlatform>(native->files(), native->folders(), devices, session));
    fixture.prompts.buttons = {QMessageBox::No};
    fixture.window->onRecycleBinWipeClicked();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.prompts.boxes.size(), 1, 60000);
    QVERIFY(fixture.prompts.boxes.constFirst().text.endsWith(u"\n\nRecycle Bin of root"_s));

    addTrash(fixture, 1);
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    auto *page = fixture.window->findChild<FileSelectPage *>();
    QCOMPARE(page->statsLabel()->text(), u"Found 1 items, total 7 B\nRecycle Bin of root"_s);
    QVERIFY(fixture.click(u"Next →"_s));
    QCOMPARE(session.binChanges, 0);
    fixture.runJob();
    QCOMPARE(session.binChanges, 1);
}

QUORVEX_SUITE(tst_RecycleBinFlow, QApplication)
#include "tst_recyclebinflow.moc"
