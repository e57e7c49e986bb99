#include "model/wipereport.h"
#include "support/filledreport.h"
#include "support/suite.h"
#include "ui/history/wipehistorymodel.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QColor>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList rowOf(const WipeHistoryModel &model, int row)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts.append(model.index(row, column).data().toString());
    return texts;
}

WipeReport fileReport()
{
    WipeReport report = filledReport();
    report.operationType = FileWipe;
    report.fileCount = 3;
    return report;
}

} // namespace

class tst_WipeHistoryModel : public QObject
{
    Q_OBJECT

private slots:
    void withoutReportsItHasColumnsOnly();
    void headersAreHorizontalTextsOnly();
    void aDiskReportFillsItsRow();
    void aFileReportCountsItsFiles();
    void theStatusHasItsColour_data();
    void theStatusHasItsColour();
    void onlyTheStatusIsColoured();
    void everyCellTellsTheCertificate();
    void otherRolesYieldNothing();
    void indexesOutsideYieldNothing();
    void cellsAreSelectableAndNotEditable();
    void aCellHasNoChildren();
    void namesAreShownCleaned();
    void settingReportsResetsTheModel();
    void theToolkitsTesterIsContent();
};

void tst_WipeHistoryModel::withoutReportsItHasColumnsOnly()
{
    const WipeHistoryModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 6);
    QVERIFY(model.reports().isEmpty());
}

void tst_WipeHistoryModel::headersAreHorizontalTextsOnly()
{
    const WipeHistoryModel model;
    QStringList headers;
    for (int section = 0; section < 6; ++section)
        headers.append(model.headerData(section, Qt::Horizontal).toString());
    QCOMPARE(headers,
             (QStringList{u"证书ID"_s, u"操作类型"_s, u"目标"_s, u"擦除方法"_s, u"开始时间"_s, u"状态"_s}));
    QCOMPARE(model.headerData(0, Qt::Vertical), QVariant());
    QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole), QVariant());
    QCOMPARE(model.headerData(6, Qt::Horizontal), QVariant());
    QCOMPARE(model.headerData(-1, Qt::Horizontal), QVariant());
}

void tst_WipeHistoryModel::aDiskReportFillsItsRow()
{
    WipeHistoryModel model;
    const WipeReport report = filledReport();
    model.setReports({report});
    QCOMPARE(rowOf(model, 0),
             (QStringList{u"QVX-2026-0305-4821"_s, report.operationTypeName(), report.disk.displayName(),
                          u"DoD 5220.22-M"_s, u"2026-03-05 14:07:09"_s, report.statusName()}));
}

void tst_WipeHistoryModel::aFileReportCountsItsFiles()
{
    WipeHistoryModel model;
    model.setReports({filledReport(), fileReport()});
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(1, WipeHistoryModel::TargetColumn).data().toString(), u"3 个文件"_s);
}

void tst_WipeHistoryModel::theStatusHasItsColour_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QVariant>("color");
    QTest::newRow("completed") << 3 << QVariant(QColor(u"#22c55e"_s));
    QTest::newRow("failed") << 4 << QVariant(QColor(u"#ef4444"_s));
    QTest::newRow("cancelled") << 5 << QVariant();
    QTest::newRow("running") << 1 << QVariant();
    QTest::newRow("unknown") << 77 << QVariant();
}

void tst_WipeHistoryModel::theStatusHasItsColour()
{
    QFETCH(int, status);
    QFETCH(QVariant, color);
    WipeHistoryModel model;
    WipeReport report = filledReport();
    report.status = static_cast<WipeStatus>(status);
    model.setReports({report});
    QCOMPARE(model.index(0, WipeHistoryModel::StatusColumn).data(Qt::ForegroundRole), color);
}

void tst_WipeHistoryModel::onlyTheStatusIsColoured()
{
    WipeHistoryModel model;
    model.setReports({filledReport()});
    for (int column = 0; column < WipeHistoryModel::StatusColumn; ++column)
        QCOMPARE(model.index(0, column).data(Qt::ForegroundRole), QVariant());
}

void tst_WipeHistoryModel::everyCellTellsTheCertificate()
{
    WipeHistoryModel model;
    model.setReports({filledReport()});
    for (int column = 0; column < 6; ++column)
        QCOMPARE(model.index(0, column).data(WipeHistoryModel::CertificateIdRole).toString(),
                 u"QVX-2026-0305-4821"_s);
}

void tst_WipeHistoryModel::otherRolesYieldNothing()
{
    WipeHistoryModel model;
    model.setReports({filledReport()});
    for (const int role : {int(Qt::EditRole), int(Qt::DecorationRole), int(Qt::CheckStateRole)})
        QCOMPARE(model.index(0, 0).data(role), QVariant());
}

void tst_WipeHistoryModel::indexesOutsideYieldNothing()
{
    WipeHistoryModel model;
    model.setReports({filledReport(), filledReport()});
    const QModelIndex gone = model.index(1, 0);
    model.setReports({filledReport()});
    const QStandardItemModel stranger(5, 5);
    for (const QModelIndex &outside : {QModelIndex(), gone, stranger.index(0, 0)}) {
        QCOMPARE(model.data(outside), QVariant());
        QCOMPARE(model.flags(outside), Qt::NoItemFlags);
    }
}

void tst_WipeHistoryModel::cellsAreSelectableAndNotEditable()
{
    WipeHistoryModel model;
    model.setReports({filledReport()});
    const Qt::ItemFlags flags = model.index(0, 0).flags();
    QVERIFY(flags.testFlag(Qt::ItemIsEnabled) && flags.testFlag(Qt::ItemIsSelectable));
    QVERIFY(!flags.testFlag(Qt::ItemIsEditable));
}

void tst_WipeHistoryModel::aCellHasNoChildren()
{
    WipeHistoryModel model;
    model.setReports({filledReport()});
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
}

void tst_WipeHistoryModel::namesAreShownCleaned()
{
    WipeReport report = filledReport();
    report.method.name = u"a\u202Eb"_s;
    report.disk.model = u"c\u2066d"_s;
    WipeHistoryModel model;
    model.setReports({report});
    QCOMPARE(rowOf(model, 0).at(WipeHistoryModel::MethodColumn), u"a[U+202E]b"_s);
    QVERIFY(rowOf(model, 0).at(WipeHistoryModel::TargetColumn).startsWith(u"c[U+2066]d "_s));
}

void tst_WipeHistoryModel::settingReportsResetsTheModel()
{
    WipeHistoryModel model;
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.setReports({filledReport(), fileReport()});
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.reports(), (QList<WipeReport>{filledReport(), fileReport()}));
    model.setReports({});
    QCOMPARE(reset.count(), 2);
    QCOMPARE(model.rowCount(), 0);
}

void tst_WipeHistoryModel::theToolkitsTesterIsContent()
{
    WipeHistoryModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setReports({filledReport(), fileReport()});
    model.setReports({fileReport()});
    model.setReports({});
    QCOMPARE(model.rowCount(), 0);
}

QUORVEX_SUITE(tst_WipeHistoryModel, QApplication)
#include "tst_wipehistorymodel.moc"
