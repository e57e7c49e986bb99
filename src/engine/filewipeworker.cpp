#include "engine/filewipeworker.h"

#include "engine/filedeletion.h"
#include "engine/filetrace.h"
#include "engine/foreseeable.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/wipetask.h"
#include "platform/alignedbuffer.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <QDebug>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <new>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using platform::FileKind;
using platform::OpenMode;
using platform::Status;

namespace {

constexpr qint64 MiB = 1024LL * 1024;
constexpr qint64 SmallestBuffer = 256LL * 1024;
constexpr qint64 LargestBuffer = 16 * MiB;
constexpr int DefaultBufferMB = 4;

platform::Files &files()
{
    return platform::Platform::current().files();
}

qint64 bufferSizeFor(qint64 fileSize, int bufferSizeMB)
{
    const qint64 wanted = (bufferSizeMB < 1 ? DefaultBufferMB : bufferSizeMB) * MiB;
    return std::min(std::clamp(wanted, SmallestBuffer, LargestBuffer), fileSize);
}

// Every buffer filled for the pass holds the same, so that one fill does for a file.
bool isConstant(const PassPattern &pattern)
{
    return pattern.type == PatternType::Zeros || pattern.type == PatternType::Ones ||
           pattern.type == PatternType::Custom;
}

Status writeAll(platform::FileHandle &file, const std::byte *data, qint64 size)
{
    while (size > 0) {
        const auto written = file.write(data, size);
        if (!written)
            return written.status();
        if (written.value() <= 0)
            return {platform::WriteFault, 0, "write (no progress)"};
        data += written.value();
        size -= written.value();
    }
    return {};
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
    if (m_list.files.isEmpty()) {
        emit errorOccurred(tr("没有找到要擦除的文件"));
        return false;
    }
    measureFiles();
    if (isStopRequested())
        return concludeJob(false);
    announceFiles();
    const bool isOverwritten = overwriteAll();
    logContentElsewhere();
    if (!isOverwritten)
        return concludeJob(false);
    const bool success = deleteAll();
    removeFolders();
    return concludeJob(success);
}

bool FileWipeWorker::concludeJob(bool success)
{
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

FileList FileWipeWorker::collectFiles(const QStringList &targets)
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
    return FileCollector({.goOn = [this] { return checkPauseStop(); }, .unreadable = unreadable})
        .collect(targets);
}

void FileWipeWorker::measureFiles()
{
    m_singlePassTotal = 0;
    m_isTotalCertain = true;
    m_watched.resize(static_cast<std::size_t>(m_list.files.size()));
    for (qsizetype i = 0; i < m_list.files.size(); ++i) {
        if (!checkPauseStop())
            return;
        const QString &path = m_list.files.at(i);
        const auto info = files().info(path);
        if (!info) {
            m_isTotalCertain = m_isTotalCertain && isAbsent(info.status());
            if (isAbsent(info.status()))
                task().noteShortfall({ShortfallKind::EntryVanished, path});
            continue;
        }
        watched(i).find(info.value());
        if (info.value().kind == FileKind::Regular)
            measureFile(path, info.value());
    }
}

void FileWipeWorker::measureFile(const QString &path, const platform::FileInfo &info)
{
    m_singlePassTotal += info.size;
    // No pass opens it, and yet there may be streams beside the one that is empty.
    if (info.size == 0) {
        const auto place = files().contentPlace(path);
        if (!isAbsent(place.status()))
            notePlace(path, place);
    }
    if (info.linkCount > 1) {
        const qint64 others = info.linkCount - 1;
        log(tr("文件还有 %1 个其他硬链接: %2").arg(QString::number(others), displayText(path)), Warning);
        task().noteShortfall({ShortfallKind::OtherNames, path, -1, others});
    }
}

void FileWipeWorker::announceFiles()
{
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

bool FileWipeWorker::overwriteAll()
{
    m_failedCount = 0;
    m_processedCount = 0;
    m_bytesBeforePass = 0;
    // A total of 0 proves that there is nothing to overwrite only when every size was told.
    if (m_singlePassTotal <= 0 && m_isTotalCertain) {
        log(tr("所有文件为空，跳过数据覆写"));
        return !isStopRequested();
    }
    noteReadBack(true);
    const QList<PassPattern> passes = task().method().passes;
    for (const PassPattern &pattern : passes) {
        if (isStopRequested())
            return false;
        ++m_currentPass;
        emit passChanged(m_currentPass, m_totalPasses);
        if (!overwritePass(pattern)) {
            log(tr("第 %1/%2 遍覆写出现失败文件，失败数: %3")
                    .arg(m_currentPass)
                    .arg(m_totalPasses)
                    .arg(m_failedCount),
                Error);
            return false;
        }
    }
    return !isStopRequested();
}

bool FileWipeWorker::overwritePass(const PassPattern &pattern)
{
    const qsizetype batchSize = std::max(2 * m_pool.threadCount(), 1);
    const qsizetype count = m_list.files.size();
    bool passed = true;
    m_progress.beginPass(m_currentPass, m_totalPasses, m_singlePassTotal);
    for (qsizetype first = 0; first < count && !isStopRequested(); first += batchSize) {
        if (!checkPauseStop()) {
            passed = false;
            break;
        }
        const int failures = overwriteBatch(first, std::min(batchSize, count - first), pattern);
        m_failedCount += failures;
        passed = passed && failures == 0;
    }
    m_bytesBeforePass += m_progress.bytesOfPass();
    return passed;
}

int FileWipeWorker::overwriteBatch(qsizetype first, qsizetype count, const PassPattern &pattern)
{
    std::vector<FilePool::Job> jobs;
    jobs.reserve(static_cast<std::size_t>(count));
    for (qsizetype i = first; i < first + count; ++i) {
        jobs.push_back([this, i, pattern, seed = drawSeed()] { return overwriteJob(i, pattern, seed); });
    }
    return m_pool.run(std::move(jobs));
}

bool FileWipeWorker::overwriteJob(qsizetype index, const PassPattern &pattern, quint32 seed) noexcept
{
    try {
        return overwriteExisting(index, pattern, seed);
    } catch (const std::bad_alloc &) {
        logOutOfMemory();
    }
    return false;
}

bool FileWipeWorker::overwriteExisting(qsizetype index, const PassPattern &pattern, quint32 seed)
{
    const QString &path = m_list.files.at(index);
    const auto info = files().info(path);
    if (!info && !isAbsent(info.status()))
        return failFile(tr("无法打开文件(WinAPI): %1"), path, info.status());
    if (!info) {
        // Not a failure, but nobody knows where its content is now.
        task().noteShortfall({ShortfallKind::EntryVanished, path});
        return true;
    }
    watched(index).find(info.value());
    // What took its place was not chosen, and where its content is now nobody knows.
    if (watched(index).isReplacedBy(info.value())) {
        noteReplaced(path);
        return true;
    }
    if (info.value().kind != FileKind::Regular)
        return true;
    return overwriteFile(index, info.value().size, pattern, seed);
}

bool FileWipeWorker::overwriteFile(qsizetype index, qint64 size, const PassPattern &pattern, quint32 seed)
{
    const QString &path = m_list.files.at(index);
    if (const qint64 lost = watched(index).beginPass(size); lost > 0)
        task().noteShortfall({ShortfallKind::EntryVanished, path, lost});
    if (size < 1)
        return true;
    if (isStopRequested())
        return false;
    platform::AlignedBuffer buffer(bufferSizeFor(size, task().bufferSizeMB()));
    if (buffer.isNull()) {
        logOutOfMemory();
        return false;
    }
    traceFile(path, files().clearReadOnly(path));
    {
        const auto opened = files().open(path, OpenMode::Overwrite);
        if (!opened)
            return failFile(tr("无法打开文件(WinAPI): %1"), path, opened.status());
        platform::FileHandle &file = *opened.value();
        if (watched(index).isReplacedBy(file)) {
            noteReplaced(path);
            return true;
        }
        // The first write may already change the answer.
        if (watched(index).isToBeLocated())
            notePlace(path, file.contentPlace());
        if (!writeChunks(file, path, size, pattern, seed, buffer))
            return false;
        const Status flushed = file.flush();
        if (!flushed)
            return failFile(tr("FlushFileBuffers 失败: %1"), path, flushed);
    }
    if (isStopRequested())
        return false;
    if (!pattern.verify || !task().verifyAfterWipe())
        return true;
    return verifyFile(path, size, pattern);
}

// True also when a stop ended the loop between two chunks.
bool FileWipeWorker::writeChunks(platform::FileHandle &file, const QString &path, qint64 size,
                                 const PassPattern &pattern, quint32 seed, platform::AlignedBuffer &buffer)
{
    PatternGenerator random(seed);
    qint64 offset = 0;
    while (offset < size && !isStopRequested()) {
        if (!checkPauseStop())
            return false;
        const qint64 chunk = std::min(buffer.size(), size - offset);
        if (offset == 0 || !isConstant(pattern))
            fillBuffer(buffer.data(), chunk, pattern, random);
        const Status found = file.seek(offset);
        if (!found)
            return failFile(tr("SetFilePointerEx 失败: %1"), path, found);
        const Status written = writeAll(file, buffer.data(), chunk);
        if (!written)
            return failFile(tr("WriteFile 失败: %1"), path, written);
        task().noteWritten(chunk);
        offset += chunk;
        m_progress.add(chunk);
    }
    return true;
}

bool FileWipeWorker::verifyFile(const QString &path, qint64 size, const PassPattern &pattern)
{
    const auto outcome = m_sampling.check(path, size, [&pattern](const std::byte *data, qint64 length) {
        return verifyBuffer(data, length, pattern);
    });
    if (outcome == FileSampling::Outcome::Different)
        log(tr("验证失败: %1").arg(displayText(path)), Error);
    return outcome == FileSampling::Outcome::Passed;
}

void FileWipeWorker::noteReplaced(const QString &path)
{
    log(tr("文件已被替换，保持原样: %1").arg(displayText(path)), Warning);
    task().noteShortfall({ShortfallKind::EntryReplaced, path});
}

// What could not be found out counts as elsewhere.
void FileWipeWorker::notePlace(const QString &path, const platform::Result<platform::ContentPlace> &place)
{
    traceFile(path, place.status());
    if (place && !place.value().elsewhere)
        return;
    ++m_elsewhereCount;
    task().noteShortfall({ShortfallKind::ContentElsewhere, path, place ? place.value().bytes : -1});
}

// One line for all of them: there may be as many as files.
void FileWipeWorker::logContentElsewhere()
{
    if (m_elsewhereCount > 0)
        log(tr("%1 个文件的内容可能还保存在别处，未被覆写").arg(m_elsewhereCount.load()), Warning);
}

bool FileWipeWorker::deleteAll()
{
    log(tr("正在执行安全删除及元数据清理..."));
    // Unknown counts as standing; what a rename took away from under its path counts as gone.
    const auto mayStand = [](const QString &path) {
        const auto info = files().info(path);
        return info ? info.value().kind != FileKind::Folder : !isAbsent(info.status());
    };
    FileDeletion deletion([this](std::chrono::milliseconds time) { return waitUnlessStopped(time); });
    int failures = 0;
    for (qsizetype i = 0; i < m_list.files.size(); ++i) {
        if (isStopRequested())
            break;
        const QString &path = m_list.files.at(i);
        if (isToBeDeleted(i) && !deletion.secureDeleteFile(path) && mayStand(path)) {
            ++failures;
            log(tr("删除失败: %1").arg(displayText(path)), Warning);
            task().noteShortfall({ShortfallKind::EntryNotRemoved, path});
        }
        ++m_processedCount;
    }
    m_failedCount += failures;
    return failures == 0;
}

// Notes what has become of the entry since it was overwritten.
bool FileWipeWorker::isToBeDeleted(qsizetype index)
{
    const QString &path = m_list.files.at(index);
    const WatchedFile &file = watched(index);
    const auto info = files().info(path);
    const auto &found = file.found();
    if (!info) {
        const bool isRemoved = found && m_removed.contains(found->id);
        if (isAbsent(info.status()) && !isRemoved)
            task().noteShortfall({ShortfallKind::EntryVanished, path});
        return true;
    }
    if (file.isReplacedBy(info.value())) {
        noteReplaced(path);
        return false;
    }
    if (const qint64 grown = file.grownBy(info.value()); grown > 0)
        task().noteShortfall({ShortfallKind::EntryGrew, path, grown});
    if (task().files().size() > 1 && info.value().id.number != 0)
        m_removed.insert(info.value().id);
    return true;
}

// Only folders whose content was in the list: what could not be listed was not overwritten, and removing it
// would take it out of sight and leave it on the medium.
void FileWipeWorker::removeFolders()
{
    for (const QString &folder : std::as_const(m_list.folders)) {
        const auto info = files().info(folder);
        if (info && info.value().kind != FileKind::Folder)
            continue;
        const Status removed =
            info ? platform::Platform::current().folders().removeTree(folder) : info.status();
        if (removed || isAbsent(removed))
            continue;
        log(tr("无法删除文件夹: %1，错误码: %2").arg(displayText(folder), QString::number(removed.code)),
            Warning);
        task().noteShortfall({ShortfallKind::EntryNotRemoved, folder});
        traceFile(folder, removed);
    }
}

void FileWipeWorker::complete()
{
    const int samples = m_sampling.samplesRead();
    task().updateReport([samples](WipeReport &report) {
        report.verificationSampleSize = samples;
        report.verificationMethod = samples > 0 ? u"random sampling, 3 samples per file"_s : QString();
    });
}

void FileWipeWorker::logOutOfMemory() noexcept
{
    try {
        log(tr("内存分配失败"), Error);
    } catch (const std::bad_alloc &) {
        // Only the line is lost: the file counts as failed.
        qWarning("[FileWipe] out of memory");
    }
}

// Says why a file failed; always false.
bool FileWipeWorker::failFile(const QString &message, const QString &path, const Status &status)
{
    log(message.arg(displayText(path)), Error);
    traceFile(path, status);
    return false;
}
