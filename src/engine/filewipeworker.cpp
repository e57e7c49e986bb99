#include "engine/filewipeworker.h"

#include "engine/filedeletion.h"
#include "engine/filetrace.h"
#include "engine/folderremoval.h"
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
#include <iterator>
#include <new>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using platform::EntryPath;
using platform::FileKind;
using platform::OpenMode;
using platform::Result;
using platform::Status;

namespace {

constexpr qint64 MiB = 1024LL * 1024;
constexpr qint64 SmallestBuffer = 256LL * 1024;
constexpr qint64 LargestBuffer = 16 * MiB;
constexpr int DefaultBufferMB = 4;
// Whoever writes faster than it is erased is not waited for.
constexpr int MostRounds = 10;

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
    for (std::size_t i = first; i < m_list.files.size(); ++i) {
        if (!checkPauseStop())
            return;
        if (!measureFile(i))
            continue;
        if (kept != i) {
            m_list.files[kept] = std::move(m_list.files[i]);
            m_watched[kept] = m_watched[i];
        }
        ++kept;
    }
    m_list.files.resize(kept);
    m_watched.resize(kept);
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
        m_progress.beginPass(m_currentPass, m_totalPasses, m_singlePassTotal);
        const bool passed = overwritePass(pattern, 0);
        m_bytesBeforePass += m_progress.bytesOfPass();
        if (!passed)
            return failPass(m_currentPass);
    }
    return !isStopRequested();
}

bool FileWipeWorker::failPass(int pass)
{
    log(tr("第 %1/%2 遍覆写出现失败文件，失败数: %3").arg(pass).arg(m_totalPasses).arg(m_failedCount), Error);
    return false;
}

bool FileWipeWorker::overwriteFrom(std::size_t first)
{
    noteReadBack(true);
    m_isLate = true;
    int pass = 0;
    const QList<PassPattern> passes = task().method().passes;
    for (const PassPattern &pattern : passes) {
        ++pass;
        if (isStopRequested())
            return false;
        if (!overwritePass(pattern, first))
            return failPass(pass);
    }
    return !isStopRequested();
}

// One file on this thread.
bool FileWipeWorker::overwriteAgain(std::size_t index)
{
    noteReadBack(true);
    m_isLate = true;
    const QList<PassPattern> passes = task().method().passes;
    return std::ranges::all_of(passes, [this, index](const PassPattern &pattern) {
        return overwriteJob(index, pattern, drawSeed());
    });
}

bool FileWipeWorker::overwriteLate()
{
    for (int round = 0; round < MostRounds; ++round) {
        m_overwrittenCount = m_list.files.size();
        const std::size_t first = addLate();
        if (first == m_list.files.size())
            break;
        if (!overwriteFrom(first))
            return false;
        m_overwrittenCount = m_list.files.size();
    }
    return !isStopRequested();
}

// What appeared while files were deleted.
bool FileWipeWorker::eraseLate()
{
    bool success = true;
    for (int round = 0; round < MostRounds && success; ++round) {
        const std::size_t first = addLate();
        if (first == m_list.files.size())
            break;
        success = overwriteFrom(first);
        if (!success)
            break;
        m_overwrittenCount = m_list.files.size();
        success = deleteFrom(first);
    }
    return success;
}

bool FileWipeWorker::overwritePass(const PassPattern &pattern, std::size_t first)
{
    const auto batchSize = static_cast<std::size_t>(std::max(2 * m_pool.threadCount(), 1));
    const std::size_t end = m_list.files.size();
    bool passed = true;
    for (; first < end && !isStopRequested(); first += batchSize) {
        if (!checkPauseStop())
            return false;
        const int failures = overwriteBatch(first, std::min(batchSize, end - first), pattern);
        m_failedCount += failures;
        passed = passed && failures == 0;
    }
    return passed;
}

int FileWipeWorker::overwriteBatch(std::size_t first, std::size_t count, const PassPattern &pattern)
{
    std::vector<FilePool::Job> jobs;
    jobs.reserve(count);
    for (std::size_t i = first; i < first + count; ++i) {
        jobs.push_back([this, i, pattern, seed = drawSeed()] { return overwriteJob(i, pattern, seed); });
    }
    return m_pool.run(std::move(jobs));
}

bool FileWipeWorker::overwriteJob(std::size_t index, const PassPattern &pattern, quint32 seed) noexcept
{
    try {
        return overwriteExisting(index, pattern, seed);
    } catch (const std::bad_alloc &) {
        logOutOfMemory();
    }
    return false;
}

bool FileWipeWorker::overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed)
{
    const auto place = entry(index);
    const auto info = place ? files().info(place.value()) : place.status();
    if (!info && !isAbsent(info.status()))
        return failFile(tr("无法打开文件(WinAPI): %1"), pathOf(index), info.status());
    if (!info) {
        // Not a failure, but nobody knows where its content is now.
        watched(index).vanish();
        return true;
    }
    watched(index).find(info.value());
    // What took its place was not chosen, and where its content is now nobody knows.
    if (watched(index).isReplacedBy(info.value())) {
        noteReplaced(pathOf(index));
        return true;
    }
    if (info.value().kind != FileKind::Regular)
        return true;
    return overwriteFile(index, place.value(), info.value().size, pattern, seed);
}

bool FileWipeWorker::overwriteFile(std::size_t index, const EntryPath &entry, qint64 size,
                                   const PassPattern &pattern, quint32 seed)
{
    const QString path = entry.path();
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
    traceFile(path, files().clearReadOnly(entry));
    {
        const auto opened = files().open(entry, OpenMode::Overwrite);
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
    return verifyFile(index, entry, size, pattern);
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
        if (!m_isLate)
            m_progress.add(chunk);
    }
    return true;
}

bool FileWipeWorker::verifyFile(std::size_t index, const EntryPath &entry, qint64 size,
                                const PassPattern &pattern)
{
    const auto matches = [&pattern](const std::byte *data, qint64 length) {
        return verifyBuffer(data, length, pattern);
    };
    const auto isAnother = [this, index](platform::FileHandle &opened) {
        return watched(index).isReplacedBy(opened);
    };
    switch (m_sampling.check(entry, size, matches, isAnother)) {
    case FileSampling::Outcome::Passed:
        return true;
    case FileSampling::Outcome::Replaced:
        noteReplaced(entry.path());
        return true;
    case FileSampling::Outcome::Different:
        log(tr("验证失败: %1").arg(displayText(entry.path())), Error);
        return false;
    case FileSampling::Outcome::Unreadable:
        break;
    }
    return false;
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

bool FileWipeWorker::deleteFrom(std::size_t first)
{
    FileDeletion deletion([this](std::chrono::milliseconds time) { return waitUnlessStopped(time); });
    int failures = 0;
    for (std::size_t i = first; i < m_list.files.size(); ++i) {
        if (isStopRequested())
            break;
        if (!deleteFile(deletion, i)) {
            ++failures;
            log(tr("删除失败: %1").arg(displayText(pathOf(i))), Warning);
            task().noteShortfall({ShortfallKind::EntryNotRemoved, pathOf(i)});
        }
        if (i < m_firstCount)
            ++m_processedCount;
    }
    m_failedCount += failures;
    return failures == 0;
}

// False when it stands under its name.
bool FileWipeWorker::deleteFile(FileDeletion &deletion, std::size_t index)
{
    const auto place = entry(index);
    if (!place) {
        if (isAbsent(place.status()))
            watched(index).vanish();
        return isAbsent(place.status());
    }
    if (const auto info = files().info(place.value()); info) {
        if (watched(index).isReplacedBy(info.value())) {
            noteReplaced(pathOf(index));
            return true;
        }
        if (!overwriteGrown(index, place.value(), info.value()))
            return isStopRequested();
    }
    if (deletion.secureDeleteFile(place.value(), &watched(index))) {
        if (deletion.found() == FileDeletion::Found::Nothing)
            watched(index).vanish();
        else
            watched(index).remove();
        return true;
    }
    if (deletion.found() == FileDeletion::Found::Another) {
        noteReplaced(pathOf(index));
        return true;
    }
    if (deletion.leftAt())
        m_left.push_back({m_list.files[index].folder, deletion.leftAt()->name()});
    // Unknown counts as standing; what a rename took away from under its path counts as gone.
    const auto info = files().info(place.value());
    return info ? info.value().kind == FileKind::Folder : isAbsent(info.status());
}

// What a file has gained since its passes is to be gone as the rest of it. False when it could not be
// written.
bool FileWipeWorker::overwriteGrown(std::size_t index, const EntryPath &entry,
                                    const platform::FileInfo &found)
{
    qint64 grown = watched(index).grownBy(found);
    for (int round = 0; grown > 0 && round < MostRounds; ++round) {
        watched(index).beginAnew();
        if (!overwriteAgain(index))
            return false;
        const auto info = files().info(entry);
        grown = info ? watched(index).grownBy(info.value()) : 0;
    }
    if (grown > 0)
        task().noteShortfall({ShortfallKind::EntryGrew, entry.path(), grown});
    return true;
}

// What was removed under another name, or under another spelling of its path, has not vanished.
void FileWipeWorker::noteVanished()
{
    if (std::ranges::none_of(m_watched, &WatchedFile::isVanished))
        return;
    QSet<platform::FileId> removed;
    for (const WatchedFile &file : m_watched) {
        if (file.isRemoved() && file.found() && file.found()->id.number != 0)
            removed.insert(file.found()->id);
    }
    for (std::size_t i = 0; i < m_watched.size(); ++i) {
        const auto &found = m_watched[i].found();
        if (m_watched[i].isVanished() && !(found && removed.contains(found->id)))
            task().noteShortfall({ShortfallKind::EntryVanished, pathOf(i)});
    }
}

// A stop may have left files of the folders that are removed next. They received every pass; what did not is
// not removed with them, since that would take it out of sight and leave it on the medium.
void FileWipeWorker::removeRest()
{
    const std::vector<HeldTree::Folder> tops = FolderRemoval::topsAmong(m_tree, m_list.folders);
    const auto isMeant = [&tops](const FileEntry &file) {
        return tops[static_cast<std::size_t>(file.folder)] != HeldTree::None;
    };
    for (std::size_t i = 0; i < m_overwrittenCount; ++i) {
        const WatchedFile &file = watched(i);
        if (file.isRemoved() || !isMeant(m_list.files[i]))
            continue;
        const auto place = entry(i);
        const auto info = place ? files().info(place.value()) : place.status();
        if (!info || info.value().kind == FileKind::Folder || file.isReplacedBy(info.value()) ||
            file.grownBy(info.value()) > 0)
            continue;
        traceFile(pathOf(i), files().remove(place.value()));
    }
    for (const FileEntry &left : m_left) {
        const auto place = m_tree.entry(left.folder, left.name);
        if (place && isMeant(left))
            traceFile(place.value().path(), files().remove(place.value()));
    }
}

// Only folders whose content was in the list: what could not be listed was not overwritten, and removing it
// would take it out of sight and leave it on the medium.
void FileWipeWorker::removeFolders()
{
    const auto standing = [this](const QString &folder, const Status &status) {
        log(tr("无法删除文件夹: %1，错误码: %2").arg(displayText(folder), QString::number(status.code)),
            Warning);
        task().noteShortfall({ShortfallKind::EntryNotRemoved, folder});
        traceFile(folder, status);
    };
    const auto replaced = [this](const QString &folder) {
        task().noteShortfall({ShortfallKind::EntryReplaced, folder});
    };
    FolderRemoval(m_tree, {.replaced = replaced, .standing = standing}).remove(m_list.folders);
}

void FileWipeWorker::complete()
{
    // A volume can be unmounted as soon as the job is over.
    m_tree.releaseAll();
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
