#include "ui/history/historypage.h"

#include "certificate/certificaterenderer.h"
#include "services/reportdatabase.h"
#include "ui/history/historytable.h"
#include "ui/history/storedreport.h"
#include "ui/prompts/prompts.h"
#include "ui/style/buttons.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int LoadedReports = 100;
constexpr int AnyStatus = -1;

bool exportWithRenderer(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                        const QString &file)
{
    return CertificateRenderer().exportToPdf(report, file, outcome);
}

// Makes the list as wide as its words, as some styles cut it to the width of the box.
class FilterBox : public QComboBox
{
public:
    void showPopup() override
    {
        view()->setMinimumWidth(view()->sizeHintForColumn(0) + 2 * view()->frameWidth());
        QComboBox::showPopup();
    }
};

} // namespace

HistoryPage::HistoryPage(QWidget *parent)
    : QWidget(parent)
    , m_exporter(&exportWithRenderer)
    , m_filter(new FilterBox)
    , m_table(new HistoryTable)
    , m_view(buttons::make(tr("查看证书"), {.name = u"primaryBtn"_s}))
    , m_export(buttons::make(tr("导出PDF"), {.name = u"exportBtn"_s}))
    , m_delete(buttons::make(tr("删除"), {.name = u"deleteBtn"_s}))
    , m_clearAll(buttons::make(tr("清除所有"), {.name = u"dangerBtn"_s}))
{
    auto *title = new QLabel(tr("擦除历史记录"));
    title->setObjectName(u"pageTitle"_s);
    connectTable();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(30, 25, 30, 25);
    layout->setSpacing(12);
    layout->addWidget(title);
    layout->addWidget(createFilterBar());
    layout->addWidget(m_table, 1);
    layout->addLayout(createButtons());
    loadHistory();
}

QWidget *HistoryPage::createFilterBar()
{
    m_filter->setObjectName(u"statusFilter"_s);
    m_filter->setFixedWidth(100);
    m_filter->addItem(tr("全部"), AnyStatus);
    m_filter->addItem(tr("已完成"), static_cast<int>(WipeStatus::Completed));
    m_filter->addItem(tr("失败"), static_cast<int>(WipeStatus::Failed));
    m_filter->addItem(tr("已取消"), static_cast<int>(WipeStatus::Cancelled));
    m_filter->setToolTip(m_filter->currentText());
    connect(m_filter, &QComboBox::currentTextChanged, m_filter, &QComboBox::setToolTip);
    connect(m_filter, &QComboBox::currentIndexChanged, this, [this] { onFilterChanged(); });
    auto *label = new QLabel(tr("状态:"));
    label->setBuddy(m_filter);

    auto *bar = new QFrame;
    bar->setObjectName(u"filterWidget"_s);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(15, 12, 15, 12);
    layout->addWidget(label);
    layout->addWidget(m_filter);
    layout->addStretch();
    return bar;
}

// A disabled button ignores the key, so nothing happens without a selection.
void HistoryPage::connectKey(const QKeySequence &key, const QPushButton &button)
{
    connect(new QShortcut(key, m_table, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, &button,
            &QPushButton::click);
}

void HistoryPage::connectTable()
{
    connect(m_table, &QTableWidget::itemSelectionChanged, this, &HistoryPage::onSelectionChanged);
    connect(m_table, &HistoryTable::viewWanted, this, &HistoryPage::viewCertificate);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &HistoryPage::onViewClicked);
    // The signal itemActivated() is not used, as a single click emits it on some desktops.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connectKey(key, *m_view);
    connectKey(QKeySequence::Delete, *m_delete);
}

QBoxLayout *HistoryPage::createButtons()
{
    connect(m_view, &QPushButton::clicked, this, &HistoryPage::onViewClicked);
    connect(m_export, &QPushButton::clicked, this, &HistoryPage::onExportClicked);
    connect(m_delete, &QPushButton::clicked, this, &HistoryPage::onDeleteClicked);
    connect(m_clearAll, &QPushButton::clicked, this, &HistoryPage::onClearAllClicked);

    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 5, 0, 0);
    buttons->addWidget(m_view);
    buttons->addWidget(m_export);
    buttons->addWidget(m_delete);
    buttons->addStretch();
    buttons->addWidget(m_clearAll);
    return buttons;
}

void HistoryPage::loadHistory()
{
    m_reports.clear();
    m_outcomes.clear();
    const auto stored = ReportDatabase::instance().storedReports(LoadedReports, 0);
    for (const auto &[certificateId, json] : stored.value_or(QList<ReportDatabase::StoredReport>())) {
        WipeReport report = WipeReport::fromJson(json);
        // A damaged report has another id or none, and could not be deleted by it.
        report.certificateId = certificateId;
        m_reports.append(report);
    }
    for (const WipeReport &report : std::as_const(m_reports)) {
        if (const auto outcome = ReportDatabase::instance().outcome(report.certificateId))
            m_outcomes.insert(report.certificateId, *outcome);
    }
    showReports(m_reports);
}

void HistoryPage::showReports(const QList<WipeReport> &reports)
{
    m_table->fill(reports, m_outcomes);
    onSelectionChanged();
}

void HistoryPage::onFilterChanged()
{
    const int status = m_filter->currentData().toInt();
    QList<WipeReport> shown;
    for (const WipeReport &report : std::as_const(m_reports)) {
        if (status < 0 || static_cast<int>(report.status) == status)
            shown.append(report);
    }
    showReports(shown);
}

void HistoryPage::onSearch()
{
    const std::optional<QString> certificateId = m_table->currentCertificateId();
    onFilterChanged();
    if (certificateId)
        m_table->makeCurrent(*certificateId);
}

void HistoryPage::onSelectionChanged()
{
    const bool hasRow = m_table->selectionModel()->hasSelection();
    m_view->setEnabled(hasRow);
    m_export->setEnabled(hasRow);
    m_delete->setEnabled(hasRow);
}

void HistoryPage::onViewClicked()
{
    if (const std::optional<QString> certificateId = m_table->currentCertificateId())
        emit viewCertificate(*certificateId);
}

void HistoryPage::onExportClicked()
{
    const std::optional<QString> certificateId = m_table->currentCertificateId();
    if (!certificateId)
        return;
    const std::optional<WipeReport> report = storedReport(*certificateId, this);
    if (!report)
        return;
    const QString file = Prompts::current().fileToSave(this, tr("导出证书"), u"%1.pdf"_s.arg(*certificateId),
                                                       tr("PDF文件 (*.pdf)"));
    if (file.isEmpty())
        return;
    if (m_exporter(*report, ReportDatabase::instance().outcome(*certificateId), file))
        Prompts::current().information(this, tr("导出成功"), tr("证书已导出到: %1").arg(file));
    else
        Prompts::current().warning(this, tr("导出失败"), tr("无法导出证书文件"));
}

void HistoryPage::onDeleteClicked()
{
    const std::optional<QString> certificateId = m_table->currentCertificateId();
    if (!certificateId || !Prompts::current().confirms(this, QMessageBox::Question, tr("确认删除"),
                                                       tr("确定要删除此擦除记录吗？"), QMessageBox::No))
        return;
    ReportDatabase::instance().deleteReport(*certificateId);
    loadHistory();
}

void HistoryPage::onClearAllClicked()
{
    if (m_reports.isEmpty()) {
        Prompts::current().information(this, tr("提示"), tr("没有可清除的记录"));
        return;
    }
    if (!Prompts::current().confirms(this, QMessageBox::Warning, tr("确认清除"),
                                     tr("确定要清除所有擦除记录吗？\n\n此操作不可恢复！"), QMessageBox::No))
        return;
    // Older reports, which the page has not loaded, stay in the database.
    for (const WipeReport &report : std::as_const(m_reports))
        ReportDatabase::instance().deleteReport(report.certificateId);
    loadHistory();
    Prompts::current().information(this, tr("清除完成"), tr("所有记录已清除"));
}
