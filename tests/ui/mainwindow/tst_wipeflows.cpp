#include "model/wipereport.h"
#include "model/wipetask.h"
#include "services/reportdatabase.h"
#include "support/links.h"
#include "support/pdfreader.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "support/userdata.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/mainwindow/windowfixture.h"

#include "engine/wipeengine.h"
#include "ui/certificate/certificatedialog.h"
#include "ui/dialogs/completedialog.h"
#include "ui/dialogs/confirmdialog.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

// Jobs from the first click to the completion dialog, with the real engine and workers.
class tst_WipeFlows : public QObject
{
    Q_OBJECT

private slots:
    void aDiskIsErasedAndItsReportKept();
    void filesAreErased();
    void aFileThatIsReplacedBeforeTheAnswerIsLeft();
    void cancellingTheConfirmationStartsNothing();
    void theMenuIsDisabledWhileAJobRuns();
    void stoppingAsksFirst();
    void aStoppedJobLeavesItsReport();
    void closingDuringAJobAsksFirst();
    void aRefusedTaskLeadsBackToTheMethods();
    void aFailedJobIsStoredAndNotExported();
    void withoutReportsNothingIsStoredOrExported();
    void theCertificateIsExportedWhenWanted();
    void aMissingExportFolderIsSkipped();
    void aPartialJobIsToldAsSuchEverywhere();
    void theCertificateOpensFromTheCompletionDialog();
    void theCertificateOpensFromTheHistory();
    void aDatabaseThatDoesNotTakeTheReportIsTold();
    void aReportThatIsNotThereHasNoCertificate();
    void comingBackDoesNotDoubleTheFiles();

private:
    QString image(const QString &name = u"disk.img"_s, qsizetype size = 4 << 20)
    {
        return writeFile(m_folder.filePath(name), QByteArray(size, 'x'));
    }

    QTemporaryDir m_folder;
};

namespace {

void chooseDisk(const WindowFixture &fixture)
{
    fixture.window->onDiskWipeClicked();
    auto *tree = fixture.page()->findChild<QTreeWidget *>(u"diskTree"_s);
    QTRY_COMPARE_WITH_TIMEOUT(tree->topLevelItemCount(), 1, 60000);
    tree->setCurrentItem(tree->topLevelItem(0));
    QVERIFY(fixture.click(u"Next →"_s));
}

void chooseFiles(WindowFixture &fixture, const QStringList &files)
{
    fixture.window->onFileWipeClicked();
    fixture.prompts.filesToOpenAnswers = {files};
    QVERIFY(fixture.click(u"📄 Add Files"_s));
    QVERIFY(fixture.click(u"Next →"_s));
}

QString textOfLabel(const QDialog &dialog, const QString &name)
{
    const auto *label = dialog.findChild<QLabel *>(name);
    return label ? label->text() : u"(no label)"_s;
}

bool isJobRunning(const WindowFixture &fixture)
{
    return fixture.window->findChild<WipeEngine *>()->isRunning();
}

// A file large enough to keep the job running for a while.
QString longFile(const QTemporaryDir &folder)
{
    return writeZeros(folder.filePath(u"long.bin"_s), qint64(256) << 20);
}

void startLongJob(WindowFixture &fixture, const QTemporaryDir &folder)
{
    chooseFiles(fixture, {longFile(folder)});
    fixture.dialogs.answers = {WindowFixture::typeErase};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Progress));
    QVERIFY(isJobRunning(fixture));
}

} // namespace

void tst_WipeFlows::aDiskIsErasedAndItsReportKept()
{
    const QString path = image();
    WindowFixture fixture({path});
    chooseDisk(fixture);
    fixture.runJob();
    QCOMPARE(contentOf(path), QByteArray(4 << 20, '\0'));
    const QList<WipeReport> reports = fixture.reports();
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.constFirst().status, WipeStatus::Completed);
    QCOMPARE(reports.constFirst().operationType, DiskWipe);
    QCOMPARE(reports.constFirst().wipedSectors, quint64(8192));
    QCOMPARE(fixture.dialogs.titles, (QStringList{u"Confirm Erase"_s, u"Erasing Complete"_s}));
    QCOMPARE(fixture.child<QListWidget>("menuList")->isEnabled(), true);
    QCOMPARE(fixture.child<QListWidget>("menuList")->styleSheet(), QString());
}

void tst_WipeFlows::filesAreErased()
{
    const QString one = m_folder.filePath(u"one.txt"_s);
    writeFile(one, "one");
    WindowFixture fixture;
    chooseFiles(fixture, {one});
    fixture.runJob();
    QVERIFY(!QFile::exists(one));
    QCOMPARE(fixture.reports().size(), 1);
    QCOMPARE(fixture.reports().constFirst().fileCount, 1);
}

void tst_WipeFlows::aFileThatIsReplacedBeforeTheAnswerIsLeft()
{
    const QString chosen = writeFile(m_folder.filePath(u"chosen.txt"_s), "chosen");
    const QString other = writeFile(m_folder.filePath(u"other.txt"_s), "other");
    const QString stranger = writeFile(m_folder.filePath(u"stranger.txt"_s), "not chosen");
    WindowFixture fixture;
    chooseFiles(fixture, {chosen, other});
    bool isReplaced = false;
    const auto replaceAndConfirm = [&](QDialog &dialog) {
        isReplaced =
            QFile::rename(chosen, m_folder.filePath(u"away.txt"_s)) && QFile::rename(stranger, chosen);
        WindowFixture::typeErase(dialog);
    };
    fixture.dialogs.answers = {replaceAndConfirm, WindowFixture::pressButton(u"Done"_s)};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(
        fixture.dialogs.answers.isEmpty() && fixture.window->currentPage() == MainWindow::Home, 60000);
    QVERIFY(isReplaced);
    QCOMPARE(contentOf(chosen), QByteArray("not chosen"));
    QVERIFY(!QFile::exists(other));
}

void tst_WipeFlows::cancellingTheConfirmationStartsNothing()
{
    const QString one = m_folder.filePath(u"one.txt"_s);
    writeFile(one, "one");
    WindowFixture fixture;
    chooseFiles(fixture, {one});
    fixture.dialogs.answers = {WindowFixture::pressButton(u"Cancel"_s)};
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QVERIFY(!isJobRunning(fixture));
    QCOMPARE(contentOf(one), QByteArray("one"));
}

void tst_WipeFlows::theMenuIsDisabledWhileAJobRuns()
{
    WindowFixture fixture;
    startLongJob(fixture, m_folder);
    QVERIFY(!fixture.child<QListWidget>("menuList")->isEnabled());
    QCOMPARE(fixture.child<QListWidget>("menuList")->styleSheet(), u"QListWidget { opacity: 0.5; }"_s);
    fixture.prompts.buttons = {QMessageBox::Ok};
    QVERIFY(fixture.click(u"⏹️ 停止"_s));
    QVERIFY(fixture.child<QListWidget>("menuList")->isEnabled());
}

void tst_WipeFlows::stoppingAsksFirst()
{
    WindowFixture fixture;
    startLongJob(fixture, m_folder);
    fixture.prompts.buttons = {QMessageBox::Cancel, QMessageBox::Ok};
    QVERIFY(fixture.click(u"⏹️ 停止"_s));
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"Confirm Stop"_s);
    QCOMPARE(fixture.prompts.boxes.constFirst().byDefault, QMessageBox::Cancel);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Progress));
    QVERIFY(fixture.click(u"⏹️ 停止"_s));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::Home));
    QVERIFY(!isJobRunning(fixture));
}

void tst_WipeFlows::aStoppedJobLeavesItsReport()
{
    WindowFixture fixture;
    startLongJob(fixture, m_folder);
    fixture.prompts.buttons = {QMessageBox::Ok};
    fixture.dialogs.answers = {WindowFixture::pressButton(u"Close"_s)};
    QVERIFY(fixture.click(u"⏹️ 停止"_s));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.dialogs.answers.size(), 0, 60000);
    QTRY_COMPARE_WITH_TIMEOUT(fixture.reports().size(), 1, 60000);
    // The worker's own failure arrives after the stop and determines the result.
    QCOMPARE(fixture.reports().constFirst().status, WipeStatus::Failed);
    QCOMPARE(fixture.dialogs.titles.constLast(), u"Erase Failed"_s);
    const auto outcome = ReportDatabase::instance().outcome(fixture.reports().constFirst().certificateId);
    QVERIFY(outcome);
    QCOMPARE(outcome->outcome(), JobOutcome::Cancelled);
}

void tst_WipeFlows::closingDuringAJobAsksFirst()
{
    WindowFixture fixture;
    startLongJob(fixture, m_folder);
    fixture.prompts.buttons = {QMessageBox::No, QMessageBox::Yes};
    QVERIFY(!fixture.window->close());
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"Confirm Exit"_s);
    QCOMPARE(fixture.prompts.boxes.constFirst().byDefault, QMessageBox::No);
    QVERIFY(isJobRunning(fixture));
    QVERIFY(fixture.window->close());
    QVERIFY(!isJobRunning(fixture));
}

void tst_WipeFlows::aRefusedTaskLeadsBackToTheMethods()
{
    WindowFixture fixture;
    fixture.window->onFileWipeClicked();
    fixture.window->onNextClicked(); // no file was added
    fixture.dialogs.answers = {WindowFixture::typeErase};
    QVERIFY(fixture.click(u"Start"_s));
    QVERIFY(!isJobRunning(fixture));
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.constFirst().text, WipeTask().validationError());
    QVERIFY(fixture.child<QListWidget>("menuList")->isEnabled());
    QCOMPARE(fixture.reports().size(), 0);
}

void tst_WipeFlows::aFailedJobIsStoredAndNotExported()
{
    const QString path = image();
    WindowFixture fixture({path});
    const QTemporaryDir exports;
    fixture.settings.set(usersettings::AutoExport, true);
    fixture.settings.set(usersettings::ExportPath, exports.path());
    chooseDisk(fixture);
    // The drive disappears before the job begins.
    QVERIFY(QFile::remove(path));
    fixture.runJob(u"Close"_s);
    QCOMPARE(fixture.reports().size(), 1);
    QCOMPARE(fixture.reports().constFirst().status, WipeStatus::Failed);
    QVERIFY(QDir(exports.path()).isEmpty());
}

void tst_WipeFlows::withoutReportsNothingIsStoredOrExported()
{
    const QString path = image();
    WindowFixture fixture({path});
    const QTemporaryDir exports;
    fixture.settings.set(usersettings::GenerateReport, false);
    fixture.settings.set(usersettings::AutoExport, true);
    fixture.settings.set(usersettings::ExportPath, exports.path());
    chooseDisk(fixture);
    bool hasCertificate = true;
    const auto look = [&hasCertificate](QDialog &dialog) {
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        hasCertificate = std::ranges::any_of(
            buttons, [](const QPushButton *button) { return button->text() == u"View Certificate"; });
        WindowFixture::pressButton(u"Done"_s)(dialog);
    };
    fixture.dialogs.answers = {WindowFixture::typeErase, look};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.reports().size() + fixture.dialogs.answers.size(), 0, 60000);
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->currentPage(), int(MainWindow::Home), 60000);
    QVERIFY(!hasCertificate);
    QCOMPARE(fixture.reports().size(), 0);
    QVERIFY(QDir(exports.path()).isEmpty());
}

void tst_WipeFlows::theCertificateIsExportedWhenWanted()
{
    const QString path = image();
    WindowFixture fixture({path});
    const QTemporaryDir exports;
    fixture.settings.set(usersettings::AutoExport, true);
    fixture.settings.set(usersettings::ExportPath, exports.path());
    chooseDisk(fixture);
    fixture.runJob();
    QCOMPARE(fixture.reports().size(), 1);
    const QString pdf = fixture.reports().constFirst().certificateId + u".pdf"_s;
    QCOMPARE(QDir(exports.path()).entryList(QDir::Files), QStringList{pdf});
    QVERIFY(contentOf(exports.filePath(pdf)).startsWith("%PDF-"));
    QCOMPARE(fixture.prompts.boxes.size(), 0);
}

void tst_WipeFlows::aPartialJobIsToldAsSuchEverywhere()
{
    const QString link = m_folder.filePath(u"link"_s);
    if (!makeLink(m_folder.path(), link))
        QSKIP("SKIPPED: the system makes no symbolic links here");
    WindowFixture fixture;
    const QTemporaryDir exports;
    fixture.settings.set(usersettings::AutoExport, true);
    fixture.settings.set(usersettings::ExportPath, exports.path());
    chooseFiles(fixture, {link});
    QString told;
    QString shown;
    const auto view = [&](QDialog &dialog) {
        told = textOfLabel(dialog, u"outcomeLabel"_s);
        WindowFixture::pressButton(u"View Certificate"_s)(dialog);
    };
    const auto look = [&](QDialog &dialog) {
        shown = textOfLabel(dialog, u"outcomeLabel"_s);
        dialog.reject();
    };
    fixture.dialogs.answers = {WindowFixture::typeErase, view, look};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.window->currentPage(), int(MainWindow::Home), 60000);
    QVERIFY(fixture.dialogs.answers.isEmpty());
    const QString id = fixture.reports().constFirst().certificateId;
    QCOMPARE(fixture.reports().constFirst().status, WipeStatus::Completed);
    const auto outcome = ReportDatabase::instance().outcome(id);
    QVERIFY(outcome);
    QCOMPARE(outcome->shortfalls(), (QList<Shortfall>{{ShortfallKind::LinkTarget, link}}));
    QCOMPARE(told, outcome->summary());
    QVERIFY2(told.startsWith(u"Partly erased: "_s), qPrintable(told));
    QCOMPARE(shown, outcome->fullSummary());
    const auto *table = fixture.window->findChild<QTableWidget *>(u"historyTable"_s);
    QVERIFY(!table->item(0, 0)->icon().isNull());
    const QString paper = PdfReader(contentOf(exports.filePath(id + u".pdf"_s))).text();
    QVERIFY2(QString(paper).remove(u' ').contains(u"Partlyerased:"_s), qPrintable(paper));
}

void tst_WipeFlows::aMissingExportFolderIsSkipped()
{
    const QString path = image();
    WindowFixture fixture({path});
    fixture.settings.set(usersettings::AutoExport, true);
    fixture.settings.set(usersettings::ExportPath, m_folder.filePath(u"gone"_s));
    chooseDisk(fixture);
    fixture.runJob();
    QCOMPARE(fixture.reports().size(), 1);
    QVERIFY(!QFile::exists(m_folder.filePath(u"gone"_s)));
}

void tst_WipeFlows::theCertificateOpensFromTheCompletionDialog()
{
    const QString path = image();
    WindowFixture fixture({path});
    chooseDisk(fixture);
    bool isCertificate = false;
    fixture.dialogs.answers = {WindowFixture::typeErase, WindowFixture::pressButton(u"View Certificate"_s),
                               [&isCertificate](QDialog &dialog) {
                                   isCertificate = qobject_cast<CertificateDialog *>(&dialog) != nullptr;
                                   dialog.reject();
                               }};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(
        fixture.dialogs.answers.isEmpty() && fixture.window->currentPage() == MainWindow::Home, 60000);
    QVERIFY(isCertificate);
}

void tst_WipeFlows::theCertificateOpensFromTheHistory()
{
    const QString path = image();
    WindowFixture fixture({path});
    chooseDisk(fixture);
    fixture.runJob();
    fixture.window->onNavigateToPage(MainWindow::History);
    auto *view = fixture.page()->findChild<QPushButton *>(u"tableViewBtn"_s);
    QVERIFY(view);
    QString title;
    fixture.dialogs.answers = {[&title](QDialog &dialog) {
        title = dialog.windowTitle();
        dialog.reject();
    }};
    QTest::mouseClick(view, Qt::LeftButton);
    QCOMPARE(title, u"Erasure Certificate - "_s + fixture.reports().constFirst().certificateId);
}

void tst_WipeFlows::aDatabaseThatDoesNotTakeTheReportIsTold()
{
    const QString path = image();
    WindowFixture fixture({path});
    chooseDisk(fixture);
    ReportDatabase::instance().close();
    QVERIFY(QFile::remove(userdata::folder() + u"/quorvex.db"_s));
    QVERIFY(QDir(userdata::folder()).mkdir(u"quorvex.db"_s));
    QString told;
    QString shown;
    const auto view = [&told](QDialog &dialog) {
        const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().startsWith(u"QVX-"))
                told = label->text();
        }
        WindowFixture::pressButton(u"View Certificate"_s)(dialog);
    };
    const auto look = [&shown](QDialog &dialog) {
        shown = dialog.windowTitle();
        dialog.reject();
    };
    fixture.dialogs.answers = {WindowFixture::typeErase, view, look};
    QVERIFY(fixture.click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(
        fixture.dialogs.answers.isEmpty() && fixture.window->currentPage() == MainWindow::Home, 60000);
    // The certificate shown belongs to this job.
    QVERIFY(!told.isEmpty());
    QCOMPARE(shown, u"Erasure Certificate - "_s + told);
}

void tst_WipeFlows::aReportThatIsNotThereHasNoCertificate()
{
    WindowFixture fixture;
    fixture.window->onViewCertificate(u"QVX-2026-0101-0001"_s);
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"Report Not Found"_s);
    QCOMPARE(fixture.dialogs.titles.size(), 0);
}

void tst_WipeFlows::comingBackDoesNotDoubleTheFiles()
{
    const QString one = m_folder.filePath(u"one.txt"_s);
    writeFile(one, "one");
    WindowFixture fixture;
    chooseFiles(fixture, {one});
    QVERIFY(fixture.click(u"← 返回"_s));
    QVERIFY(fixture.click(u"Next →"_s));
    fixture.runJob();
    QCOMPARE(fixture.reports().constFirst().fileCount, 1);
}

QUORVEX_SUITE(tst_WipeFlows, QApplication)
#include "tst_wipeflows.moc"
