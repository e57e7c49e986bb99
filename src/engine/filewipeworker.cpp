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
#include <functional>
#include <iterator>
#include <new>
#include <vector>

using namespace Qt::StringLiterals;
using platform::FileKind;
using platform::Status;

namespace {

FileOverwriting::Settings settingsOf(const WipeTask &task)
{
    return {.threads = task.threadCount() >= 1 ? task.threadCount() : QThread::idealThreadCount(),
            .bufferSizeMB = task.bufferSizeMB(),
            .readsBack = task.verifyAfterWipe()};
}

} // namespace

FileWipeWorker::FileWipeWorker(WipeTask *task, QObject *parent)
    : BaseWipeWorker(task, parent)
    , m_removal(*this, m_files, [this](std::size_t index) { return overwriteAgain(index); })
    , m_overwriting(*this, m_files, settingsOf(*task), this)
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
        m_files.list() = {}; // frees most of the memory
        throw;
    }
}

bool FileWipeWorker::shred()
{
    note(tr("正在扫描目标文件..."));
    m_files.list() = collectFiles(task().files());
    if (isStopRequested())
        return concludeJob(false);
    if (m_files.list().files.empty()) {
        removeFolders();
        m_journals.writeRound();
        reportError(tr("没有找到要擦除的文件"));
        return false;
    }
    measureFrom(0);
    m_mayRepeat = false;
    if (isStopRequested())
        return concludeJob(false);
    announceFiles();
    const bool isOverwritten = overwriteAll() && overwriteLate();
    logContentElsewhere();
    if (!isOverwritten)
        return concludeJob(false);
    note(tr("正在执行安全删除及元数据清理..."));
    bool success = m_removal.deleteFrom(0);
    success = eraseLate() && success;
    success = success && areRepetitionsGone();
    m_removal.removeRest(m_overwrittenCount);
    removeFolders();
    success = settleRemovals() && success;
    m_journals.writeRound();
    return concludeJob(success);
}

bool FileWipeWorker::concludeJob(bool success)
{
    m_files.noteVanished();
    noteCloudCopies();
    if (isStopRequested()) {
        note(tr("擦除任务已由用户取消"), Warning);
        return false;
    }
    const int failed = failedCount() + m_files.list().unreadable;
    if (success && failed == 0) {
        note(tr("所有文件擦除成功！共处理 %1 个文件").arg(m_removal.processedCount()));
        return true;
    }
    note(tr("擦除完成，但有 %1 个文件失败。数据可能不安全！").arg(failed), Error);
    return false;
}

FileCollector::Observer FileWipeWorker::observer()
{
    // A success means that everything under the targets is gone, so an unreadable entry makes the job fail.
    const auto unreadable = [this](FileCollector::Unreadable what, const QString &path,
                                   const Status &status) {
        if (status.code == platform::FileOffline) {
            note(tr("文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1").arg(displayText(path)), Error);
        } else {
            const QString text = what == FileCollector::Unreadable::Folder
                                     ? tr("无法读取文件夹: %1，错误码: %2")
                                     : tr("无法访问: %1，错误码: %2");
            note(text.arg(displayText(path), QString::number(status.code)), Error);
        }
        traceFile(path, status);
    };
    return {.goOn = [this] { return checkPauseStop(); },
            .unreadable = unreadable,
            .mounted = [this](const QString &path) { m_files.noteMounted(path); },
            .replaced = [this](const QString &path) { m_files.noteReplaced(path); },
            .vanished =
                [this](const QString &path) {
                    noteShortfall({ShortfallKind::EntryVanished, path});
                }};
}

FileList FileWipeWorker::collectFiles(const QStringList &targets)
{
    m_mayRepeat = targets.size() > 1;
    return FileCollector(m_files.tree(), observer()).collect(targets, task().targetIdentities());
}

void FileWipeWorker::measureFrom(std::size_t first)
{
    m_files.watchAll();
    m_files.keepFrom(
        first, [this](std::size_t file) { return measureFile(file); }, [this] { return checkPauseStop(); });
}

bool FileWipeWorker::measureFile(std::size_t file)
{
    const auto info = m_files.look(file);
    if (!info) {
        m_isTotalCertain = m_isTotalCertain && info.status().isAbsent();
        if (info.status().isAbsent())
            m_files.watched(file).vanish();
        return true;
    }
    if (info.value().isMounted && info.value().kind != FileKind::Folder) {
        m_files.noteMounted(m_files.pathOf(file));
        return false;
    }
    m_files.watched(file).find(info.value());
    if (info.value().kind != FileKind::Regular)
        return true;
    // A file that is found twice later was renamed during the job and must be overwritten.
    if (m_mayRepeat && m_repeated.isRepeated(m_files.list().files[file], info.value())) {
        m_repetitions.push_back(m_files.list().files[file]);
        return false;
    }
    m_singlePassTotal += info.value().size;
    if (const auto note = m_snapshots.noteFor(info.value().id, [&] { return m_files.pathOf(file); }))
        noteShortfall(*note);
    if (info.value().isInCloud)
        ++m_inCloud;
    if (info.value().size == 0)
        m_isAllEmpty = m_isAllEmpty && isWithoutStreams(file);
    if (info.value().linkCount > 1) {
        const qint64 others = info.value().linkCount - 1;
        note(tr("文件还有 %1 个其他硬链接: %2")
                 .arg(QString::number(others), displayText(m_files.pathOf(file))),
             Warning);
        noteShortfall({ShortfallKind::OtherNames, m_files.pathOf(file), -1, others});
    }
    return true;
}

// A failed query counts as "may have streams".
bool FileWipeWorker::isWithoutStreams(std::size_t file)
{
    const auto place = m_files.entry(file);
    const auto streams =
        place ? platform::Platform::current().files().namedStreams(place.value()) : place.status();
    return streams.status().isAbsent() || (streams && streams.value().isEmpty());
}

std::size_t FileWipeWorker::addLate()
{
    const std::size_t first = m_files.count();
    FileList &list = m_files.list();
    if (list.folders.empty() || isStopRequested())
        return first;
    std::vector<FileEntry> known = list.files;
    known.insert(known.end(), m_files.left().begin(), m_files.left().end());
    known.insert(known.end(), m_repetitions.begin(), m_repetitions.end());
    FileList late =
        FileCollector(m_files.tree(), observer()).collectNew(list.folders, FileIndex(m_files.tree(), known));
    list.unreadable += late.unreadable;
    std::ranges::move(late.files, std::back_inserter(list.files));
    const qint64 announced = m_singlePassTotal;
    measureFrom(first);
    m_singlePassTotal = announced;
    if (m_files.count() > first)
        note(tr("任务期间又出现 %1 个文件，同样进行擦除").arg(m_files.count() - first), Warning);
    return first;
}

void FileWipeWorker::announceFiles()
{
    m_removal.countUpTo(m_files.count());
    m_totalPasses = task().method().passCount();
    task().updateReport([this](WipeReport &report) {
        report.fileCount = static_cast<qint32>(m_files.count());
        report.totalBytes = static_cast<quint64>(m_singlePassTotal);
    });
    note(tr("准备擦除 %1 个文件，单遍总大小 %2")
             .arg(QString::number(m_files.count()), formatSize(m_singlePassTotal)));
    if (!task().targetsAreNamed())
        return;
    for (const QString &link : linksAmong(task().files()))
        noteShortfall({ShortfallKind::LinkTarget, link});
}

bool FileWipeWorker::overwriteAll()
{
    m_bytesBeforePass = 0;
    // With an unknown size or a named stream there may be content although the total is 0.
    if (m_singlePassTotal <= 0 && m_isTotalCertain && m_isAllEmpty) {
        note(tr("所有文件为空，跳过数据覆写"));
        return !isStopRequested();
    }
    noteReadBack(true);
    const QList<PassPattern> passes = task().method().passes;
    for (const PassPattern &pattern : passes) {
        if (isStopRequested())
            return false;
        ++m_currentPass;
        emit passChanged(m_currentPass, m_totalPasses);
        m_overwriting.progress().beginPass(m_currentPass, m_totalPasses, m_singlePassTotal);
        const bool passed = m_overwriting.overwriteFrom(0, pattern);
        m_bytesBeforePass += m_overwriting.progress().bytesOfPass();
        if (!passed)
            return failPass(m_currentPass);
    }
    return !isStopRequested();
}

bool FileWipeWorker::overwriteLate()
{
    for (int round = 0; round < FileRemoval::MostRounds; ++round) {
        m_overwrittenCount = m_files.count();
        const std::size_t first = addLate();
        if (first == m_files.count())
            break;
        if (!overwriteFrom(first))
            return false;
        m_overwrittenCount = m_files.count();
    }
    return !isStopRequested();
}

bool FileWipeWorker::overwriteFrom(std::size_t first)
{
    noteReadBack(true);
    m_overwriting.beLate();
    int pass = 0;
    const QList<PassPattern> passes = task().method().passes;
    for (const PassPattern &pattern : passes) {
        ++pass;
        if (isStopRequested())
            return false;
        if (!m_overwriting.overwriteFrom(first, pattern))
            return failPass(pass);
    }
    return !isStopRequested();
}

bool FileWipeWorker::overwriteAgain(std::size_t index)
{
    noteReadBack(true);
    m_overwriting.beLate();
    const QList<PassPattern> passes = task().method().passes;
    return std::ranges::all_of(passes, [this, index](const PassPattern &pattern) {
        return m_overwriting.overwriteOne(index, pattern);
    });
}

bool FileWipeWorker::failPass(int pass)
{
    note(tr("第 %1/%2 遍覆写出现失败文件，失败数: %3").arg(pass).arg(m_totalPasses).arg(failedCount()),
         Error);
    return false;
}

// One line for all files, because there may be a great many.
void FileWipeWorker::logContentElsewhere()
{
    if (m_overwriting.elsewhereCount() > 0)
        note(tr("%1 个文件的内容可能还保存在别处，未被覆写").arg(m_overwriting.elsewhereCount()), Warning);
}

// The service stores the overwritten content as a new version and keeps the old ones.
void FileWipeWorker::noteCloudCopies()
{
    if (m_inCloud == 0)
        return;
    note(tr("%1 个文件由云服务同步，云端可能仍保留其副本和历史版本").arg(m_inCloud), Warning);
    noteShortfall({ShortfallKind::CloudCopy, {}, -1, m_inCloud});
}

// Erases the files that appeared while others were deleted.
bool FileWipeWorker::eraseLate()
{
    bool success = true;
    for (int round = 0; round < FileRemoval::MostRounds && success; ++round) {
        const std::size_t first = addLate();
        if (first == m_files.count())
            break;
        success = overwriteFrom(first);
        if (!success)
            break;
        m_overwrittenCount = m_files.count();
        success = m_removal.deleteFrom(first);
    }
    return success;
}

// On some file systems two different files can have the same number, so each repetition is looked up.
bool FileWipeWorker::areRepetitionsGone()
{
    const int before = m_standingRepetitions;
    for (const FileEntry &file : m_repetitions) {
        const auto place = m_files.tree().entry(file.folder, file.name);
        const auto found = place ? platform::Platform::current().files().info(place.value()) : place.status();
        if (found.status().isAbsent())
            continue;
        const QString path = m_files.tree().path(file.folder, file.name);
        ++m_standingRepetitions;
        note(tr("删除失败: %1").arg(displayText(path)), Warning);
        noteShortfall({ShortfallKind::EntryNotRemoved, path});
    }
    return m_standingRepetitions == before || isStopRequested();
}

void FileWipeWorker::removeFolders()
{
    m_journals.find(m_removal.foldersOfNames());
    m_removal.removeFolders(m_journals.isEmpty() ? std::function<void()>() : [this] { m_journals.settle(); });
}

// The last removals may still be in the cache, and a removal counts only once it is on the medium.
bool FileWipeWorker::settleRemovals()
{
    const int failures = failedCount();
    for (const DurabilityGroups::Closed &closed : m_removal.settle()) {
        if (closed.status)
            continue;
        m_overwriting.tellLost(closed.members, closed.status);
        for (const DurabilityGroups::Member &member : closed.members)
            noteShortfall({ShortfallKind::EntryNotRemoved, m_files.pathOf(member.file)});
    }
    return failedCount() == failures;
}

void FileWipeWorker::diagnose(const platform::Status &failure)
{
    traceFile(QString(), failure);
}

void FileWipeWorker::complete()
{
    // Open handles would keep the user from unmounting the volume.
    m_journals.letGo();
    for (const DurabilityGroups::Closed &closed : m_removal.settle())
        traceFile(QString(), closed.status);
    m_files.tree().releaseAll();
    const int samples = m_overwriting.samplesRead();
    task().updateReport([samples](WipeReport &report) {
        report.verificationSampleSize = samples;
        report.verificationMethod = samples > 0 ? u"random sampling, 3 samples per file"_s : QString();
    });
}
