#include "support/filledreport.h"
#include "support/pdfreader.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/mainwindow/heldjob.h"
#include "ui/mainwindow/windowfixture.h"

#include "engine/wipeengine.h"
#include "model/joboutcome.h"
#include "platform/forwarding.h"
#include "services/linkmanager.h"
#include "services/reportdatabase.h"
#include "support/faultplan.h"
#include "support/faultyfiles.h"
#include "ui/files/fileselectpage.h"
#include "ui/history/historypage.h"
#include "ui/progress/progresspage.h"
#include "ui/titlebar/titlebar.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QUrl>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

// The navigation of the window, and the texts of its questions.
class tst_WindowWiring : public QObject
{
    Q_OBJECT

private slots:
    void theEngineFeedsTheProgressPage();
    void aRefusalIsALineOfThePage();
    void helpAndSupportOpenTheirOwnPages();
    void theQuestionBeforeAStop();
    void theQuestionBeforeAnExit();
    void theOfferAfterTheBin();
    void theOfferAtAnEmptyBin();
    void aFailedJobOnTheBinOffersNothing();
    void theHistoryExportsWhatTheOutcomeSays();
    void theScanTellsHowFarItIs();
    void nothingCanBeDroppedOnTheBin();
};

namespace {

// A path in the Trash in the home folder of the fixture.
QString trash(const WindowFixture &fixture, const QString &name)
{
    return fixture.homePath(u"data/Trash/"_s) + name;
}

void addTrash(const WindowFixture &fixture, const QString &name)
{
    writeFile(trash(fixture, u"files/"_s + name), "deleted");
    writeFile(trash(fixture, u"info/"_s + name + u".trashinfo"_s),
              "[Trash Info]\nPath=/tmp/" + name.toUtf8() + "\n");
}

bool isWithoutBins()
{
#ifdef Q_OS_WIN
    return true;
#else
    return false;
#endif
}

constexpr auto noBins = "SKIPPED: the bins of Windows lie on its drives, of which a test sees none";

void showBin(const WindowFixture &fixture)
{
    fixture.window->onRecycleBinWipeClicked();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
}

const QString offer = u"Recycle Bin files have been securely wiped!\n\n"
                      "Would you also like to wipe free space to ensure previously\n"
                      "emptied files cannot be recovered?\n\n"
                      "This may take longer depending on available free space."_s;

} // namespace

void tst_WindowWiring::theEngineFeedsTheProgressPage()
{
    const WindowFixture fixture;
    auto *const engine = fixture.window->findChild<WipeEngine *>();
    fixture.window->onNavigateToPage(MainWindow::Progress);
    const auto *const bar = fixture.child<QProgressBar>("mainProgress");
    const auto *const percent = fixture.child<QLabel>("percentLabel");
    const auto *const speed = fixture.child<QLabel>("statsLabel");
    const auto *const log = fixture.child<QTextEdit>("logText");
    emit engine->progressChanged(37);
    QCOMPARE(bar->value(), 370);
    QCOMPARE(percent->text(), u"37.0%"_s);
    emit engine->speedUpdated(1536);
    QCOMPARE(speed->text(), u"速度: 1.5 KB/s"_s);
    QVERIFY(!log->toPlainText().contains(u"a line of the job"_s));
    emit engine->logMessage(u"a line of the job"_s, 1);
    QVERIFY(log->toPlainText().endsWith(u"⚠ a line of the job"_s));
    // The page stores the pass without showing it.
    const auto *const page = fixture.window->findChild<ProgressPage *>();
    QVERIFY(disconnect(engine, &WipeEngine::passChanged, page, &ProgressPage::setPass));
}

void tst_WindowWiring::aRefusalIsALineOfThePage()
{
    const WindowFixture fixture;
    auto *const engine = fixture.window->findChild<WipeEngine *>();
    emit engine->errorOccurred(u"<b>refused</b>"_s);
    QVERIFY(fixture.child<QTextEdit>("logText")->toPlainText().endsWith(u"✗ <b>refused</b>"_s));
}

void tst_WindowWiring::helpAndSupportOpenTheirOwnPages()
{
    const WindowFixture fixture;
    LinkManager &links = LinkManager::instance();
    QStringList opened;
    links.setBrowser([&opened](const QUrl &address) {
        opened.append(address.toString());
        return true;
    });
    const QString help = links.getLink(u"support"_s, u"help"_s);
    const QString contact = links.getLink(u"support"_s, u"contact"_s);
    QVERIFY(!help.isEmpty() && !contact.isEmpty());
    QVERIFY(help != contact);
    const auto *const menu = fixture.child<QMenu>("applicationMenu");
    for (const QString &entry : {u"Help"_s, u"Support"_s}) {
        for (QAction *action : menu->actions()) {
            if (action->text() == entry)
                action->trigger();
        }
    }
    links.setBrowser({});
    QCOMPARE(opened, (QStringList{help, contact}));
}

void tst_WindowWiring::theQuestionBeforeAStop()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::Cancel};
    QVERIFY(held.fixture->click(u"⏹️ 停止"_s));
    QCOMPARE(held.fixture->prompts.boxes.size(), 1);
    const Prompts::Box &box = held.fixture->prompts.boxes.constFirst();
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, u"Confirm Stop"_s);
    QCOMPARE(box.text, u"Are you sure you want to stop the wipe task?\nThis operation cannot be undone."_s);
    QCOMPARE(box.buttons, QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(box.byDefault, QMessageBox::Cancel);
}

void tst_WindowWiring::theQuestionBeforeAnExit()
{
    HeldJob held;
    held.start();
    held.fixture->prompts.buttons = {QMessageBox::No};
    QVERIFY(!held.fixture->window->close());
    QCOMPARE(held.fixture->prompts.boxes.size(), 1);
    const Prompts::Box &box = held.fixture->prompts.boxes.constFirst();
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, u"Confirm Exit"_s);
    QCOMPARE(box.text, u"Wipe task is in progress. Are you sure you want to exit?\n"
                       "Exiting will interrupt the current task."_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.byDefault, QMessageBox::No);
}

void tst_WindowWiring::theOfferAfterTheBin()
{
    if (isWithoutBins())
        QSKIP(noBins);
    WindowFixture fixture;
    addTrash(fixture, u"a.txt"_s);
    showBin(fixture);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.prompts.buttons = {QMessageBox::No};
    fixture.runJob();
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    const Prompts::Box &box = fixture.prompts.boxes.constFirst();
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.title, u"Wipe Free Space?"_s);
    QCOMPARE(box.text, offer);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.byDefault, QMessageBox::NoButton);
}

void tst_WindowWiring::theOfferAtAnEmptyBin()
{
    if (isWithoutBins())
        QSKIP(noBins);
    WindowFixture fixture;
    fixture.prompts.buttons = {QMessageBox::No};
    fixture.window->onRecycleBinWipeClicked();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.prompts.boxes.size(), 1, 60000);
    const Prompts::Box &box = fixture.prompts.boxes.constFirst();
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.title, u"Recycle Bin is Empty"_s);
    QCOMPARE(box.text, u"The Recycle Bin is already empty.\n\n"
                       "However, previously deleted files may still be recoverable.\n"
                       "Would you like to wipe free space to ensure they cannot be recovered?"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.byDefault, QMessageBox::NoButton);
}

// Wiping free space does not help with a file that still exists.
void tst_WindowWiring::aFailedJobOnTheBinOffersNothing()
{
    if (isWithoutBins())
        QSKIP(noBins);
    const std::unique_ptr<platform::Platform> native = platform::createPlatform({{}, true});
    FaultPlan plan(FaultPlan::Write, 1, platform::IoDevice, FaultPlan::FromThenOn);
    FaultyFiles files(native->files(), plan,
                      [](const QString &path) { return path.contains(u"/Trash/files/"_s); });
    WindowFixture fixture(std::make_unique<platform::ForwardingPlatform>(
        files, native->folders(), native->devices(), native->session()));
    addTrash(fixture, u"a.txt"_s);
    showBin(fixture);
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.runJob(u"Close"_s);
    QVERIFY(plan.fired() > 0);
    QCOMPARE(fixture.dialogs.titles.constLast(), u"Erase Failed"_s);
    QCOMPARE(fixture.prompts.boxes.size(), 0);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Home));
}

void tst_WindowWiring::theHistoryExportsWhatTheOutcomeSays()
{
    WindowFixture fixture;
    QVERIFY(ReportDatabase::instance().saveReport(filledReport(), OutcomeRecord(JobOutcome::Cancelled)));
    fixture.window->onNavigateToPage(MainWindow::History);
    fixture.window->findChild<HistoryPage *>()->loadHistory();
    fixture.child<QTableWidget>("historyTable")->selectRow(0);
    const QString path = fixture.homePath(u"exported.pdf"_s);
    fixture.prompts.filesToSaveAnswers = {path};
    QVERIFY(fixture.click(u"导出PDF"_s));
    const QString text = PdfReader(contentOf(path)).text();
    QVERIFY2(text.contains(OutcomeRecord(JobOutcome::Cancelled).summary()), qPrintable(text));
}

// The hidden label keeps the page's last text.
void tst_WindowWiring::theScanTellsHowFarItIs()
{
    if (isWithoutBins())
        QSKIP(noBins);
    WindowFixture fixture;
    addTrash(fixture, u"a.txt"_s);
    const auto *const line = fixture.child<QLabel>("loadingLabel");
    const auto *const bar = fixture.child<QProgressBar>("loadingProgress");
    fixture.window->onRecycleBinWipeClicked();
    QCOMPARE(line->text(), u"Scanning Recycle Bin..."_s);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.button(u"Next →"_s)->isEnabled(), 60000);
    static const QRegularExpression last(
        u"^Scanning Recycle Bin on drive .+ \\((\\d+)/(\\d+)\\)\\.\\.\\.$"_s);
    const QRegularExpressionMatch told = last.match(line->text());
    QVERIFY2(told.hasMatch(), qPrintable(line->text()));
    QCOMPARE(told.captured(1), told.captured(2));
    QCOMPARE(bar->maximum(), told.captured(2).toInt());
    QCOMPARE(bar->value(), bar->maximum());
}

// A widget receives a drop only after it accepted the drag.
void tst_WindowWiring::nothingCanBeDroppedOnTheBin()
{
    if (isWithoutBins())
        QSKIP(noBins);
    WindowFixture fixture;
    addTrash(fixture, u"a.txt"_s);
    const QString other = writeFile(fixture.homePath(u"other.txt"_s), "not chosen");
    const auto *const page = fixture.window->findChild<FileSelectPage *>();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(other)});
    const auto isTaken = [&] {
        QWidget *const target = page->list()->viewport();
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(target, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QApplication::sendEvent(target, &drop);
        return enter.isAccepted() || drop.isAccepted();
    };
    // The file list accepts the same events, which proves that the test sends them correctly.
    fixture.window->onFileWipeClicked();
    QVERIFY(isTaken());
    QCOMPARE(page->files(), QStringList{other});

    showBin(fixture);
    QVERIFY(!isTaken());
    QCOMPARE(page->list()->count(), 1);
    QCOMPARE(page->files(), QStringList());
}

QUORVEX_SUITE(tst_WindowWiring, QApplication)
#include "tst_windowwiring.moc"
