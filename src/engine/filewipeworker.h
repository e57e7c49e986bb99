#pragma once

#include "engine/basewipeworker.h"
#include "engine/contentsurvey.h"
#include "engine/filecollector.h"
#include "engine/fileoverwriting.h"
#include "engine/fileremoval.h"
#include "engine/jobfiles.h"
#include "engine/namejournals.h"
#include "engine/repeatedfiles.h"

#include <chrono>
#include <cstddef>
#include <vector>

/// Shreds the files and folders of a task. Every pass overwrites all files in place on a pool of threads.
/// Then each file is cut, renamed and deleted, and the folders are removed.
///
/// A pass with one failed file ends the job before anything is deleted, because the user could otherwise no
/// longer erase the content of that file.
class FileWipeWorker : public BaseWipeWorker
{
    Q_OBJECT

public:
    explicit FileWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~FileWipeWorker() override;

public slots:
    void process() override;

private:
    bool run() override;
    void complete() override;
    bool shred();
    bool concludeJob(bool success);

    FileCollector::Observer observer();
    FileList collectFiles(const QStringList &targets);
    /// Asks for kind and size of the files from index @p first on, and takes mount points off the list.
    void measureFrom(std::size_t first);
    /// False for a file that does not belong to the list.
    bool measureFile(std::size_t file);
    bool isWithoutStreams(std::size_t file);
    void announceFiles();

    /// Adds the files that have appeared in the folders of the job since these were listed. Returns the index
    /// of the first added file, which is the count of files when none was added.
    std::size_t addLate();
    /// False when the job must not delete anything.
    bool overwriteAll();
    bool overwriteLate();
    /// Overwrites the files from index @p first on with every pass. The progress was announced without these
    /// files and does not change.
    bool overwriteFrom(std::size_t first);
    bool overwriteAgain(std::size_t index);
    bool failPass(int pass);
    void logContentElsewhere();
    void noteCloudCopies();
    bool eraseLate();
    /// Whether the files that were listed under two spellings are gone.
    bool areRepetitionsGone();
    void removeFolders();
    bool settleRemovals();

    int failedCount() const
    {
        return m_overwriting.failedCount() + m_removal.failedCount() + m_standingRepetitions;
    }

    void diagnose(const platform::Status &failure) override;

    JobFiles m_files{*this};
    SnapshotSurvey m_snapshots;
    FileRemoval m_removal;
    NameJournals m_journals{*this, m_files.tree()};
    qint64 m_singlePassTotal = 0; ///< bytes
    bool m_isTotalCertain = true; ///< the size of every present file is known
    bool m_isAllEmpty = true;     ///< no empty file has named streams
    qint64 m_inCloud = 0;         ///< files of which a cloud service keeps copies
    RepeatedFiles m_repeated{m_files.tree()};
    bool m_mayRepeat = false; ///< while the files of several targets are listed
    std::vector<FileEntry> m_repetitions;
    int m_standingRepetitions = 0;
    std::size_t m_overwrittenCount = 0; ///< files from index 0 on that received every pass
    FileOverwriting m_overwriting;      ///< the last member, because its threads must end first
};
