// From the scan to the end of a job.
#include "engine/filewipeworker.h"

#include "engine/filetrace.h"
#include "engine/foreseeable.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <QThread>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <new>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using platform::EntryPath;
using platform::FileKind;
using platform::Result;
using platform::Status;

namespace {

platform::Files &files()
{
    return platform::Platform::current().files();
}

} // namespace

FileWipeWorker::FileWipeWorker(WipeTask *task, QObject *parent)
    : BaseWipeWorker(task, parent)
    // Already the position in the whole job; updateProgress() counts the earlier passes once more. The
    // figures run ahead in later passes, as everybody who reads them expects.
    , m_progress([this](qint64 done, qint64 total) { updateProgress(done, total); })
    , m_sampling([this] { return !isStopRequested(); })
    , m_pool(task->threadCount() >= 1 ? task->threadCount() : QThread::idealThreadCount(), this)
{}

FileWipeWorker::~FileWipeWorker()
{
    stop();
}

void FileWipeWorker::process()
{
    runJob();
}

bool FileWipeWorker::run()
{
    try {
        return shred();
    } catch (const std::bad_alloc &) {
        m_list = {}; // where most of the memory is
        throw;
    }
}

bool FileWipeWorker::shred()
{
    log(tr("正在扫描目标文件..."));
    m_list = collectFiles(task().files());
    if (isStopRequested())
        return concludeJob(false);
    if (m_list.files.empty()) {
        removeFolders();
        emit errorOccurred(tr("没有找到要擦除的文件"));
        return false;
    }
    measureFrom(0);
    if (isStopRequested())
        return concludeJob(false);
    announceFiles();
    const bool isOverwritten = overwriteAll() && overwriteLate();
    logContentElsewhere();
    if (!isOverwritten)
        return concludeJob(false);
    log(tr("正在执行安全删除及元数据清理..."));
    bool success = deleteFrom(0);
    success = eraseLate() && success;
    removeRest();
    removeFolders();
    success = settleRemovals() && success;
    return concludeJob(success);
}

Result<EntryPath> FileWipeWorker::entry(std::size_t file)
{
    const FileEntry &found = m_list.files[file];
    return m_tree.entry(found.folder, found.name);
}

Result<platform::FileInfo> FileWipeWorker::look(std::size_t file)
{
    const Result<EntryPath> place = entry(file);
    if (!place)
        return place.status();
    return files().info(place.value());
}

QString FileWipeWorker::pathOf(std::size_t file) const
{
    const FileEntry &found = m_list.files[file];
    return m_tree.path(found.folder, found.name);
}

bool FileWipeWorker::concludeJob(bool success)
{
    noteVanished();
    if (isStopRequested()) {
        log(tr("擦除任务已由用户取消"), Warning);
        return false;
    }
    const int failed = m_failedCount + m_list.unreadable;
    if (success && failed == 0) {
        log(tr("所有文件擦除成功！共处理 %1 个文件").arg(m_processedCount));
        return true;
    }
    log(tr("擦除完成，但有 %1 个文件失败。数据可能不安全！").arg(failed), Error);
    return false;
}

FileCollector::Observer FileWipeWorker::observer()
{
    // Whoever is told that a job succeeded believes that everything under the targets is gone: what nobody
    // could look at makes it fail.
    const auto unreadable = [this](FileCollector::Unreadable what, const QString &path,
                                   const Status &status) {
        const QString text = what == FileCollector::Unreadable::Folder ? tr("无法读取文件夹: %1，错误码: %2")
                                                                       : tr("无法访问: %1，错误码: %2");
        log(text.arg(displayText(path), QString::number(status.code)), Error);
        traceFile(path, status);
    };
    return {.goOn = [this] { return checkPauseStop(); },
            .unreadable = unreadable,
            .mounted = [this](const QString &path) { noteMounted(path); },
            .replaced = [this](const QString &path) { noteReplaced(path); },
            .vanished =
                [this](const QString &path) {
                    task().noteShortfall({ShortfallKind::EntryVanished, path});
                }};
}

FileList FileWipeWorker::collectFiles(const QStringList &targets)
{
    return FileCollector(m_tree, observer()).collect(targets, task().targetIdentities());
}

// Neither the folder's content nor the user's choice: whatever is mounted there stays as it is.
void FileWipeWorker::noteMounted(const QString &path)
{
    if (m_mounted.contains(path))
        return;
    m_mounted.insert(path);
    log(tr("文件夹中挂载了其他文件系统，保持原样: %1").arg(displayText(path)), Warning);
    task().noteShortfall({ShortfallKind::EntryNotRemoved, path});
}

void FileWipeWorker::measureFrom(std::size_t first)
{
    m_watched.resize(m_list.files.size());
    std::size_t kept = first;
    std::size_t i = first;
    for (; i < m_list.files.size() && checkPauseStop(); ++i) {
        if (!measureFile(i))
            continue;
        if (kept != i) {
            m_list.files[kept] = std::move(m_list.files[i]);
            m_watched[kept] = m_watched[i];
        }
        ++kept;
    }
    const auto given = static_cast<std::ptrdiff_t>(i);
    const auto left = static_cast<std::ptrdiff_t>(kept);
    m_list.files.erase(m_list.files.begin() + left, m_list.files.begin() + given);
    m_watched.erase(m_watched.begin() + left, m_watched.begin() + given);
}

// False for what does not belong to the list.
bool FileWipeWorker::measureFile(std::size_t file)
{
    const auto info = look(file);
    if (!info) {
        m_isTotalCertain = m_isTotalCertain && isAbsent(info.status());
        if (isAbsent(info.status()))
            watched(file).vanish();
        return true;
    }
    if (info.value().isMounted && info.value().kind != FileKind::Folder) {
        noteMounted(pathOf(file));
        return false;
    }
    watched(file).find(info.value());
    if (info.value().kind != FileKind::Regular)
        return true;
    m_singlePassTotal += info.value().size;
    // No pass opens it, and yet there may be streams beside the one that is empty.
    if (info.value().size == 0) {
        const auto place = entry(file);
        const auto content = place ? files().contentPlace(place.value()) : place.status();
        if (!isAbsent(content.status()))
            notePlace(pathOf(file), content);
    }
    if (info.value().linkCount > 1) {
        const qint64 others = info.value().linkCount - 1;
        log(tr("文件还有 %1 个其他硬链接: %2").arg(QString::number(others), displayText(pathOf(file))),
            Warning);
        task().noteShortfall({ShortfallKind::OtherNames, pathOf(file), -1, others});
    }
    return true;
}

std::size_t FileWipeWorker::addLate()
{
    const std::size_t first = m_list.files.size();
    if (m_list.folders.empty() || isStopRequested())
        return first;
    std::vector<FileEntry> known = m_list.files;
    known.insert(known.end(), m_left.begin(), m_left.end());
    FileList late = FileCollector(m_tree, observer()).collectNew(m_list.folders, FileIndex(m_tree, known));
    m_list.unreadable += late.unreadable;
    std::ranges::move(late.files, std::back_inserter(m_list.files));
    const qint64 announced = m_singlePassTotal;
    measureFrom(first);
    m_singlePassTotal = announced;
    if (m_list.files.size() > first)
        log(tr("任务期间又出现 %1 个文件，同样进行擦除").arg(m_list.files.size() - first), Warning);
    return first;
}

void FileWipeWorker::announceFiles()
{
    m_firstCount = m_list.files.size();
    m_totalPasses = task().method().passCount();
    task().updateReport([this](WipeReport &report) {
        report.fileCount = static_cast<qint32>(m_list.files.size());
        report.totalBytes = static_cast<quint64>(m_singlePassTotal);
    });
    log(tr("准备擦除 %1 个文件，单遍总大小 %2")
            .arg(QString::number(m_list.files.size()), formatSize(m_singlePassTotal)));
    if (!task().targetsAreNamed())
        return;
    for (const QString &link : linksAmong(task().files()))
        task().noteShortfall({ShortfallKind::LinkTarget, link});
}

void FileWipeWorker::noteReplaced(const QString &path)
{
    log(tr("文件已被替换，保持原样: %1").arg(displayText(path)), Warning);
    task().noteShortfall({ShortfallKind::EntryReplaced, path});
}

void FileWipeWorker::complete()
{
    // A volume can be unmounted as soon as the job is over.
    for (const DurabilityGroups::Closed &closed : m_removals.close())
        traceFile(QString(), closed.status);
    m_tree.releaseAll();
    const int samples = m_sampling.samplesRead();
    task().updateReport([samples](WipeReport &report) {
        report.verificationSampleSize = samples;
        report.verificationMethod = samples > 0 ? u"random sampling, 3 samples per file"_s : QString();
    });
}
