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

// Shreds the files and folders of a task: every pass overwrites all files in place on a pool of threads, then
// each file is cut, renamed and deleted, then the folders are removed. A pass in which one file failed is the
// last thing that happens: nothing is deleted then, so that the user still has what could not be erased.
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
    // Looks at the files from this one on; what is mounted over a name is taken off the list.
    void measureFrom(std::size_t first);
    bool measureFile(std::size_t file);
    bool isWithoutStreams(std::size_t file);
    void announceFiles();

    // Adds what has appeared in the folders of the job since they were listed. The number of the first file.
    std::size_t addLate();
    // False when the job is not to delete anything.
    bool overwriteAll();
    bool overwriteLate();
    // Lets the files from this one on receive every pass, without a word of progress.
    bool overwriteFrom(std::size_t first);
    bool overwriteAgain(std::size_t index);
    bool failPass(int pass);
    void logContentElsewhere();
    void noteCloudCopies();
    bool eraseLate();
    // Whether the files went that were listed under another spelling too.
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
    qint64 m_singlePassTotal = 0; // bytes
    bool m_isTotalCertain = true; // the size of every file that stands was told
    bool m_isAllEmpty = true;     // no file without content has streams
    qint64 m_inCloud = 0;         // files of which a cloud service keeps copies
    RepeatedFiles m_repeated{m_files.tree()};
    bool m_mayRepeat = false; // as long as the targets are looked at, when there are several
    std::vector<FileEntry> m_repetitions;
    int m_standingRepetitions = 0;
    std::size_t m_overwrittenCount = 0; // files from the beginning that received every pass
    FileOverwriting m_overwriting;      // destroyed first, with its threads
};
