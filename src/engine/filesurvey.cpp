#include "engine/filesurvey.h"

#include "engine/contentsurvey.h"
#include "engine/filecollector.h"
#include "engine/filelist.h"
#include "engine/heldtree.h"
#include "engine/repeatedfiles.h"
#include "model/displaytext.h"
#include "model/formatsize.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/platform.h"

#include <cstddef>
#include <vector>

using platform::EntryPath;
using platform::FileInfo;
using platform::FileKind;
using platform::Result;
using platform::Status;

namespace {

class Surveyor
{
public:
    Surveyor(const WipeTask &task, const std::function<bool()> &shallStop, int mostContentQuestions)
        : m_task(task)
        , m_shallStop(shallStop)
        , m_questionsLeft(mostContentQuestions)
    {}

    FileSurvey survey()
    {
        const QStringList targets = m_task.files();
        m_list = FileCollector(m_tree, observer()).collect(targets, m_task.targetIdentities());
        std::size_t first = 0;
        for (std::size_t target = 0; target < m_list.ends.size(); ++target) {
            lookAtTarget(targets.at(static_cast<qsizetype>(target)), first, m_list.ends[target]);
            first = m_list.ends[target];
        }
        m_survey.isComplete = m_survey.isComplete && m_list.unreadable == 0 && !m_shallStop();
        return m_survey;
    }

private:
    FileCollector::Observer observer()
    {
        const auto missing = [this](const QString &) { m_survey.isComplete = false; };
        return {.goOn = [this] { return !m_shallStop(); },
                .unreadable = [](FileCollector::Unreadable, const QString &, const Status &) {},
                .mounted = [this](const QString &path) { m_survey.mounted.append(path); },
                .replaced = missing,
                .vanished = missing};
    }

    void lookAtTarget(const QString &target, std::size_t first, std::size_t end)
    {
        bool isAsked = m_questionsLeft > 0;
        for (std::size_t i = first; i < end && !m_shallStop(); ++i) {
            const FileEntry &file = m_list.files[i];
            const Result<EntryPath> entry = m_tree.entry(file.folder, file.name);
            const auto info =
                entry ? platform::Platform::current().files().info(entry.value()) : entry.status();
            if (!info) {
                m_survey.isComplete = m_survey.isComplete && info.status().isAbsent();
                continue;
            }
            if (info.value().isMounted && info.value().kind != FileKind::Folder) {
                m_survey.mounted.append(m_tree.path(file.folder, file.name));
                continue;
            }
            if (m_task.files().size() > 1 && m_repeated.isRepeated(file, info.value()))
                continue;
            count(file, info.value());
            if (isAsked && info.value().kind == FileKind::Regular)
                isAsked = askForContent(target, entry.value());
        }
    }

    // Returns whether to ask the other files of the target too. After the last question the folder itself is
    // asked for the rest of its files.
    bool askForContent(const QString &target, const EntryPath &file)
    {
        const bool isLast = m_questionsLeft == 0;
        const bool isElsewhere = isKeptElsewhere(isLast ? EntryPath(target) : file);
        if (!isLast)
            --m_questionsLeft;
        if (isElsewhere)
            m_survey.keptElsewhere.append(target);
        return !isElsewhere && !isLast;
    }

    void count(const FileEntry &file, const FileInfo &info)
    {
        ++m_survey.files;
        if (info.kind != FileKind::Regular)
            return;
        m_survey.bytes += static_cast<quint64>(info.size);
        if (const auto note =
                m_snapshots.noteFor(info.id, [&] { return m_tree.path(file.folder, file.name); }))
            m_survey.snapshots.append(*note);
        if (info.isInCloud)
            ++m_survey.filesInCloud;
        if (info.linkCount > 1)
            ++m_survey.filesWithOtherNames;
        if (info.allocatedBytes < 0 || info.allocatedBytes >= info.size)
            return;
        FileSurvey::Room &room = m_survey.rooms[info.id.device];
        if (room.place.isEmpty())
            room.place = m_tree.path(file.folder, file.name);
        room.holeBytes += info.size - info.allocatedBytes;
    }

    const WipeTask &m_task;
    const std::function<bool()> &m_shallStop;
    int m_questionsLeft;
    HeldTree m_tree;
    RepeatedFiles m_repeated{m_tree};
    FileList m_list;
    SnapshotSurvey m_snapshots;
    FileSurvey m_survey;
};

} // namespace

QString FileSurvey::otherNamesText() const
{
    if (filesWithOtherNames == 0)
        return {};
    return filesWithOtherNames == 1
               ? tr("1 file has further names; its content is erased under these too")
               : tr("%1 files have further names; their content is erased under these too")
                     .arg(filesWithOtherNames);
}

std::optional<Refusal> FileSurvey::roomProblem() const
{
    for (const Room &room : rooms) {
        const auto space = platform::Platform::current().folders().space(room.place);
        // Some file systems in memory report no total size.
        if (!space || space.value().totalBytes <= 0 || room.holeBytes <= space.value().availableBytes)
            continue;
        return Refusal{
            tr("Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. "
               "Nothing was written.")
                .arg(displayText(room.place), formatSize(room.holeBytes),
                     formatSize(space.value().availableBytes))};
    }
    return {};
}

FileSurvey surveyFiles(const WipeTask &task, const std::function<bool()> &shallStop, int mostContentQuestions)
{
    return Surveyor(task, shallStop, mostContentQuestions).survey();
}
