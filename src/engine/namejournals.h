#pragma once

#include "engine/heldtree.h"
#include "engine/journalround.h"
#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"
#include "platform/volumejournal.h"

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

/// The file systems that keep names of what a job removes, in the blocks of removed folders and in their
/// journals, and what makes the names disappear. Nothing happens on file systems where nothing helps.
/// Worker's thread.
class NameJournals
{
    Q_DECLARE_TR_FUNCTIONS(FileWipeWorker)

public:
    /// Both outlive the object.
    NameJournals(RunningJob &job, HeldTree &tree)
        : m_job(job)
        , m_tree(tree)
        , m_round(job)
    {}

    /// Finds the journals of the file systems on which the folders lie.
    void find(const std::vector<HeldTree::Folder> &folders);
    bool isEmpty() const { return m_volumes.empty(); }

    /// Brings every removal so far to its place on the medium, beside the journals.
    void settle();
    /// Writes each journal round once, unless the job is to stop. Logs where names may stay.
    void writeRound();
    /// Removes what a round left after an exception, and closes the volumes.
    void letGo();

private:
    struct Volume
    {
        quint64 device = 0;
        QString path;                                       ///< of the job's uppermost folder on it
        std::unique_ptr<platform::VolumeJournal> journal{}; ///< null when it could not be opened
        platform::Status failure{};
    };

    HeldTree::Folder topOf(HeldTree::Folder folder) const;
    static void settle(Volume &volume);
    platform::Status writeRound(const Volume &volume);

    RunningJob &m_job;
    HeldTree &m_tree;
    std::unique_ptr<platform::AnchoredFolder> m_folder; // in which the round works
    JournalRound m_round;
    std::vector<Volume> m_volumes;
};
