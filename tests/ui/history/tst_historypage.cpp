#include "support/suite.h"
#include "ui/history/historypage.h"

#include "model/wipereport.h"
#include "services/reportdatabase.h"
#include "support/filledreport.h"
#include "support/scriptedprompts.h"
#include "support/testfiles.h"
#include "support/userdata.h"
#include "ui/style/programsheet.h"
#include "ui/style/uiresources.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QDateTime>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTime>
#include <QWidget>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

ReportDatabase &database()
{
    return ReportDatabase::instance();
}

WipeReport reportOf(int number, WipeStatus status = WipeStatus::Completed)
{
    WipeReport report = filledReport();
    report.certificateId = u"QVX-2026-0305-%1"_s.arg(1000 + number);
    report.startTime = QDateTime(QDate(2026, 3, 5), QTime(8, 0)).addSecs(60LL * number);
    report.status = status;
    return report;
}

void store(const QList<WipeReport> &reports)
{
    for (const WipeReport &report : reports) {
        if (!database().saveReport(report))
            qFatal("cannot store a report");
    }
}

QStringList storedIds()
{
    QStringList ids;
    const QList<WipeReport> stored = database().getReports(-1, 0);
    for (const WipeReport &report : stored)
        ids.append(report.certificateId);
    return ids;
}

// A visible page and its parts.
struct Shown
{
    HistoryPage page;
    QComboBox &filter = *page.findChild<QComboBox *>();
    QTableWidget &table = *page.findChild<QTableWidget *>(u"historyTable"_s);
    QPushButton &view = *page.findChild<QPushButton *>(u"primaryBtn"_s);
    QPushButton &exportPdf = *page.findChild<QPushButton *>(u"exportBtn"_s);
    QPushButton &remove = *page.findChild<QPushButton *>(u"deleteBtn"_s);
    QPushButton &clearAll = *page.findChild<QPushButton *>(u"dangerBtn"_s);

    Shown()
    {
        page.resize(720, 600);
        page.show();
    }
    void clickRow(int row) const
    {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualItemRect(table.item(row, 0)).center());
    }
    void click(QPushButton &button) const { QTest::mouseClick(&button, Qt::LeftButton); }
    QStringList texts(int row) const
    {
        QStringList texts;
        for (int column = 0; column < 4; ++column)
            texts.append(table.item(row, column)->text());
        return texts;
    }
    QStringList ids() const
    {
        QStringList ids;
        for (int row = 0; row < table.rowCount(); ++row)
            ids.append(table.item(row, 0)->data(Qt::UserRole).toString());
        return ids;
    }
};

} // namespace

class tst_HistoryPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyTextIsAsWritten();
    void theLayoutIsAsDrawn();
    void theTableIsAsDrawn();
    void theFilterCarriesTheStatus();

    void newestReportsComeFirst();
    void aRowTellsItsReport();
    void everyKindOfJobHasItsTag_data();
    void everyKindOfJobHasItsTag();
    void aFileReportCountsItsFiles();
    void everyStatusHasItsColour_data();
    void everyStatusHasItsColour();
    void namesAreShownCleaned();
    void keysAndADoubleClickOpenTheCertificate_data();
    void keysAndADoubleClickOpenTheCertificate();
    void deleteAsksAndDeletes();
    void theFilterShowsWholeWords();
    void aDamagedReportDoesNotBreakThePage_data();
    void aDamagedReportDoesNotBreakThePage();
    void aDamagedReportCanBeDeleted();
    void aClosedDatabaseShowsAnEmptyTable();

    void whatTheStatusDoesNotTellHasAnIcon_data();
    void whatTheStatusDoesNotTellHasAnIcon();
    void anExportCarriesTheOutcome();

    void theFilterShowsOneStatus();
    void filteringAsksTheDatabaseNothing();
    void deletingUnderAFilterShowsAllAgain();
    void searchingKeepsTheCurrentRow();

    void rowButtonsNeedASelection();
    void theSlotsDoNothingWithoutARow();
    void viewingTellsTheCertificate();
    void theButtonInARowTellsItsOwnCertificate();
    void theKeyboardSelectsAndViews();

    void exportingAsksForAFile();
    void aCancelledExportDoesNothing();
    void aFailedExportWarns();
    void theRealRendererWritesAPdf();
    void whatIsNotStoredAnyMoreHasNoCertificate();

    void deletingAsksFirst();
    void aConfirmedDeletionRemovesTheReport();
    void clearingNothingSaysSo();
    void clearingAsksFirst();
    void clearingRemovesWhatIsLoaded();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_HistoryPage::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    userdata::moveTo(m_folder->path());
    // The reports of this account's user must stay untouched.
    QVERIFY(userdata::isOfTests());
    userdata::clear();
    QVERIFY(database().initialize());
}

void tst_HistoryPage::cleanup()
{
    database().close();
}

void tst_HistoryPage::everyTextIsAsWritten()
{
    const Shown shown;
    QCOMPARE(shown.page.findChild<QLabel *>(u"pageTitle"_s)->text(), u"擦除历史记录"_s);
    QStringList headers;
    for (int column = 0; column < shown.table.columnCount(); ++column)
        headers.append(shown.table.horizontalHeaderItem(column)->text());
    QCOMPARE(headers, (QStringList{u"目标"_s, u"擦除方法"_s, u"时间"_s, u"状态"_s, u"操作"_s}));
    QCOMPARE(shown.view.text(), u"查看证书"_s);
    QCOMPARE(shown.exportPdf.text(), u"导出PDF"_s);
    QCOMPARE(shown.remove.text(), u"删除"_s);
    QCOMPARE(shown.clearAll.text(), u"清除所有"_s);
    const auto *bar = shown.page.findChild<QWidget *>(u"filterWidget"_s);
    const auto *label = bar->findChild<QLabel *>();
    QCOMPARE(label->text(), u"状态:"_s);
    QCOMPARE(label->buddy(), &shown.filter);
}

void tst_HistoryPage::theLayoutIsAsDrawn()
{
    const Shown shown;
    QCOMPARE(shown.page.layout()->contentsMargins(), QMargins(30, 25, 30, 25));
    const auto *bar = shown.page.findChild<QWidget *>(u"filterWidget"_s);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(15, 12, 15, 12));
    QCOMPARE(shown.filter.width(), 100);
    QVERIFY(bar->geometry().bottom() < shown.table.geometry().top());
    QVERIFY(shown.table.geometry().bottom() < shown.view.geometry().top());
    QVERIFY(shown.view.x() < shown.exportPdf.x() && shown.exportPdf.x() < shown.remove.x() &&
            shown.remove.x() < shown.clearAll.x());
}

void tst_HistoryPage::theTableIsAsDrawn()
{
    store({reportOf(1)});
    const Shown shown;
    QCOMPARE(shown.table.columnCount(), 5);
    QCOMPARE(shown.table.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(shown.table.selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(shown.table.editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(shown.table.alternatingRowColors());
    QVERIFY(!shown.table.showGrid());
    QCOMPARE(shown.table.rowHeight(0), 42);
    const QHeaderView &header = *shown.table.horizontalHeader();
    QCOMPARE(header.sectionResizeMode(0), QHeaderView::Stretch);
    const QList<int> widths{120, 150, 80, 100};
    for (int column = 1; column < 5; ++column) {
        QCOMPARE(header.sectionResizeMode(column), QHeaderView::Fixed);
        QCOMPARE(header.sectionSize(column), widths.at(column - 1));
    }
    const auto *button = qobject_cast<QPushButton *>(shown.table.cellWidget(0, 4));
    QVERIFY(button);
    QCOMPARE(button->text(), u"查看"_s);
    QCOMPARE(button->objectName(), u"tableViewBtn"_s);
    QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
}

void tst_HistoryPage::theFilterCarriesTheStatus()
{
    const Shown shown;
    QStringList texts;
    QVariantList data;
    for (int i = 0; i < shown.filter.count(); ++i) {
        texts.append(shown.filter.itemText(i));
        data.append(shown.filter.itemData(i));
    }
    QCOMPARE(texts, (QStringList{u"全部"_s, u"已完成"_s, u"失败"_s, u"已取消"_s}));
    QCOMPARE(data, (QVariantList{-1, 3, 4, 5}));
    QCOMPARE(shown.filter.currentIndex(), 0);
}

void tst_HistoryPage::newestReportsComeFirst()
{
    store({reportOf(2), reportOf(3), reportOf(1)});
    Shown shown;
    QCOMPARE(shown.ids(),
             (QStringList{u"QVX-2026-0305-1003"_s, u"QVX-2026-0305-1002"_s, u"QVX-2026-0305-1001"_s}));
    store({reportOf(4)});
    QCOMPARE(shown.table.rowCount(), 3);
    shown.page.loadHistory();
    QCOMPARE(shown.table.rowCount(), 4);
    QCOMPARE(shown.ids().first(), u"QVX-2026-0305-1004"_s);
}

void tst_HistoryPage::aRowTellsItsReport()
{
    const WipeReport report = filledReport();
    store({report});
    const Shown shown;
    QCOMPARE(shown.texts(0), (QStringList{u"[磁盘] "_s + report.disk.displayName(), u"DoD 5220.22-M"_s,
                                          u"03-05 14:07"_s, report.statusName()}));
    QCOMPARE(shown.table.item(0, 3)->textAlignment(), int(Qt::AlignCenter));
    QCOMPARE(shown.ids(), QStringList{report.certificateId});
}

void tst_HistoryPage::everyKindOfJobHasItsTag_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("tag");
    QTest::newRow("disk") << int(DiskWipe) << u"[磁盘] "_s;
    QTest::newRow("partition") << int(PartitionWipe) << u"[分区] "_s;
    QTest::newRow("free space") << int(FreeSpaceWipe) << u"[空闲] "_s;
    QTest::newRow("one that nobody knows") << 9 << QString();
}

void tst_HistoryPage::everyKindOfJobHasItsTag()
{
    QFETCH(int, operation);
    QFETCH(QString, tag);
    WipeReport report = filledReport();
    report.operationType = static_cast<OperationType>(operation);
    store({report});
    const Shown shown;
    QCOMPARE(shown.texts(0).first(), tag + report.disk.displayName());
}

void tst_HistoryPage::aFileReportCountsItsFiles()
{
    WipeReport report = filledReport();
    report.operationType = FileWipe;
    report.fileCount = 3;
    store({report});
    const Shown shown;
    QCOMPARE(shown.texts(0).first(), u"[文件] 3 个文件"_s);
}

void tst_HistoryPage::everyStatusHasItsColour_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("color");
    QTest::newRow("completed") << 3 << u"#22c55e"_s;
    QTest::newRow("failed") << 4 << u"#ef4444"_s;
    QTest::newRow("cancelled") << 5 << u"#f59e0b"_s;
    QTest::newRow("running") << 1 << u"#f59e0b"_s;
    QTest::newRow("unknown") << 77 << u"#f59e0b"_s;
}

void tst_HistoryPage::everyStatusHasItsColour()
{
    QFETCH(int, status);
    QFETCH(QString, color);
    const WipeReport report = reportOf(1, static_cast<WipeStatus>(status));
    store({report});
    const Shown shown;
    QCOMPARE(shown.table.item(0, 3)->text(), report.statusName());
    QCOMPARE(shown.table.item(0, 3)->foreground().color().name(), color);
}

void tst_HistoryPage::keysAndADoubleClickOpenTheCertificate_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("double click") << 0;
}

void tst_HistoryPage::keysAndADoubleClickOpenTheCertificate()
{
    QFETCH(const int, key);
    store({reportOf(1), reportOf(2)});
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.table.setFocus();
    QSignalSpy opened(&shown.page, &HistoryPage::viewCertificate);
    if (key != 0)
        QTest::keyClick(&shown.table, Qt::Key(key)); // no row is selected
    shown.clickRow(1);
    QCOMPARE(opened.count(), 0);
    if (key != 0)
        QTest::keyClick(&shown.table, Qt::Key(key));
    else
        QTest::mouseDClick(shown.table.viewport(), Qt::LeftButton, {},
                           shown.table.visualItemRect(shown.table.item(1, 0)).center());
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.constFirst().constFirst().toString(), shown.ids().at(1));
}

void tst_HistoryPage::deleteAsksAndDeletes()
{
    store({reportOf(1), reportOf(2)});
    ScriptedPrompts prompts;
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.table.setFocus();
    QTest::keyClick(&shown.table, Qt::Key_Delete); // no row is selected
    QVERIFY(prompts.boxes.isEmpty());
    shown.clickRow(0);
    const QString doomed = shown.ids().at(0);
    prompts.buttons = {QMessageBox::No, QMessageBox::Yes};
    QTest::keyClick(&shown.table, Qt::Key_Delete);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(storedIds().size(), 2);
    QTest::keyClick(&shown.table, Qt::Key_Delete);
    QCOMPARE(storedIds().size(), 1);
    QVERIFY(!storedIds().contains(doomed));
}

void tst_HistoryPage::theFilterShowsWholeWords()
{
    // With the style sheet the popup is a list below the box instead of a menu over it.
    addUiResources();
    Shown shown;
    shown.page.setStyleSheet(programSheet());
    shown.filter.setItemText(2, u"a status of many long words"_s);
    QCOMPARE(shown.filter.width(), 100);
    shown.filter.showPopup();
    const QAbstractItemView *const view = shown.filter.view();
    QVERIFY(QTest::qWaitForWindowExposed(view->window()));
    QVERIFY2(view->viewport()->width() >= view->sizeHintForColumn(0),
             qPrintable(QString::number(view->viewport()->width())));
    shown.filter.hidePopup();
    QCOMPARE(shown.filter.toolTip(), u"全部"_s);
    shown.filter.setCurrentIndex(2);
    QCOMPARE(shown.filter.toolTip(), u"a status of many long words"_s);
}

void tst_HistoryPage::namesAreShownCleaned()
{
    WipeReport report = filledReport();
    report.disk.model = u"a\u202Eb<i>c</i>"_s;
    store({report});
    const Shown shown;
    QVERIFY(shown.texts(0).first().startsWith(u"[磁盘] a[U+202E]b<i>c</i> "_s));
    const QString tip = shown.table.item(0, 0)->toolTip();
    QCOMPARE(QTextDocumentFragment::fromHtml(tip).toPlainText(), shown.texts(0).first());
}

void tst_HistoryPage::aDamagedReportDoesNotBreakThePage_data()
{
    QTest::addColumn<QVariant>("json");
    QTest::newRow("cut") << QVariant(u"{\"certificateId\": \"QVX-2026-0305-1001\", \"sta"_s);
    QTest::newRow("empty") << QVariant(u""_s);
    QTest::newRow("null") << QVariant();
    QTest::newRow("of other types") << QVariant(u"{\"status\": [], \"startTime\": 7, \"diskInfo\": \"x\"}"_s);
    QTest::newRow("no object") << QVariant(u"[1, 2]"_s);
}

void tst_HistoryPage::aDamagedReportDoesNotBreakThePage()
{
    QFETCH(QVariant, json);
    store({reportOf(1), reportOf(2)});
    QSqlQuery damage(QSqlDatabase::database());
    QVERIFY(damage.prepare(u"UPDATE wipe_reports SET report_json = ? WHERE certificate_id = ?"_s));
    damage.addBindValue(json);
    damage.addBindValue(u"QVX-2026-0305-1001"_s);
    QVERIFY(damage.exec() || json.isNull());
    ScriptedPrompts prompts;
    const Shown shown;
    QCOMPARE(shown.table.rowCount(), 2);
    QCOMPARE(shown.ids().first(), u"QVX-2026-0305-1002"_s);
    // Every action on that row stops without an effect.
    shown.clickRow(1);
    shown.click(shown.view);
    shown.click(shown.exportPdf);
    prompts.buttons = {QMessageBox::Yes};
    shown.click(shown.remove);
    QCOMPARE(shown.ids().first(), u"QVX-2026-0305-1002"_s);
}

void tst_HistoryPage::aDamagedReportCanBeDeleted()
{
    store({reportOf(1), reportOf(2)});
    QSqlQuery damage(QSqlDatabase::database());
    QVERIFY(damage.exec(
        u"UPDATE wipe_reports SET report_json = '{' WHERE certificate_id = 'QVX-2026-0305-1001'"_s));
    ScriptedPrompts prompts;
    const Shown shown;
    QCOMPARE(shown.ids(), (QStringList{u"QVX-2026-0305-1002"_s, u"QVX-2026-0305-1001"_s}));
    shown.clickRow(1);
    prompts.buttons = {QMessageBox::Yes};
    shown.click(shown.remove);
    QCOMPARE(shown.ids(), QStringList{u"QVX-2026-0305-1002"_s});
    QCOMPARE(storedIds(), QStringList{u"QVX-2026-0305-1002"_s});
}

void tst_HistoryPage::aClosedDatabaseShowsAnEmptyTable()
{
    store({reportOf(1)});
    database().close();
    const ScriptedPrompts prompts;
    const Shown shown;
    QCOMPARE(shown.table.rowCount(), 0);
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_HistoryPage::whatTheStatusDoesNotTellHasAnIcon_data()
{
    QTest::addColumn<WipeStatus>("status");
    QTest::addColumn<std::optional<OutcomeRecord>>("outcome");
    QTest::addColumn<bool>("marked");
    OutcomeRecord partial(JobOutcome::Complete);
    partial.note({ShortfallKind::VolumeInUse, u"<b>E:</b>"_s});
    const auto record = [](JobOutcome outcome) { return std::optional(OutcomeRecord(outcome)); };
    QTest::newRow("complete") << WipeStatus::Completed << record(JobOutcome::Complete) << false;
    QTest::newRow("unknown") << WipeStatus::Completed << std::optional<OutcomeRecord>() << false;
    QTest::newRow("partial") << WipeStatus::Completed << std::optional(partial) << true;
    QTest::newRow("failed") << WipeStatus::Failed << record(JobOutcome::Failed) << false;
    QTest::newRow("cancelled, failed by status")
        << WipeStatus::Failed << record(JobOutcome::Cancelled) << true;
    QTest::newRow("cancelled") << WipeStatus::Cancelled << record(JobOutcome::Cancelled) << false;
}

void tst_HistoryPage::whatTheStatusDoesNotTellHasAnIcon()
{
    QFETCH(WipeStatus, status);
    QFETCH(std::optional<OutcomeRecord>, outcome);
    QFETCH(bool, marked);
    const WipeReport report = reportOf(1, status);
    QVERIFY(database().saveReport(report, outcome));
    const Shown shown;
    const QTableWidgetItem *item = shown.table.item(0, 0);
    QCOMPARE(item->icon().isNull(), !marked);
    const QString tip = QTextDocumentFragment::fromHtml(item->toolTip()).toPlainText();
    QCOMPARE(tip, marked ? outcome->fullSummary() : item->text());
    // The status text is unchanged.
    QCOMPARE(shown.table.item(0, 3)->text(), report.statusName());
    QVERIFY(shown.table.item(0, 3)->icon().isNull());
}

void tst_HistoryPage::anExportCarriesTheOutcome()
{
    OutcomeRecord partial(JobOutcome::Complete);
    partial.note({ShortfallKind::RoomLeft});
    const WipeReport report = reportOf(1);
    QVERIFY(database().saveReport(report, partial));
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {u"/somewhere/c.pdf"_s};
    Shown shown;
    std::optional<OutcomeRecord> exported;
    shown.page.setExporter(
        [&exported](const WipeReport &, const std::optional<OutcomeRecord> &outcome, const QString &) {
            exported = outcome;
            return true;
        });
    shown.clickRow(0);
    shown.click(shown.exportPdf);
    QCOMPARE(exported, partial);
}

void tst_HistoryPage::theFilterShowsOneStatus()
{
    store({reportOf(1, WipeStatus::Completed), reportOf(2, WipeStatus::Failed),
           reportOf(3, WipeStatus::Cancelled), reportOf(4, WipeStatus::Failed),
           reportOf(5, WipeStatus::Running)});
    const Shown shown;
    const QList<int> counts{5, 1, 2, 1};
    for (int entry = 3; entry >= 0; --entry) {
        shown.filter.setCurrentIndex(entry);
        QCOMPARE(shown.table.rowCount(), counts.at(entry));
    }
    QTest::keyClick(&shown.filter, Qt::Key_Down);
    QTest::keyClick(&shown.filter, Qt::Key_Down);
    QCOMPARE(shown.ids(), (QStringList{u"QVX-2026-0305-1004"_s, u"QVX-2026-0305-1002"_s}));
}

void tst_HistoryPage::filteringAsksTheDatabaseNothing()
{
    store({reportOf(1, WipeStatus::Failed)});
    const Shown shown;
    QVERIFY(database().deleteReport(u"QVX-2026-0305-1001"_s));
    shown.filter.setCurrentIndex(2);
    QCOMPARE(shown.table.rowCount(), 1);
}

void tst_HistoryPage::deletingUnderAFilterShowsAllAgain()
{
    store({reportOf(1, WipeStatus::Completed), reportOf(2, WipeStatus::Failed),
           reportOf(3, WipeStatus::Failed)});
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::Yes};
    const Shown shown;
    shown.filter.setCurrentIndex(2);
    shown.clickRow(0);
    shown.click(shown.remove);
    QCOMPARE(shown.filter.currentText(), u"失败"_s);
    QCOMPARE(shown.ids(), (QStringList{u"QVX-2026-0305-1002"_s, u"QVX-2026-0305-1001"_s}));
}

void tst_HistoryPage::searchingKeepsTheCurrentRow()
{
    store({reportOf(1, WipeStatus::Completed), reportOf(2, WipeStatus::Failed)});
    Shown shown;
    shown.clickRow(1);
    shown.page.onSearch();
    QCOMPARE(shown.table.currentRow(), 1);
    QVERIFY(shown.view.isEnabled());
    shown.table.setCurrentCell(-1, -1);
    shown.page.onSearch();
    QCOMPARE(shown.table.currentRow(), -1);
}

void tst_HistoryPage::rowButtonsNeedASelection()
{
    store({reportOf(1)});
    const Shown shown;
    for (const QPushButton *button : {&shown.view, &shown.exportPdf, &shown.remove})
        QVERIFY(!button->isEnabled());
    QVERIFY(shown.clearAll.isEnabled());
    shown.clickRow(0);
    for (const QPushButton *button : {&shown.view, &shown.exportPdf, &shown.remove})
        QVERIFY(button->isEnabled());
    shown.filter.setCurrentIndex(2);
    for (const QPushButton *button : {&shown.view, &shown.exportPdf, &shown.remove})
        QVERIFY(!button->isEnabled());
}

void tst_HistoryPage::theSlotsDoNothingWithoutARow()
{
    store({reportOf(1)});
    const ScriptedPrompts prompts;
    Shown shown;
    QSignalSpy viewed(&shown.page, &HistoryPage::viewCertificate);
    shown.page.onViewClicked();
    shown.page.onExportClicked();
    shown.page.onDeleteClicked();
    QCOMPARE(viewed.count(), 0);
    QVERIFY(prompts.boxes.isEmpty() && prompts.asked.isEmpty());
    QCOMPARE(storedIds().size(), 1);
}

void tst_HistoryPage::viewingTellsTheCertificate()
{
    store({reportOf(1), reportOf(2)});
    const Shown shown;
    QSignalSpy viewed(&shown.page, &HistoryPage::viewCertificate);
    shown.clickRow(1);
    shown.click(shown.view);
    QCOMPARE(viewed.count(), 1);
    QCOMPARE(viewed.first(), QVariantList{u"QVX-2026-0305-1001"_s});
}

void tst_HistoryPage::theButtonInARowTellsItsOwnCertificate()
{
    store({reportOf(1), reportOf(2)});
    const Shown shown;
    QSignalSpy viewed(&shown.page, &HistoryPage::viewCertificate);
    shown.clickRow(0);
    QTest::mouseClick(shown.table.cellWidget(1, 4), Qt::LeftButton);
    QCOMPARE(viewed.count(), 1);
    QCOMPARE(viewed.first(), QVariantList{u"QVX-2026-0305-1001"_s});
}

void tst_HistoryPage::theKeyboardSelectsAndViews()
{
    store({reportOf(1), reportOf(2)});
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    QSignalSpy viewed(&shown.page, &HistoryPage::viewCertificate);
    shown.filter.setFocus();
    QTest::keyClick(&shown.filter, Qt::Key_Tab);
    QVERIFY(shown.table.hasFocus());
    QTest::keyClick(&shown.table, Qt::Key_Down);
    QCOMPARE(shown.table.selectedItems().size(), 4);
    QTest::keyClick(&shown.table, Qt::Key_Tab);
    QVERIFY(shown.view.hasFocus());
    QTest::keyClick(&shown.view, Qt::Key_Space);
    QCOMPARE(viewed.count(), 1);
}

void tst_HistoryPage::exportingAsksForAFile()
{
    store({reportOf(1)});
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {u"/certificates/%1 x.pdf"_s};
    Shown shown;
    QList<std::pair<QString, QString>> exported;
    shown.page.setExporter(
        [&exported](const WipeReport &report, const std::optional<OutcomeRecord> &, const QString &file) {
            exported.append({report.certificateId, file});
            return true;
        });
    shown.clickRow(0);
    shown.click(shown.exportPdf);
    QCOMPARE(prompts.asked, QStringList{u"导出证书"_s});
    QCOMPARE(prompts.proposals, QStringList{u"QVX-2026-0305-1001.pdf"_s});
    QCOMPARE(prompts.filters, QStringList{u"PDF文件 (*.pdf)"_s});
    QCOMPARE(exported.size(), 1);
    QCOMPARE(exported.first().first, u"QVX-2026-0305-1001"_s);
    QCOMPARE(exported.first().second, u"/certificates/%1 x.pdf"_s);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.first().icon, QMessageBox::Information);
    QCOMPARE(prompts.boxes.first().title, u"导出成功"_s);
    QCOMPARE(prompts.boxes.first().text, u"证书已导出到: /certificates/%1 x.pdf"_s);
}

void tst_HistoryPage::aCancelledExportDoesNothing()
{
    store({reportOf(1)});
    const ScriptedPrompts prompts;
    Shown shown;
    bool exported = false;
    shown.page.setExporter([&exported](auto &&...) { return exported = true; });
    shown.clickRow(0);
    shown.click(shown.exportPdf);
    QCOMPARE(prompts.asked.size(), 1);
    QVERIFY(!exported);
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_HistoryPage::aFailedExportWarns()
{
    store({reportOf(1)});
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {u"/certificates/a.pdf"_s};
    Shown shown;
    shown.page.setExporter([](auto &&...) { return false; });
    shown.clickRow(0);
    shown.click(shown.exportPdf);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.first().icon, QMessageBox::Warning);
    QCOMPARE(prompts.boxes.first().title, u"导出失败"_s);
    QCOMPARE(prompts.boxes.first().text, u"无法导出证书文件"_s);
}

void tst_HistoryPage::theRealRendererWritesAPdf()
{
    store({reportOf(1)});
    ScriptedPrompts prompts;
    const QString path = m_folder->filePath(u"certificate.pdf"_s);
    prompts.filesToSaveAnswers = {path};
    const Shown shown;
    shown.clickRow(0);
    shown.click(shown.exportPdf);
    QCOMPARE(prompts.boxes.first().title, u"导出成功"_s);
    QVERIFY(contentOf(path).startsWith("%PDF-"));
}

void tst_HistoryPage::whatIsNotStoredAnyMoreHasNoCertificate()
{
    store({reportOf(1)});
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {m_folder->filePath(u"false.pdf"_s)};
    Shown shown;
    bool exported = false;
    shown.page.setExporter([&exported](auto &&...) { return exported = true; });
    shown.clickRow(0);
    // Simulates a deletion by another run of the program.
    QVERIFY(ReportDatabase::instance().deleteReport(u"QVX-2026-0305-1001"_s));
    shown.click(shown.exportPdf);
    QVERIFY(!exported);
    QCOMPARE(prompts.asked, QStringList());
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.first().text, u"There is no report QVX-2026-0305-1001 in the database."_s);
}

void tst_HistoryPage::deletingAsksFirst()
{
    store({reportOf(1)});
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::No};
    const Shown shown;
    shown.clickRow(0);
    shown.click(shown.remove);
    QCOMPARE(prompts.boxes.size(), 1);
    const Prompts::Box &box = prompts.boxes.first();
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.title, u"确认删除"_s);
    QCOMPARE(box.text, u"确定要删除此擦除记录吗？"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.byDefault, QMessageBox::No);
    QCOMPARE(storedIds().size(), 1);
    QCOMPARE(shown.table.rowCount(), 1);
}

void tst_HistoryPage::aConfirmedDeletionRemovesTheReport()
{
    store({reportOf(1), reportOf(2)});
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::Yes};
    const Shown shown;
    shown.clickRow(0);
    shown.click(shown.remove);
    QCOMPARE(storedIds(), QStringList{u"QVX-2026-0305-1001"_s});
    QCOMPARE(shown.ids(), QStringList{u"QVX-2026-0305-1001"_s});
    QCOMPARE(prompts.boxes.size(), 1);
}

void tst_HistoryPage::clearingNothingSaysSo()
{
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.clearAll);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.first().icon, QMessageBox::Information);
    QCOMPARE(prompts.boxes.first().title, u"提示"_s);
    QCOMPARE(prompts.boxes.first().text, u"没有可清除的记录"_s);
}

void tst_HistoryPage::clearingAsksFirst()
{
    store({reportOf(1)});
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::No};
    const Shown shown;
    shown.click(shown.clearAll);
    QCOMPARE(prompts.boxes.size(), 1);
    const Prompts::Box &box = prompts.boxes.first();
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.title, u"确认清除"_s);
    QCOMPARE(box.text, u"确定要清除所有擦除记录吗？\n\n此操作不可恢复！"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.byDefault, QMessageBox::No);
    QCOMPARE(storedIds().size(), 1);
}

void tst_HistoryPage::clearingRemovesWhatIsLoaded()
{
    QSqlDatabase::database().transaction();
    for (int number = 0; number < 150; ++number)
        store({reportOf(number, number % 2 ? WipeStatus::Failed : WipeStatus::Completed)});
    QVERIFY(QSqlDatabase::database().commit());
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::Yes};
    const Shown shown;
    QCOMPARE(shown.table.rowCount(), 100);
    QCOMPARE(shown.ids().first(), u"QVX-2026-0305-1149"_s);
    QCOMPARE(shown.ids().last(), u"QVX-2026-0305-1050"_s);
    // All loaded reports, including those hidden by the filter.
    shown.filter.setCurrentIndex(2);
    QCOMPARE(shown.table.rowCount(), 50);
    shown.click(shown.clearAll);
    QCOMPARE(shown.table.rowCount(), 50);
    QCOMPARE(shown.ids().first(), u"QVX-2026-0305-1049"_s);
    QCOMPARE(storedIds().size(), 50);
    QCOMPARE(prompts.boxes.size(), 2);
    QCOMPARE(prompts.boxes.last().icon, QMessageBox::Information);
    QCOMPARE(prompts.boxes.last().title, u"清除完成"_s);
    QCOMPARE(prompts.boxes.last().text, u"所有记录已清除"_s);
}

static int runSuite(int argc, char *argv[])
{
    userdata::hide();
    const QApplication application(argc, argv);
    userdata::useProgramIdentity();
    tst_HistoryPage test;
    return QTest::qExec(&test, argc, argv);
}
QUORVEX_SUITE_RUN(tst_HistoryPage, runSuite)
#include "tst_historypage.moc"
