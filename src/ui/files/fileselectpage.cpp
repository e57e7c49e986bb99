#include "ui/files/fileselectpage.h"

#include "model/formatsize.h"
#include "ui/files/dropzone.h"
#include "ui/files/filedropfilter.h"
#include "ui/files/filelistwidget.h"
#include "ui/prompts/prompts.h"
#include "ui/style/buttons.h"
#include "ui/style/pagestyle.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Summing up a folder of a million files takes seconds.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

buttons::Look toolLook(const QString &name, const QString &styleSheet = {})
{
    return {.name = name, .hasHandCursor = true, .styleSheet = styleSheet};
}

const QString &addStyle()
{
    static const QString style =
        u"QPushButton {  background-color: white;  border: 1px solid #e2e8f0;  border-radius: 6px;"
        "  padding: 6px 12px;  color: #475569;  font-size: 12px;}"
        "QPushButton:hover { background-color: #f1f5f9; }"
        "QPushButton:focus { border-color: #3b82f6; outline: none; }"_s;
    return style;
}

} // namespace

FileSelectPage::FileSelectPage(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(tr("Select Files to Shred")))
    , m_subtitle(new QLabel(tr("Click buttons to add files and folders")))
    , m_toolRow(new QWidget)
    , m_addFiles(buttons::make(tr("📄 Add Files"), toolLook(u"addFilesBtn"_s, addStyle())))
    , m_addFolder(buttons::make(tr("📁 Add Folder"), toolLook(u"addFolderBtn"_s, addStyle())))
    , m_remove(buttons::make(tr("Remove"), toolLook(u"removeBtn"_s)))
    , m_clearAll(buttons::make(tr("Clear All"), toolLook(u"clearAllBtn"_s)))
    , m_stack(new QStackedWidget)
    , m_drops(new FileDropFilter(this))
    , m_dropZone(new DropZone(tr("Click to add files or drag files here"), tr("📄 Add Files")))
    , m_list(new FileListWidget)
    , m_stats(new QLabel)
    , m_missing(new QLabel)
    , m_back(buttons::makeBack(tr("← Back")))
    , m_next(buttons::makeNext(tr("Next →")))
{
    pagestyle::asTitle(*m_title);
    pagestyle::asSubtitle(*m_subtitle, u"font-size: 14px; color: #64748b;"_s);
    createToolRow();
    m_list->setAccessibleName(tr("Files and folders to shred"));
    m_stats->setObjectName(u"fileStats"_s);
    m_stats->setStyleSheet(u"font-size: 13px; color: #64748b;"_s);
    m_missing->setObjectName(u"missingLabel"_s);
    m_missing->hide();
    for (QLabel *label : {m_stats, m_missing}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    createLayout();
    updateStats();
    onSelectionChanged();

    for (QWidget *target : std::initializer_list<QWidget *>{m_dropZone, m_list, m_list->viewport()})
        m_drops->watch(*target);
    connect(m_drops, &FileDropFilter::dragOver, m_dropZone, &DropZone::setDragOver);
    connect(m_drops, &FileDropFilter::dropped, this, &FileSelectPage::addPaths);
    connect(m_addFiles, &QPushButton::clicked, this, &FileSelectPage::onAddFilesClicked);
    connect(m_dropZone, &DropZone::clicked, this, &FileSelectPage::onAddFilesClicked);
    connect(m_addFolder, &QPushButton::clicked, this, &FileSelectPage::onAddFolderClicked);
    connect(m_remove, &QPushButton::clicked, this, &FileSelectPage::onRemoveSelectedClicked);
    connect(m_clearAll, &QPushButton::clicked, this, &FileSelectPage::onClearAllClicked);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &FileSelectPage::onSelectionChanged);
    connect(new QShortcut(QKeySequence::Delete, m_list, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &FileSelectPage::onDeletePressed);
    connect(m_back, &QPushButton::clicked, this, &FileSelectPage::backClicked);
    connect(m_next, &QPushButton::clicked, this, &FileSelectPage::nextClicked);
}

void FileSelectPage::createToolRow()
{
    m_toolRow->setObjectName(u"toolRow"_s);
    auto *layout = new QHBoxLayout(m_toolRow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_addFiles);
    layout->addWidget(m_addFolder);
    layout->addStretch();
    layout->addWidget(m_remove);
    layout->addWidget(m_clearAll);
}

void FileSelectPage::createLayout()
{
    m_stack->setObjectName(u"fileStack"_s);
    m_stack->insertWidget(DropZoneView, m_dropZone);
    m_stack->insertWidget(ListView, m_list);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_back);
    buttons->addStretch();
    buttons->addWidget(m_next);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(pagestyle::Margins);
    layout->setSpacing(8);
    layout->addWidget(m_title);
    layout->addWidget(m_subtitle);
    layout->addWidget(m_toolRow);
    layout->addWidget(m_stack, 1);
    layout->addWidget(m_stats);
    layout->addWidget(m_missing);
    layout->addLayout(buttons);
}

QListWidget *FileSelectPage::list() const
{
    return m_list;
}

QStringList FileSelectPage::files() const
{
    QStringList paths;
    paths.reserve(m_entries.size());
    for (const FileEntry &entry : m_entries)
        paths.append(entry.path);
    return paths;
}

void FileSelectPage::clearFiles()
{
    m_entries.clear();
    m_paths.clear();
    m_list->clear();
    m_missing->hide();
    updateStats();
}

void FileSelectPage::setHeader(const QString &title, const QString &subtitle)
{
    m_title->setText(title);
    if (!subtitle.isEmpty())
        m_subtitle->setText(subtitle);
}

void FileSelectPage::setToolRowVisible(bool visible)
{
    m_toolRow->setVisible(visible);
}

void FileSelectPage::setMode(Mode mode)
{
    m_mode = mode;
    m_drops->setEnabled(mode == Mode::Choosing);
    if (mode != Mode::Loading)
        m_dropZone->hideLoading();
    m_toolRow->setVisible(mode == Mode::Choosing);
}

void FileSelectPage::showLoading(const QString &text)
{
    setMode(Mode::Loading);
    m_stack->setCurrentIndex(DropZoneView);
    m_dropZone->showLoading(text);
    m_next->setEnabled(false);
    m_stats->setText(text);
}

void FileSelectPage::updateLoadingProgress(int current, int total, const QString &text)
{
    m_dropZone->updateLoadingProgress(current, total, text);
    m_stats->setText(text);
}

void FileSelectPage::hideLoading()
{
    setMode(Mode::Choosing);
}

int FileSelectPage::addPaths(const QStringList &paths)
{
    const WaitCursor waitCursor;
    m_missing->hide();
    int missing = 0;
    QList<FileEntry> added;
    for (const QString &path : paths) {
        if (m_paths.contains(path))
            continue;
        if (const auto entry = FileEntry::fromPath(path)) {
            m_paths.insert(path);
            added.append(*entry);
        } else {
            ++missing;
        }
    }
    m_entries.append(added);
    m_list->append(added);
    updateStats();
    return missing;
}

void FileSelectPage::addDropped(const QStringList &paths)
{
    if (m_mode != Mode::Choosing)
        return;
    const int missing = addPaths(paths);
    if (missing == 0)
        return;
    m_missing->setText(missing == 1 ? tr("1 item could not be found")
                                    : tr("%1 items could not be found").arg(missing));
    m_missing->show();
}

void FileSelectPage::onAddFilesClicked()
{
    const QStringList paths = Prompts::current().filesToOpen(this, tr("Select Files"), tr("All Files (*.*)"));
    if (!paths.isEmpty())
        addPaths(paths);
}

void FileSelectPage::onAddFolderClicked()
{
    const QString path = Prompts::current().folder(this, tr("Select Folder"), QString());
    if (!path.isEmpty())
        addPaths({path});
}

void FileSelectPage::onSelectionChanged()
{
    m_remove->setEnabled(m_list->selectionModel()->hasSelection());
}

void FileSelectPage::onRemoveSelectedClicked()
{
    QList<FileListWidget::Run> runs = m_list->selectedRuns();
    // Rows that the main window added have no entry; they stay.
    erase_if(runs, [this](const FileListWidget::Run &run) { return run.first >= m_entries.size(); });
    for (FileListWidget::Run &run : runs) {
        run.count = std::min(run.count, static_cast<int>(m_entries.size()) - run.first);
        for (int row = run.first; row < run.first + run.count; ++row)
            m_paths.remove(m_entries.at(row).path);
        m_entries.remove(run.first, run.count);
    }
    m_list->remove(runs);
    updateStats();
}

// In other modes an item without a row would be erased all the same.
void FileSelectPage::onDeletePressed()
{
    if (m_mode == Mode::Choosing && m_remove->isEnabled())
        onRemoveSelectedClicked();
}

void FileSelectPage::onClearAllClicked()
{
    if (Prompts::current().confirms(this, QMessageBox::Question, tr("Confirm Clear"),
                                    tr("Are you sure you want to clear all added files?")))
        clearFiles();
}

void FileSelectPage::updateStats()
{
    qint64 total = 0;
    for (const FileEntry &entry : std::as_const(m_entries))
        total += entry.size;
    m_stats->setText(
        tr("Added %1 items, total %2").arg(QString::number(m_entries.size()), formatSize(total)));
    m_next->setEnabled(!m_entries.isEmpty());
    m_clearAll->setEnabled(!m_entries.isEmpty());
    m_stack->setCurrentIndex(m_entries.isEmpty() ? DropZoneView : ListView);
}
