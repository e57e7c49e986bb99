#include "ui/history/historytable.h"

#include "model/displaytext.h"
#include "ui/history/historypage.h"
#include "ui/style/buttons.h"
#include "ui/style/palette.h"
#include "ui/style/tooltip.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QPushButton>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 42;
constexpr int StatusPixels = 12; // "Completed" in a column of 80
constexpr int CertificateIdRole = Qt::UserRole;

QColor statusColor(WipeStatus status)
{
    switch (status) {
    case WipeStatus::Completed:
        return palette::Success;
    case WipeStatus::Failed:
        return palette::Error;
    default:
        return palette::Warning;
    }
}

// Translations are longer than the columns are wide, so the whole text is in the tip.
QTableWidgetItem *createItem(const QString &text)
{
    auto *item = new QTableWidgetItem(text);
    item->setToolTip(plainTip(text));
    return item;
}

// The stored status calls a partial job completed. It calls a stopped job failed if the worker reported the
// stop itself.
bool isMoreThanTheStatusTells(const WipeReport &report, const OutcomeRecord &outcome)
{
    return outcome.outcome() == JobOutcome::Partial ||
           (outcome.outcome() == JobOutcome::Cancelled && report.status != WipeStatus::Cancelled);
}

} // namespace

HistoryTable::HistoryTable(QWidget *parent)
    : QTableWidget(parent)
{
    setObjectName(u"historyTable"_s);
    setAccessibleName(HistoryPage::tr("擦除历史记录"));
    setColumnCount(ColumnCount);
    setHorizontalHeaderLabels({HistoryPage::tr("目标"), HistoryPage::tr("擦除方法"), HistoryPage::tr("时间"),
                               HistoryPage::tr("状态"), HistoryPage::tr("操作")});
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    // Tab leads to the buttons instead of through every cell.
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(RowHeight);

    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(TargetColumn, QHeaderView::Stretch);
    setColumnWidth(MethodColumn, 120);
    setColumnWidth(TimeColumn, 150);
    setColumnWidth(StatusColumn, 80);
    setColumnWidth(ActionColumn, 100);
    for (const int centred : {StatusColumn, ActionColumn})
        horizontalHeaderItem(centred)->setTextAlignment(Qt::AlignCenter);
}

void HistoryTable::fill(const QList<WipeReport> &reports, const QHash<QString, OutcomeRecord> &outcomes)
{
    setUpdatesEnabled(false);
    setRowCount(0);
    for (const WipeReport &report : reports) {
        const auto outcome = outcomes.constFind(report.certificateId);
        addRow(report, outcome == outcomes.cend() ? std::nullopt : std::optional(*outcome));
    }
    setUpdatesEnabled(true);
}

void HistoryTable::addRow(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    const int row = rowCount();
    insertRow(row);

    QTableWidgetItem *target = createItem(targetText(report));
    target->setData(CertificateIdRole, report.certificateId);
    if (outcome && isMoreThanTheStatusTells(report, *outcome))
        showOutcome(*outcome, *target);
    setItem(row, TargetColumn, target);
    setItem(row, MethodColumn, createItem(displayText(report.method.name)));
    setItem(row, TimeColumn, createItem(report.startTime.toString(u"MM-dd HH:mm"_s)));
    QTableWidgetItem *status = createItem(report.statusName());
    status->setTextAlignment(Qt::AlignCenter);
    status->setForeground(statusColor(report.status));
    QFont smaller = font();
    smaller.setPixelSize(StatusPixels);
    status->setFont(smaller);
    setItem(row, StatusColumn, status);

    QPushButton *view =
        buttons::make(HistoryPage::tr("查看"), {.name = u"tableViewBtn"_s, .hasHandCursor = true});
    // The keyboard uses the button below the table. Tab would have to pass a hundred more buttons here.
    view->setFocusPolicy(Qt::NoFocus);
    view->setAccessibleDescription(report.certificateId);
    connect(view, &QPushButton::clicked, this, [this, id = report.certificateId] { emit viewWanted(id); });
    setCellWidget(row, ActionColumn, view);
}

// The icon is beside the target, because the status column has room for one word only.
void HistoryTable::showOutcome(const OutcomeRecord &outcome, QTableWidgetItem &item) const
{
    item.setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    item.setToolTip(plainTip(outcome.fullSummary()));
    item.setData(Qt::AccessibleDescriptionRole, outcome.fullSummary());
}

QString HistoryTable::targetText(const WipeReport &report)
{
    switch (report.operationType) {
    case DiskWipe:
        return HistoryPage::tr("[磁盘] ") + report.disk.displayName();
    case PartitionWipe:
        return HistoryPage::tr("[分区] ") + report.disk.displayName();
    case FreeSpaceWipe:
        return HistoryPage::tr("[空闲] ") + report.disk.displayName();
    case FileWipe:
        return HistoryPage::tr("[文件] ") + HistoryPage::tr("%1 个文件").arg(report.fileCount);
    }
    // Another version of the program may have stored other numbers.
    return report.disk.displayName();
}

std::optional<QString> HistoryTable::currentCertificateId() const
{
    const int row = currentRow();
    const QTableWidgetItem *cell = row < 0 ? nullptr : item(row, TargetColumn);
    if (!cell)
        return std::nullopt;
    return cell->data(CertificateIdRole).toString();
}

void HistoryTable::makeCurrent(const QString &certificateId)
{
    for (int row = 0; row < rowCount(); ++row) {
        if (item(row, TargetColumn)->data(CertificateIdRole).toString() == certificateId) {
            setCurrentCell(row, TargetColumn);
            return;
        }
    }
}
