// The Recycle Bin: scanned in the background, shown in pieces, then a file wipe like any other.
#include "ui/mainwindow/mainwindow.h"

#include "jobs/jobcontroller.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/targettext.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "prompts/prompts.h"
#include "services/binitemtext.h"
#include "services/recyclebinscanner.h"
#include "ui/files/fileselectpage.h"
#include "ui/style/spokentext.h"
#include "ui/style/tooltip.h"

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

QString textOf(const RecycleBinItem &item)
{
    const QString mark = item.isDirectory ? u"📁"_s : u"📄"_s;
    return u"%1  %2  (%3)"_s.arg(mark, displayText(BinItemText::fileName(item)), BinItemText::size(item));
}

QString amountOf(const RecycleBinInfo &found)
{
    return MainWindow::tr("Found %1 items, total %2")
        .arg(found.fileCount)
        .arg(formatSize(static_cast<qint64>(found.totalSize)));
}

// A line each for what is erased without being an item, and for the bins that stay as they are.
QStringList besideItems(const RecycleBinInfo &found)
{
    QStringList lines;
    if (const QString impossible = BinItemText::impossibleSizes(found); !impossible.isEmpty())
        lines.append(impossible);
    if (!found.unrecorded.isEmpty())
        lines.append(MainWindow::tr("Erased too, without a record: %1").arg(found.unrecorded.size()));
    QStringList unscanned;
    for (const UnscannedBin &bin : found.unscanned)
        unscanned.append(displayText(bin.path));
    if (!unscanned.isEmpty())
        lines.append(MainWindow::tr("Not looked into: %1").arg(unscanned.join(u", "_s)));
    return lines;
}

// Those that have not vanished. What cannot be examined stays: the job then fails on it, instead of telling
// that all was erased.
QStringList existing(QStringList paths)
{
    platform::Files &files = platform::Platform::current().files();
    paths.removeIf([&files](const QString &path) { return isAbsent(files.info(path).status()); });
    return paths;
}

} // namespace

void MainWindow::onRecycleBinWipeClicked()
{
    m_isRecycleBinMode = true;
    m_filePage->clearFiles();
    m_filePage->setHeader(tr("Recycle Bin Wipe"), tr("Scanning deleted files in Recycle Bin..."));
    m_filePage->showLoading(tr("Scanning Recycle Bin..."));
    showPage(FileSelect);
    if (!m_recycleBinWatcher) {
        m_recycleBinWatcher = new QFutureWatcher<RecycleBinInfo>(this);
        connect(m_recycleBinWatcher, &QFutureWatcher<RecycleBinInfo>::finished, this,
                &MainWindow::onRecycleBinScanFinished);
    }
    startRecycleBinScan();
}

void MainWindow::startRecycleBinScan()
{
    const auto forward = [window = QPointer<MainWindow>(this)](const QString &drive, int index, int count) {
        // The application outlives the scan; whether the window still does is asked on its own thread.
        QMetaObject::invokeMethod(
            qApp,
            [window, drive, index, count] {
                if (!window || !window->m_filePage || !window->m_isRecycleBinMode)
                    return;
                window->m_filePage->updateLoadingProgress(
                    index + 1, count,
                    tr("Scanning Recycle Bin on drive %1 (%2/%3)...")
                        .arg(displayText(drive), QString::number(index + 1), QString::number(count)));
            },
            Qt::QueuedConnection);
    };
    m_recycleBinWatcher->setFuture(QtConcurrent::run([forward] {
        RecycleBinScanner scanner;
        return scanner.scan(forward);
    }));
}

void MainWindow::onRecycleBinScanFinished()
{
    m_filePage->hideLoading();
    // The user left meanwhile.
    if (m_currentPage != FileSelect || !m_isRecycleBinMode)
        return;
    const RecycleBinInfo found = m_recycleBinWatcher->result();
    if (found.fileCount < 1 && found.unrecorded.isEmpty())
        offerFreeSpaceWipeOfEmptyBin(found);
    else
        takeRecycleBin(found);
}

void MainWindow::offerFreeSpaceWipeOfEmptyBin(const RecycleBinInfo &found)
{
    leaveRecycleBin();
    showHome();
    const QString question = tr("The Recycle Bin is already empty.\n\n"
                                "However, previously deleted files may still be recoverable.\n"
                                "Would you like to wipe free space to ensure they cannot be recovered?");
    const QStringList texts = QStringList{question} + besideItems(found);
    if (Prompts::current().confirms(this, QMessageBox::Question, tr("Recycle Bin is Empty"),
                                    texts.join(u"\n\n"_s)))
        onFreeSpaceWipeClicked();
}

void MainWindow::takeRecycleBin(const RecycleBinInfo &found)
{
    m_filePage->setHeader(tr("Recycle Bin Wipe"),
                          tr("The following deleted files were found in the Recycle Bin"));
    WipeTask &task = m_job->newTask(FileWipe);
    task.setFiles(existing(found.doomedPaths()));
    task.setTargetsAreNamed(false);
    task.setOmissions(found.omissions());
    m_recycleBin = found;
    m_loadedRecycleBinCount = 0;

    m_filePage->statsLabel()->setText((QStringList{amountOf(found)} + besideItems(found)).join(u'\n'));
    m_filePage->setReadOnly(true);
    m_filePage->setToolRowVisible(false);
    m_filePage->nextButton()->setEnabled(true);
    m_filePage->stack()->setCurrentIndex(FileSelectPage::ListView);
    QScrollBar *bar = m_filePage->list()->verticalScrollBar();
    disconnect(bar, &QScrollBar::valueChanged, this, &MainWindow::onRecycleBinListScrolled);
    connect(bar, &QScrollBar::valueChanged, this, &MainWindow::onRecycleBinListScrolled);
    disconnect(bar, &QScrollBar::rangeChanged, this, &MainWindow::fillRecycleBinList);
    // Later: the list is in the middle of laying out its rows.
    connect(bar, &QScrollBar::rangeChanged, this, &MainWindow::fillRecycleBinList, Qt::QueuedConnection);
    loadMoreRecycleBinItems();
    QMetaObject::invokeMethod(this, &MainWindow::fillRecycleBinList, Qt::QueuedConnection);
}

// Rows that all fit leave nothing to scroll, and the others would never come.
void MainWindow::fillRecycleBinList()
{
    QListWidget *const list = m_filePage->list();
    while (m_isRecycleBinMode && m_loadedRecycleBinCount < m_recycleBin.items.size()) {
        const int height = m_loadedRecycleBinCount * list->sizeHintForRow(0);
        if (!list->isVisible() || height > list->viewport()->height())
            break;
        loadMoreRecycleBinItems();
    }
}

QStringList MainWindow::recycleBinLines() const
{
    const QStringList items = TargetText::beginningOf(
        m_recycleBin.items.size(), [this](qsizetype i) { return textOf(m_recycleBin.items.at(i)); });
    return QStringList{amountOf(m_recycleBin)} + besideItems(m_recycleBin) + items;
}

void MainWindow::loadMoreRecycleBinItems()
{
    const int count = static_cast<int>(m_recycleBin.items.size());
    const int end = std::min(m_loadedRecycleBinCount + PageSize, count);
    for (int i = m_loadedRecycleBinCount; i < end; ++i) {
        const RecycleBinItem &item = m_recycleBin.items.at(i);
        auto *row = new QListWidgetItem(textOf(item), m_filePage->list());
        row->setToolTip(plainTip(BinItemText::details(item)));
        row->setData(Qt::AccessibleTextRole, spokenText(row->text()));
        row->setData(Qt::UserRole, item.recyclePath);
    }
    m_loadedRecycleBinCount = end;
    qDebug() << "Loaded" << m_loadedRecycleBinCount << "/" << count << "recycle bin items";
}

void MainWindow::onRecycleBinListScrolled()
{
    if (!m_isRecycleBinMode || m_loadedRecycleBinCount >= m_recycleBin.items.size())
        return;
    const QScrollBar *bar = m_filePage->list()->verticalScrollBar();
    if (bar->value() >= 0.8 * bar->maximum())
        loadMoreRecycleBinItems();
}

// The file page goes back to what the file flow wants. A scan that still runs finds nobody waiting.
void MainWindow::leaveRecycleBin()
{
    if (!m_isRecycleBinMode)
        return;
    m_isRecycleBinMode = false;
    QScrollBar *const bar = m_filePage->list()->verticalScrollBar();
    disconnect(bar, &QScrollBar::valueChanged, this, &MainWindow::onRecycleBinListScrolled);
    disconnect(bar, &QScrollBar::rangeChanged, this, &MainWindow::fillRecycleBinList);
    m_recycleBin = {};
    m_loadedRecycleBinCount = 0;
    m_filePage->setReadOnly(false);
    m_filePage->setToolRowVisible(true);
    m_filePage->hideLoading();
    m_filePage->setHeader(tr("Select Files to Shred"), tr("Click buttons to add files and folders"));
}
