#pragma once

#include "engine/basewipeworker.h"
#include "engine/durabilitygroups.h"
#include "engine/filecollector.h"
#include "engine/filepool.h"
#include "engine/fileprogress.h"
#include "engine/filesampling.h"
#include "engine/heldtree.h"
#include "engine/watchedfile.h"

#include <QSet>

#include <atomic>
#include <cstddef>
#include <functional>
#include <vector>

class FileDeletion;

namespace platform {
class AlignedBuffer;
class FileHandle;
} // namespace platform

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
    // Whoever writes faster than it is erased is not waited for.
    static constexpr int MostRounds = 10;

    bool run() override;
    void complete() override;
    bool shred();
    bool concludeJob(bool success);

    // Numbers of files count from the beginning of the list.
    WatchedFile &watched(std::size_t file) { return m_watched[file]; }
    platform::Result<platform::EntryPath> entry(std::size_t file);
    platform::Result<platform::FileInfo> look(std::size_t file);
    QString pathOf(std::size_t file) const;

    FileCollector::Observer observer();
    FileList collectFiles(const QStringList &targets);
    // Looks at the files from this one on; what is mounted over a name is taken off the list.
    void measureFrom(std::size_t first);
    bool measureFile(std::size_t file);
    void announceFiles();
    void noteMounted(const QString &path);

    // Adds what has appeared in the folders of the job since they were listed. The number of the first file.
    std::size_t addLate();
    // Lets the files from this one on receive every pass, without a word of progress.
    bool overwriteFrom(std::size_t first);
    // False when the job is not to delete anything.
    bool overwriteAll();
    bool overwriteAgain(std::size_t index);
    bool overwriteLate();
    bool failPass(int pass);
    bool overwritePass(const PassPattern &pattern, std::size_t first);
    // Waits for the device; the files that are on the medium now.
    std::vector<DurabilityGroups::Member> settle(DurabilityGroups &groups);
    void tellLost(const std::vector<DurabilityGroups::Member> &members, const platform::Status &status);
    bool readBack(const std::vector<DurabilityGroups::Member> &members, const PassPattern &pattern);
    // Jobs 0 to count - 1, a batch at a time; false when one failed.
    bool runBatches(std::size_t count, std::size_t atOnce,
                    const std::function<FilePool::Job(std::size_t)> &jobOf);
    std::size_t batchSize() const;

    // On pool threads, from here ... groups: null to have each file on the medium when its job ends.
    bool overwriteJob(std::size_t index, const PassPattern &pattern, quint32 seed,
                      DurabilityGroups *groups) noexcept;
    bool overwriteExisting(std::size_t index, const PassPattern &pattern, quint32 seed,
                           DurabilityGroups *groups);
    bool overwriteFile(std::size_t index, const platform::EntryPath &entry, qint64 size,
                       const PassPattern &pattern, quint32 seed, DurabilityGroups *groups);
    bool isToBeReadBack(const PassPattern &pattern) const;
    bool readBackJob(const DurabilityGroups::Member &member, const PassPattern &pattern) noexcept;
    bool writeChunks(platform::FileHandle &file, const QString &path, qint64 size, const PassPattern &pattern,
                     quint32 seed, platform::AlignedBuffer &buffer);
    bool verifyFile(std::size_t index, const platform::EntryPath &entry, qint64 size,
                    const PassPattern &pattern);
    void noteReplaced(const QString &path);
    void notePlace(const QString &path, const platform::Result<platform::ContentPlace> &place);
    // ... to here.
    void logContentElsewhere();

    bool deleteFrom(std::size_t first);
    bool deleteFile(FileDeletion &deletion, std::size_t index);
    bool eraseLate();
    bool overwriteGrown(std::size_t index, const platform::EntryPath &entry, const platform::FileInfo &found);
    void noteVanished();
    void removeRest();
    void removeFolders();
    bool settleRemovals();

    void logOutOfMemory() noexcept;
    bool failFile(const QString &message, const QString &path, const platform::Status &status);

    HeldTree m_tree;
    FileList m_list;
    std::vector<WatchedFile> m_watched;   // the files of the list; each used by the one job that has its file
    std::vector<FileEntry> m_left;        // what stands under a name that the list does not have
    QSet<QString> m_mounted;              // paths of what is not to be entered
    DurabilityGroups m_removals;          // of the delete stage
    std::atomic<int> m_elsewhereCount{0}; // files whose content may lie elsewhere too
    qint64 m_singlePassTotal = 0;         // bytes
    bool m_isTotalCertain = true;         // the size of every file that stands was told
    std::size_t m_firstCount = 0;         // files that the scan found; the others appeared later
    std::size_t m_overwrittenCount = 0;   // files from the beginning that received every pass
    bool m_isLate = false;                // what is written now is not a part of the progress
    int m_processedCount = 0;
    int m_failedCount = 0;

    FileProgress m_progress;
    FileSampling m_sampling;
    FilePool m_pool; // destroyed first
};
