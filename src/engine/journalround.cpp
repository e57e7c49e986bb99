#include "engine/journalround.h"

#include "engine/leftovers.h"

#include <QRandomGenerator>

#include <algorithm>

using platform::Status;

namespace {

// The file system logs a block once in a commit, however often it was changed. Few files need many commits,
// each of which waits for the device; many take long to create and to remove.
constexpr qint64 CommitsOfRound = 8;
constexpr qint64 FewestFiles = 64;
constexpr qint64 MostFiles = 8192;

// Beyond its size, for blocks of the journal that belong to no round, such as its own first one.
qint64 roundOf(qint64 size)
{
    return size + size / 16;
}

// A device that has not taken one round after so many bytes is not where the journal lies.
qint64 mostOf(qint64 size)
{
    return 3 * size;
}

bool isWithoutRoom(const Status &status)
{
    return status.code == platform::DiskFull || status.code == platform::DiskQuotaExceeded;
}

} // namespace

Status JournalRound::run(platform::AnchoredFolder &beside)
{
    LeftOvers(beside).remove();
    Status status = m_folder.create(beside);
    if (!status)
        return status;
    status = writeRound();
    clean();
    return status;
}

void JournalRound::clean()
{
    m_names.clear();
    if (!m_folder.exists())
        return;
    m_folder.removeFiles();
    if (const Status removed = m_folder.remove(); !removed)
        m_job.diagnose(removed);
}

Status JournalRound::writeRound()
{
    const auto opened = m_folder.folder().journal();
    if (!opened)
        return opened.status();
    platform::VolumeJournal &journal = *opened.value();
    if (const Status created = createFiles(journal.size() / journal.blockSize() / CommitsOfRound); !created)
        return created;
    // Marks of several rounds on one file system must not meet.
    m_mark = QRandomGenerator::system()->generate64();
    // What was removed before has to be in the journal when the round begins.
    Status status = changeBlocks(journal);
    const auto before = journal.written();
    if (!status || !before)
        return status ? before.status() : status;
    qint64 taken = 0;
    for (qint64 logged = 0; logged < roundOf(journal.size()) || taken < roundOf(journal.size());) {
        if (logged > mostOf(journal.size()))
            return {platform::NotSupported, 0, "journal"};
        if (status = changeBlocks(journal); !status)
            return status;
        logged += m_names.size() * journal.blockSize();
        const auto now = journal.written();
        if (!now)
            return now.status();
        taken = now.value() - before.value();
    }
    return {};
}

Status JournalRound::createFiles(qint64 wanted)
{
    Status status;
    const qint64 files = std::clamp(wanted, FewestFiles, MostFiles);
    while (status && m_names.size() < files) {
        if (!m_job.mayGoOn())
            return {platform::RequestAborted, 0, "journal"};
        auto file = m_folder.createFile();
        status = file.status();
        if (file)
            m_names.append(m_folder.nameOfLast());
    }
    return m_names.size() >= FewestFiles && isWithoutRoom(status) ? Status{} : status;
}

// On a volume without much room the files that have a block are enough.
Status JournalRound::changeBlocks(platform::VolumeJournal &journal)
{
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        if (!m_job.mayGoOn())
            return {platform::RequestAborted, 0, "journal"};
        const Status changed = journal.changeBlock(m_names[i], ++m_mark);
        if (changed)
            continue;
        if (i < FewestFiles || !isWithoutRoom(changed))
            return changed;
        m_names.resize(i);
    }
    return journal.commit();
}
