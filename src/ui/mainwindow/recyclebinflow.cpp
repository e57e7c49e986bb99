#include "ui/mainwindow/recyclebinflow.h"

#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/spokentext.h"
#include "model/targettext.h"
#include "services/trash/binitemtext.h"
#include "services/trash/binrecords.h"
#include "services/trash/recyclebinscanner.h"
#include "ui/files/fileselectpage.h"
#include "ui/style/tooltip.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QtConcurrentRun>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int PageSize = 20;

// The texts belong to the main window.
struct Window
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

QString textOf(const RecycleBinItem &item)
{
    const QString mark = item.isDirectory ? u"📁"_s : u"📄"_s;
    return u"%1  %2  (%3)"_s.arg(mark, displayText(BinItemText::fileName(item)), BinItemText::size(item));
}

QString amountOf(const RecycleBinInfo &found)
{
    return Window::tr("Found %1 items, total %2")
        .arg(found.fileCount)
        .arg(formatSize(static_cast<qint64>(found.totalSize)));
}

} // namespace

RecycleBinFlow::RecycleBinFlow(FileSelectPage &page, QObject *parent)
    : QObject(parent)
    , m_page(page)
    , m_scan(this)
{
    connect(&m_scan, &QFutureWatcher<RecycleBinInfo>::finished, this, &RecycleBinFlow::scanned);
}

void RecycleBinFlow::begin()
{
    m_isActive = true;
    m_page.clearFiles();
    m_page.setHeader(Window::tr("Recycle Bin Wipe"), Window::tr("Scanning deleted files in Recycle Bin..."));
    m_page.showLoading(Window::tr("Scanning Recycle Bin..."));
}

void RecycleBinFlow::scan()
{
    const auto forward = [flow = QPointer<RecycleBinFlow>(this)](const QString &drive, int index, int count) {
        // The application outlives the scan. The interface thread checks whether the window still exists.
        QMetaObject::invokeMethod(
            qApp,
            [flow, drive, index, count] {
                if (!flow || !flow->m_isActive)
                    return;
                flow->m_page.updateLoadingProgress(
                    index + 1, count,
                    Window::tr("Scanning Recycle Bin on drive %1 (%2/%3)...")
                        .arg(displayText(drive), QString::number(index + 1), QString::number(count)));
            },
            Qt::QueuedConnection);
    };
    m_scan.setFuture(QtConcurrent::run([forward] {
        RecycleBinScanner scanner;
        return scanner.scan(forward);
    }));
}

void RecycleBinFlow::show(const RecycleBinInfo &found)
{
    m_page.setHeader(Window::tr("Recycle Bin Wipe"),
                     Window::tr("The following deleted files were found in the Recycle Bin"));
    m_found = found;
    m_loadedCount = 0;

    m_page.statsLabel()->setText((QStringList{amountOf(found)} + besideItems(found)).join(u'\n'));
    m_page.setMode(FileSelectPage::Mode::Listing);
    m_page.nextButton()->setEnabled(true);
    m_page.stack()->setCurrentIndex(FileSelectPage::ListView);
    QScrollBar *bar = m_page.list()->verticalScrollBar();
    disconnect(bar, &QScrollBar::valueChanged, this, &RecycleBinFlow::onScrolled);
    connect(bar, &QScrollBar::valueChanged, this, &RecycleBinFlow::onScrolled);
    disconnect(bar, &QScrollBar::rangeChanged, this, &RecycleBinFlow::fillList);
    // Queued, because the list is laying out its rows when the signal comes.
    connect(bar, &QScrollBar::rangeChanged, this, &RecycleBinFlow::fillList, Qt::QueuedConnection);
    showMore();
    QMetaObject::invokeMethod(this, &RecycleBinFlow::fillList, Qt::QueuedConnection);
}

// Without a scroll bar there is no scrolling, and the other items would never be shown.
void RecycleBinFlow::fillList()
{
    QListWidget *const list = m_page.list();
    while (m_isActive && m_loadedCount < m_found.items.size()) {
        const int height = m_loadedCount * list->sizeHintForRow(0);
        if (!list->isVisible() || height > list->viewport()->height())
            break;
        showMore();
    }
}

void RecycleBinFlow::showMore()
{
    const int count = static_cast<int>(m_found.items.size());
    const int end = std::min(m_loadedCount + PageSize, count);
    for (int i = m_loadedCount; i < end; ++i) {
        const RecycleBinItem &item = m_found.items.at(i);
        auto *row = new QListWidgetItem(textOf(item), m_page.list());
        row->setToolTip(plainTip(BinItemText::details(item)));
        row->setData(Qt::AccessibleTextRole, spokenText(row->text()));
        row->setData(Qt::UserRole, item.recyclePath);
    }
    m_loadedCount = end;
    qDebug() << "Loaded" << m_loadedCount << "/" << count << "recycle bin items";
}

void RecycleBinFlow::onScrolled()
{
    if (!m_isActive || m_loadedCount >= m_found.items.size())
        return;
    const QScrollBar *bar = m_page.list()->verticalScrollBar();
    if (bar->value() >= 0.8 * bar->maximum())
        showMore();
}

// The result of a scan that still runs is ignored.
void RecycleBinFlow::leave()
{
    if (!m_isActive)
        return;
    m_isActive = false;
    QScrollBar *const bar = m_page.list()->verticalScrollBar();
    disconnect(bar, &QScrollBar::valueChanged, this, &RecycleBinFlow::onScrolled);
    disconnect(bar, &QScrollBar::rangeChanged, this, &RecycleBinFlow::fillList);
    m_found = {};
    m_loadedCount = 0;
    m_page.setMode(FileSelectPage::Mode::Choosing);
    m_page.setHeader(Window::tr("Select Files to Shred"),
                     Window::tr("Click buttons to add files and folders"));
}

QStringList RecycleBinFlow::besideItems(const RecycleBinInfo &found)
{
    QStringList lines;
    if (!found.account.isEmpty())
        lines.append(Window::tr("Recycle Bin of %1").arg(displayText(found.account)));
    if (const QString impossible = BinItemText::impossibleSizes(found); !impossible.isEmpty())
        lines.append(impossible);
    if (!found.unrecorded.isEmpty())
        lines.append(Window::tr("Erased too, without a record: %1").arg(found.unrecorded.size()));
    QStringList unscanned;
    for (const UnscannedBin &bin : found.unscanned)
        unscanned.append(displayText(bin.path));
    if (!unscanned.isEmpty())
        lines.append(Window::tr("Not looked into: %1").arg(unscanned.join(u", "_s)));
    return lines;
}

QStringList RecycleBinFlow::lines() const
{
    const QStringList items = TargetText::beginningOf(
        m_found.items.size(), [this](qsizetype i) { return textOf(m_found.items.at(i)); });
    return QStringList{amountOf(m_found)} + besideItems(m_found) + items;
}

void RecycleBinFlow::updateRecords() const
{
    const platform::Status updated = updateBinRecords(m_found);
    if (!updated)
        qWarning() << "[RecycleBin] The bin's own list still names what was erased:" << updated.diagnostic();
}
